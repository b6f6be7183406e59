#include "core/files/file_text.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace tabrova {

namespace {

constexpr std::size_t BlockSize = 256 * 1024;
constexpr std::size_t LinesInBlock = BlockSize / 2;
constexpr std::size_t LongRun = 4096; // lines from which on a run is counted
constexpr std::size_t ShortRun = 16;  // lines up to which a run is one copy of fixed size
constexpr std::string_view LineEnd = "\r\n";

const std::string& emptyLines() {
    static const std::string lines = [] {
        std::string text;
        text.reserve(BlockSize);
        for (std::size_t line = 0; line < LinesInBlock; ++line)
            text.append(LineEnd);
        return text;
    }();
    return lines;
}

void write(std::ostream& output, std::string_view text) {
    output.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void writeEmptyLines(std::ostream& output, std::size_t count) {
    for (std::size_t left = count; left > 0;) {
        const std::size_t lines = std::min(left, LinesInBlock);
        write(output, std::string_view(emptyLines()).substr(0, lines * LineEnd.size()));
        left -= lines;
    }
}

// Most texts are one or two characters, for which a copy of unknown size costs more than the copy itself.
void copyText(char* to, std::string_view text) {
    if (text.size() <= 2) {
        for (std::size_t i = 0; i < text.size(); ++i)
            to[i] = text[i];
    } else {
        std::memcpy(to, text.data(), text.size());
    }
}

} // namespace

char* FileText::room(std::size_t bytes) {
    if (blocks_.empty() || blocks_.back().capacity - blocks_.back().used < bytes) {
        const std::size_t capacity = std::max(bytes, BlockSize);
        blocks_.push_back({std::make_unique_for_overwrite<char[]>(capacity), capacity, 0});
    }
    return blocks_.back().text.get() + blocks_.back().used;
}

void FileText::addRun(std::size_t lines) {
    room(0);
    const Run run = {blocks_.size() - 1, blocks_.back().used, lines};
    if (!runs_.empty() && runs_.back().block == run.block && runs_.back().offset == run.offset) {
        runs_.back().lines += lines;
    } else {
        runs_.push_back(run);
    }
}

void FileText::addEmptyLines(std::size_t count) {
    if (count >= LongRun) return addRun(count);
    std::memcpy(room(count * LineEnd.size()), emptyLines().data(), count * LineEnd.size());
    blocks_.back().used += count * LineEnd.size();
}

void FileText::addLine(std::size_t emptyLinesBefore, std::string_view text) {
    if (emptyLinesBefore > ShortRun) {
        addEmptyLines(emptyLinesBefore);
        emptyLinesBefore = 0;
    }
    char* at = room(ShortRun * LineEnd.size() + text.size() + LineEnd.size());
    static_assert(LinesInBlock > ShortRun);
    std::memcpy(at, "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n", ShortRun * 2);
    at += emptyLinesBefore * LineEnd.size();
    copyText(at, text);
    at[text.size()] = '\r';
    at[text.size() + 1] = '\n';
    blocks_.back().used += emptyLinesBefore * LineEnd.size() + text.size() + LineEnd.size();
}

std::size_t FileText::size() const {
    std::size_t bytes = 0;
    for (const Block& block : blocks_)
        bytes += block.used;
    for (const Run& run : runs_)
        bytes += run.lines * LineEnd.size();
    return bytes;
}

bool FileText::writeTo(std::ostream& output) const {
    auto run = runs_.begin();
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        const std::string_view text(blocks_[block].text.get(), blocks_[block].used);
        std::size_t written = 0;
        for (; run != runs_.end() && run->block == block; ++run) {
            write(output, text.substr(written, run->offset - written));
            writeEmptyLines(output, run->lines);
            written = run->offset;
        }
        write(output, text.substr(written));
    }
    output.flush();
    return output.good();
}

} // namespace tabrova
