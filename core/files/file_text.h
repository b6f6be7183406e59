// The text of a file, put together in memory before the file is touched. Long runs of empty lines, which make
// up most of a document, are counted instead of kept.
#pragma once

#include <memory>
#include <ostream>
#include <string_view>
#include <vector>

namespace tabrova {

class FileText {
  public:
    // Adds the text and CR LF behind it.
    void addLine(std::string_view text) { addLine(0, text); }
    // The same behind `emptyLines` empty lines.
    void addLine(std::size_t emptyLines, std::string_view text);
    void addEmptyLines(std::size_t count);

    // Bytes of the whole text.
    std::size_t size() const;
    // In large pieces. False if the stream failed on the way.
    bool writeTo(std::ostream& output) const;

  private:
    struct Block {
        std::unique_ptr<char[]> text;
        std::size_t capacity;
        std::size_t used;
    };
    struct Run {
        std::size_t block;  // the run stands in this block
        std::size_t offset; // behind so many of its bytes
        std::size_t lines;
    };

    char* room(std::size_t bytes);
    void addRun(std::size_t lines);

    std::vector<Block> blocks_;
    std::vector<Run> runs_;
};

} // namespace tabrova
