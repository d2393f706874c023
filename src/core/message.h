#pragma once

#include <optional>
#include <string>

namespace qf::core {

/// Style of a message box; the numbers are the ones that scenarios and documents use.
enum class MessageStyle {
    Plain = 0,
    Question = 4,
    Critical = 16,
    Warning = 48,
    Information = 64,
};

/// A modal message box: its text, its style and its title. No title means the application's title.
struct Message {
    std::string                text;
    MessageStyle               style = MessageStyle::Plain;
    std::optional<std::string> title;

    friend bool operator==(const Message&, const Message&) = default;
};

/// A box without an icon that carries the application's title.
Message PlainBox(std::string text);

/// An information box (style 64) titled with the product title.
Message InformationBox(std::string text);

/// An information box that carries the application's title.
Message UntitledInformationBox(std::string text);

/// An error box (style 16) titled with the product title.
Message CriticalBox(std::string text);

/// A question (style 4, Yes and No) titled with the product title.
Message QuestionBox(std::string text);

} // namespace qf::core
