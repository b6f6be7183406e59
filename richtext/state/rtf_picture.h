// A picture of a rich text as its bytes come along.
#pragma once

#include "richtext/state/rich_text.h"

#include <optional>
#include <string_view>

namespace tabrova {

class RtfPicture {
  public:
    static constexpr qsizetype MostBytes = 16 * 1024 * 1024;

    std::optional<PictureKind> kind; // none: one that is not shown
    int width = 0;                   // twips
    int height = 0;
    int scaleAcross = 100; // percent
    int scaleDown = 100;

    // Hexadecimal digits; other characters are passed over.
    void addDigits(std::string_view text);
    void addBytes(std::string_view bytes);
    // Nothing for a picture of another kind, without bytes, or with more than the most.
    std::optional<RichPicture> take();

  private:
    bool takesMore();

    QByteArray bytes_;
    int halfByte_ = -1;
    bool tooLarge_ = false;
};

} // namespace tabrova
