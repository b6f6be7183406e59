#include "core/files/line_reader.h"

#include <cstring>

namespace tabrova {

namespace {

constexpr std::size_t BufferSize = 256 * 1024;
constexpr std::size_t NotFound = static_cast<std::size_t>(-1);

bool holdsFourEmptyLines(const char* text) { return std::memcmp(text, "\r\n\r\n\r\n\r\n", 8) == 0; }

} // namespace

LineReader::LineReader(std::istream& input) : input_(input), buffer_(BufferSize) {
    fill();
    const std::string_view start(buffer_.data(), size_);
    if (start.find("\r\n") == std::string_view::npos && start.find('\n') != std::string_view::npos)
        endLength_ = 1;
}

// Moves the unread rest to the front and reads behind it; a rest that fills the buffer makes the buffer grow.
bool LineReader::fill() {
    if (atEnd_) return false;
    std::memmove(buffer_.data(), buffer_.data() + at_, size_ - at_);
    size_ -= at_;
    at_ = 0;
    refused_ = size_ >= LongestLine;
    if (refused_) return false;
    if (size_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
    input_.read(buffer_.data() + size_, static_cast<std::streamsize>(buffer_.size() - size_));
    const auto got = static_cast<std::size_t>(input_.gcount());
    size_ += got;
    if (got == 0) atEnd_ = true;
    return got > 0;
}

std::size_t LineReader::findLineEnd(std::size_t from) const {
    while (from < size_) {
        const void* found = std::memchr(buffer_.data() + from, '\n', size_ - from);
        if (!found) return NotFound;
        const auto lineFeed = static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
        if (endLength_ == 1) return lineFeed;
        if (lineFeed > at_ && buffer_[lineFeed - 1] == '\r') return lineFeed - 1;
        from = lineFeed + 1;
    }
    return NotFound;
}

std::string_view LineReader::takeLine(std::size_t length, std::size_t end) {
    const std::string_view line(buffer_.data() + at_, length);
    at_ += length + end;
    return line;
}

// Most lines of a document are empty or hold one or two characters, too short to be worth a search.
std::optional<std::string_view> LineReader::nextShort() {
    if (endLength_ != 2 || size_ - at_ < 4) return std::nullopt;
    const char* text = buffer_.data() + at_;
    for (std::size_t length = 0; length <= 2; ++length)
        if (text[length] == '\r' && text[length + 1] == '\n') return takeLine(length, endLength_);
    return std::nullopt;
}

std::optional<std::string_view> LineReader::next() {
    if (const auto line = nextShort()) return line;
    std::size_t searched = 0;
    for (;;) {
        const std::size_t found = findLineEnd(at_ + searched);
        if (found != NotFound) return takeLine(found - at_, endLength_);
        // A CR at the very end may be the first half of a line end.
        searched = size_ - at_ > 0 ? size_ - at_ - 1 : 0;
        if (!fill()) break;
    }
    if (at_ == size_ || refused_) return std::nullopt;
    std::size_t length = size_ - at_;
    // A file cut between CR and LF.
    const std::size_t halfEnd = endLength_ == 2 && buffer_[size_ - 1] == '\r' ? 1 : 0;
    length -= halfEnd;
    return takeLine(length, halfEnd);
}

std::size_t LineReader::skipEmptyLines(std::size_t most) {
    if (endLength_ != 2) return 0;
    std::size_t skipped = 0;
    for (;;) {
        const char* text = buffer_.data() + at_;
        const char* const end = buffer_.data() + size_;
        while (skipped + 16 <= most && end - text >= 32 && holdsFourEmptyLines(text) &&
               holdsFourEmptyLines(text + 8) && holdsFourEmptyLines(text + 16) &&
               holdsFourEmptyLines(text + 24)) {
            text += 32;
            skipped += 16;
        }
        while (skipped < most && end - text >= 2 && text[0] == '\r' && text[1] == '\n') {
            text += 2;
            ++skipped;
        }
        at_ = static_cast<std::size_t>(text - buffer_.data());
        if (skipped == most || end - text >= 2 || !fill()) return skipped;
    }
}

} // namespace tabrova
