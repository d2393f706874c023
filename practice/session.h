#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "practice/commands.h"
#include "practice/world.h"

namespace qf::practice {

/// A line of the text at the bottom.
struct ChatEntry {
    enum class Kind {
        Command, ///< typed, with the prefix
        Speech,  ///< typed, without it
        Answer,  ///< what the practice world says
    };
    Kind        kind = Kind::Speech;
    std::string text;
};

/// What a click on the view hit: a place and, where there is one, the placed tile.
struct Spot {
    Position            at;
    std::optional<Tile> tile;
};

/// The practice world as it is played: the player, the text, and a command that waits for clicks.
class Session {
  public:
    static constexpr Position    Start{1000, 1000, 0};
    static constexpr std::size_t MostEntries = 64;

    explicit Session(std::string prefix);

    /// Takes one received line and obeys it where it is a command.
    void Receive(std::string_view line);

    /// A click with the left button.
    void Click(const Spot& spot);

    /// Escape or the right button: a waiting command is given up.
    void Cancel();

    /// Adds a line to the text at the bottom.
    void Answer(std::string text);

    const World&                 GetWorld() const { return world_; }
    const Position&              Player() const { return player_; }
    const std::deque<ChatEntry>& Entries() const { return entries_; }

    /// The command that waits for clicks, and the first of two corners where it has been picked.
    const std::optional<Command>&  Waiting() const { return waiting_; }
    const std::optional<Position>& FirstCorner() const { return firstCorner_; }

    /// What the waiting command wants the user to click; empty where none waits.
    std::string Hint() const;

    std::size_t LinesReceived() const { return linesReceived_; }

  private:
    void Obey(const Command& command);
    void Wait(const Command& command);
    void PlaceArea(std::uint16_t id, const Box& box, int z);
    void Go(const Position& place);
    void Add(ChatEntry::Kind kind, std::string text);

    std::string             prefix_;
    World                   world_;
    Position                player_ = Start;
    std::deque<ChatEntry>   entries_;
    std::optional<Command>  waiting_;
    std::optional<Position> firstCorner_;
    std::size_t             linesReceived_ = 0;
};

} // namespace qf::practice
