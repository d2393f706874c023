#include "world/text_lines.h"

#include <algorithm>
#include <cstring>
#include <ios>

#include "core/runtime_error.h"

namespace qf::world {

bool TextLines::Next(std::string_view& line)
{
    for (std::size_t searched = 0;;) {
        const char* const start = block_.data() + begin_;
        const auto        there = end_ - begin_;
        const auto* const end = static_cast<const char*>(std::memchr(start + searched, '\n', there - searched));
        if (end != nullptr) {
            const auto length = static_cast<std::size_t>(end - start);
            line = Cut(length + 1).substr(0, length);
            if (line.ends_with('\r')) {
                line.remove_suffix(1);
            }
            return true;
        }
        searched = there;
        if (!Refill()) {
            line = Cut(there);
            return there != 0;
        }
    }
}

std::string_view TextLines::Cut(std::size_t length)
{
    const std::string_view text(block_.data() + begin_, length);
    begin_ += length;
    return text;
}

bool TextLines::Refill()
{
    if (begin_ != 0) {
        std::copy(block_.begin() + static_cast<std::ptrdiff_t>(begin_),
                  block_.begin() + static_cast<std::ptrdiff_t>(end_), block_.begin());
        end_ -= begin_;
        begin_ = 0;
    }
    if (end_ == block_.size()) {
        block_.resize(block_.size() * 2);
    }
    try {
        const auto read = bytes_.sgetn(block_.data() + end_, static_cast<std::streamsize>(block_.size() - end_));
        end_ += static_cast<std::size_t>(std::max<std::streamsize>(read, 0));
        return read > 0;
    } catch (const std::ios_base::failure&) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

} // namespace qf::world
