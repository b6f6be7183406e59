#include "core/file_text.h"

#include <algorithm>
#include <cstring>

namespace tabrova {

namespace {

constexpr std::size_t BlockSize = 256 * 1024;
constexpr std::size_t ShortRun = 32;
constexpr std::string_view ShortRunText = "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
                                          "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
static_assert(ShortRunText.size() == ShortRun * 2);

// Gathers small pieces, so that the stream sees blocks that it passes on without a copy of its own.
class BlockWriter {
  public:
    explicit BlockWriter(std::ostream& output) : output_(output), block_(BlockSize, '\0') {}

    void add(std::string_view text) {
        while (!text.empty()) {
            const std::size_t part = std::min(text.size(), BlockSize - used_);
            std::memcpy(block_.data() + used_, text.data(), part);
            used_ += part;
            text.remove_prefix(part);
            if (used_ == BlockSize) flush();
        }
    }

    void addEmptyLines(std::size_t count) {
        for (; count >= ShortRun; count -= ShortRun)
            add(ShortRunText);
        add(ShortRunText.substr(0, count * 2));
    }

    void flush() {
        output_.write(block_.data(), static_cast<std::streamsize>(used_));
        used_ = 0;
    }

  private:
    std::ostream& output_;
    std::string block_;
    std::size_t used_ = 0;
};

} // namespace

void FileText::addLine(std::string_view text) {
    text_.append(text);
    text_.append("\r\n", 2);
}

void FileText::addEmptyLines(std::size_t count) {
    if (count <= ShortRun) {
        text_.append(ShortRunText.substr(0, count * 2));
    } else if (!runs_.empty() && runs_.back().before == text_.size()) {
        runs_.back().lines += count;
    } else {
        runs_.push_back({text_.size(), count});
    }
}

bool FileText::writeTo(std::ostream& output) const {
    BlockWriter writer(output);
    const std::string_view text = text_;
    std::size_t at = 0;
    for (const EmptyRun& run : runs_) {
        writer.add(text.substr(at, run.before - at));
        writer.addEmptyLines(run.lines);
        at = run.before;
    }
    writer.add(text.substr(at));
    writer.flush();
    output.flush();
    return output.good();
}

} // namespace tabrova
