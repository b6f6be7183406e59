// Reads a text file line by line through one fixed buffer. A line ends in CR LF, so that a lone CR or LF is
// part of the text; a file that begins with plain LF lines and shows no CR LF is read by its LFs.
#pragma once

#include <istream>
#include <optional>
#include <string_view>
#include <vector>

namespace tabrova {

class LineReader {
  public:
    explicit LineReader(std::istream& input);

    // A longer line is no text: the file ends before it.
    static constexpr std::size_t LongestLine = 16 * 1024 * 1024;

    // The next line without its end, or std::nullopt at the end of the file. A last line need not be ended.
    // The view lasts until the next call.
    std::optional<std::string_view> next();

    // Passes over empty lines, `most` at the most; returns how many.
    std::size_t skipEmptyLines(std::size_t most);

  private:
    bool fill();
    std::optional<std::string_view> nextShort();
    std::size_t findLineEnd(std::size_t from) const;
    std::string_view takeLine(std::size_t length, std::size_t end);

    std::istream& input_;
    std::vector<char> buffer_;
    std::size_t at_ = 0;
    std::size_t size_ = 0;
    std::size_t endLength_ = 2;
    bool atEnd_ = false;
    bool refused_ = false; // a line was too long
};

} // namespace tabrova
