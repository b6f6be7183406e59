// The text of a file, put together in memory before the file is touched. Long runs of empty lines, which make
// up most of a document, are counted instead of kept.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tabrova {

class FileText {
  public:
    // Adds the text and CR LF behind it.
    void addLine(std::string_view text);
    void addEmptyLines(std::size_t count);

    // In large pieces. False if the stream failed on the way.
    bool writeTo(std::ostream& output) const;

  private:
    struct EmptyRun {
        std::size_t before; // position in text_
        std::size_t lines;
    };

    std::string text_;
    std::vector<EmptyRun> runs_;
};

} // namespace tabrova
