#pragma once

#include <cstddef>
#include <streambuf>
#include <string_view>
#include <vector>

namespace qf::world {

/// The lines of a text that is read in large blocks, so that a file of any size takes little memory. A line ends
/// with CR LF or LF; the last one may have no end.
class TextLines {
  public:
    static constexpr std::size_t BlockSize = std::size_t{256} * 1024;

    explicit TextLines(std::streambuf& bytes, std::size_t blockSize = BlockSize) : bytes_(bytes), block_(blockSize) {}

    /// The next line without its end; false behind the last one. The view holds until the next call.
    /// Throws RuntimeError 75 where the bytes cannot be read.
    bool Next(std::string_view& line);

  private:
    bool             Refill();
    std::string_view Cut(std::size_t length);

    std::streambuf&   bytes_;
    std::vector<char> block_;
    std::size_t       begin_ = 0;
    std::size_t       end_ = 0;
};

} // namespace qf::world
