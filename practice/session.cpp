#include "practice/session.h"

#include <utility>

namespace qf::practice {

namespace {

std::string Numbered(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " tile" : " tiles");
}

std::string Text(const Position& position)
{
    return std::to_string(position.x) + " " + std::to_string(position.y) + " " + std::to_string(position.z);
}

bool WantsTwoCorners(Verb verb)
{
    return verb == Verb::PickArea || verb == Verb::PickWipeInside || verb == Verb::PickWipeOutside;
}

} // namespace

Session::Session(std::string prefix) : prefix_(std::move(prefix)) {}

void Session::Receive(std::string_view line)
{
    ++linesReceived_;
    if (!line.starts_with(prefix_)) {
        Add(ChatEntry::Kind::Speech, std::string(line));
        return;
    }
    const Command command = ParseCommand(line.substr(prefix_.size()));
    const bool    known = command.verb != Verb::Unknown;
    Add(known ? ChatEntry::Kind::Command : ChatEntry::Kind::Speech, std::string(line));
    if (known) {
        Obey(command);
    }
}

void Session::Obey(const Command& command)
{
    switch (command.verb) {
    case Verb::Unknown: break;
    case Verb::Flawed: Answer(command.flaw); break;
    case Verb::PlaceArea: PlaceArea(command.id, command.box, command.z); break;
    case Verb::PickArea:
    case Verb::PickTile:
    case Verb::PickRemove:
    case Verb::PickWipeInside:
    case Verb::PickWipeOutside: Wait(command); break;
    case Verb::WipeInside: Answer(Numbered(world_.RemoveInside(command.box)) + " wiped."); break;
    case Verb::WipeOutside: Answer(Numbered(world_.RemoveOutside(command.box)) + " wiped."); break;
    case Verb::WipeAll: Answer(Numbered(world_.Clear()) + " wiped."); break;
    case Verb::Go: Go(Position{command.box.x1, command.box.y1, command.z}); break;
    case Verb::Where: Answer("You are at " + Text(player_) + "."); break;
    }
}

void Session::Wait(const Command& command)
{
    waiting_ = command;
    firstCorner_ = std::nullopt;
}

void Session::PlaceArea(std::uint16_t id, const Box& box, int z)
{
    if (z < LowestZ || z > HighestZ) {
        Answer("Z must be from -128 to 127.");
        return;
    }
    if (!ClippedToMap(box)) {
        Answer("The box is not on the map.");
        return;
    }
    const World::AreaResult result = world_.PlaceArea(id, box, z);
    if (result.cutShort) {
        Answer(world_.Count() >= World::MostTiles
                   ? std::string("The practice world is full.")
                   : "The box is too large: only its first " + Numbered(World::MostTilesPerArea) + " were placed.");
    }
}

void Session::Go(const Position& place)
{
    if (!IsOnMap(place)) {
        Answer("There is no such place on the map.");
        return;
    }
    player_ = place;
}

void Session::Click(const Spot& spot)
{
    if (!waiting_) {
        return;
    }
    if (WantsTwoCorners(waiting_->verb)) {
        if (!firstCorner_) {
            firstCorner_ = spot.at;
            return;
        }
        const Position from = *std::exchange(firstCorner_, std::nullopt);
        const Command  command = *std::exchange(waiting_, std::nullopt);
        const Box      box{from.x, from.y, spot.at.x, spot.at.y};
        switch (command.verb) {
        case Verb::PickArea: PlaceArea(command.id, box, from.z); break;
        case Verb::PickWipeInside: Answer(Numbered(world_.RemoveInside(box)) + " wiped."); break;
        default: Answer(Numbered(world_.RemoveOutside(box)) + " wiped."); break;
        }
        return;
    }
    if (waiting_->verb == Verb::PickTile) {
        PlaceArea(waiting_->id, Box{spot.at.x, spot.at.y, spot.at.x, spot.at.y}, spot.at.z);
    } else if (!spot.tile || !world_.Remove(*spot.tile)) {
        Answer("There is no tile to remove.");
    }
    if (!waiting_->repeats) {
        waiting_ = std::nullopt;
    }
}

void Session::Cancel()
{
    waiting_ = std::nullopt;
    firstCorner_ = std::nullopt;
}

std::string Session::Hint() const
{
    if (!waiting_) {
        return {};
    }
    const std::string end = waiting_->repeats ? " (right click ends)" : " (right click cancels)";
    switch (waiting_->verb) {
    case Verb::PickTile: return "Click where the tile goes" + end;
    case Verb::PickRemove: return "Click the tile to remove" + end;
    default: return (firstCorner_ ? "Click the second corner" : "Click the first corner") + end;
    }
}

void Session::Answer(std::string text)
{
    Add(ChatEntry::Kind::Answer, std::move(text));
}

void Session::Add(ChatEntry::Kind kind, std::string text)
{
    entries_.push_back({kind, std::move(text)});
    if (entries_.size() > MostEntries) {
        entries_.pop_front();
    }
}

} // namespace qf::practice
