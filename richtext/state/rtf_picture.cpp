#include "richtext/state/rtf_picture.h"

#include "richtext/tokens/rtf_tokenizer.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int Longest = 31680; // twips: 22 inches

int scaled(int length, int percent) {
    const long long whole =
        static_cast<long long>(std::clamp(length, 0, Longest)) * std::clamp(percent, 1, 1000);
    return static_cast<int>(std::min<long long>(whole / 100, Longest));
}

} // namespace

bool RtfPicture::takesMore() {
    if (bytes_.size() >= MostBytes) tooLarge_ = true;
    return kind && !tooLarge_;
}

void RtfPicture::addDigits(std::string_view text) {
    for (const char character : text) {
        const int digit = hexDigit(character);
        if (digit < 0 || !takesMore()) continue;
        if (halfByte_ < 0) {
            halfByte_ = digit;
            continue;
        }
        bytes_.append(static_cast<char>(halfByte_ * 16 + digit));
        halfByte_ = -1;
    }
}

void RtfPicture::addBytes(std::string_view bytes) {
    if (static_cast<qsizetype>(bytes.size()) > MostBytes - bytes_.size()) tooLarge_ = true;
    if (takesMore()) bytes_.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::optional<RichPicture> RtfPicture::take() {
    if (!kind || tooLarge_ || bytes_.isEmpty()) return std::nullopt;
    return RichPicture{*kind, std::move(bytes_), scaled(width, scaleAcross), scaled(height, scaleDown)};
}

} // namespace tabrova
