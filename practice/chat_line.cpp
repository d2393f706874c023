#include "practice/chat_line.h"

#include <utility>

namespace qf::practice {

void ChatLine::Insert(std::string_view text)
{
    text_ += text;
}

void ChatLine::Backspace()
{
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    while (!text_.empty() && continues(text_.back())) {
        text_.pop_back();
    }
    if (!text_.empty()) {
        text_.pop_back();
    }
}

void ChatLine::Return()
{
    lines_.push_back(std::exchange(text_, {}));
}

std::vector<std::string> ChatLine::TakeLines()
{
    return std::exchange(lines_, {});
}

} // namespace qf::practice
