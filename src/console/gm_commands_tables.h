#pragma once

#include <span>
#include <string_view>

namespace qf::console {

/// The tabs of the console in their order; `Outside` stands for what lies beside them.
enum class Tab {
    Server,
    Global,
    GMCommands,
    ItemEdit,
    CharacterEdit,
    Travel,
    NPCs,
    CustomCommands,
    ItemSpawning,
    Outside,
};

/// The captions of the nine tabs.
std::span<const std::string_view> TabCaptions();

/// What a press does in one generation.
enum class GMAct {
    None,
    Same,           ///< what it does in 0.9x.x, whatever the generation
    Send,           ///< sends `text`
    Type,           ///< sends `text` without the prefix
    Tell,           ///< shows `more` in a box
    TellAndSend,    ///< shows `more` in a box, then sends `text`
    Open,           ///< opens the panel `text`
    OpenWithClient, ///< opens the panel `text` where the client's folder is known, otherwise shows `more` in a box
    Reveal,         ///< shows the frame `text`
    StartZarn,
    StartInsideUO,
    StartUO,
    Save, ///< keeps the custom commands
    Leave,
};

/// A text to send may name boxes and lists in braces, which stand for what is in them: "dupe {txtDupeCount}".
struct GMEffect {
    GMAct            act = GMAct::None;
    std::string_view text;
    std::string_view more;
};

/// A button of the console.
struct GMCommand {
    Tab tab;

    /// The documented frame or, where there is none, the caption of the group in which the button stands.
    std::string_view group;

    std::string_view name;
    std::string_view caption;
    GMEffect         in09;
    GMEffect         in070;

    /// The frame that the press hides at last, in any generation.
    std::string_view hides = {};
};

/// Every button of the console but for the tabs "Travel" and "Item Spawning", tab by tab.
std::span<const GMCommand> GMCommands();

/// The captions of `cmdReload(0)` to `cmdReload(9)` under 0.70.x; those of the table are of 0.9x.x.
std::span<const std::string_view> ReloadCaptions070();

/// A frame of the console and whether it is hidden at first.
struct GMFrame {
    std::string_view name;
    std::string_view caption;
    bool             startsHidden;
};
std::span<const GMFrame> GMFrames();

/// A text box, and whether it selects its whole text when it gets the focus.
struct GMBox {
    std::string_view name;
    bool             selectsWhole;
};
std::span<const GMBox> GMBoxes();

/// A label beside the two buttons that it names.
struct GMSwitch {
    std::string_view label;
    std::string_view caption;
    std::string_view first;
    std::string_view second;
};
std::span<const GMSwitch> GMSwitches();

/// An entry of a list or an option of an array, and the word that is sent for it.
struct GMChoice {
    std::string_view caption;
    std::string_view word;
};

/// A drop-down list or an array of options.
struct GMList {
    std::string_view name;

    /// What a drop-down list shows before a choice.
    std::string_view initialText;

    /// What is sent where none is chosen.
    std::string_view wordOfNone;

    std::span<const GMChoice> choices;
};
std::span<const GMList> GMLists();

} // namespace qf::console
