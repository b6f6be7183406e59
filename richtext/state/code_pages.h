// Bytes of a text as characters, by the code page of their font.
#pragma once

#include <QString>
#include <QStringDecoder>

#include <map>
#include <string>
#include <string_view>

namespace tabrova {

constexpr int WesternCodePage = 1252;
constexpr int SymbolCodePage = 42; // the bytes are the places of a font's pictures

// That of a font's character set, as its row of the font table numbers it; nothing for the text's own.
int codePageOfCharacterSet(int characterSet, int textCodePage);

// Takes bytes as they come: a character of several bytes may come in pieces.
class CodePageText {
  public:
    void add(std::string_view bytes, int codePage);
    bool isEmpty() const { return bytes_.empty(); }
    // What was added since, as characters; what is none as U+FFFD. A code page that the toolkit does not know
    // is read as the western one.
    QString take();

  private:
    QStringDecoder* decoder(int codePage);

    std::string bytes_;
    int codePage_ = WesternCodePage;
    std::map<int, QStringDecoder> decoders_;
};

// Whether the bytes of a font of this name are places of pictures, whatever its character set.
bool isPictureFont(const QString& font);

// The character that a font of pictures shows for its place from 0x20 to 0xFF; U+2022, a bullet, for those of
// which there is no character, and the place itself where other fonts have the same.
QChar symbolCharacter(const QString& font, unsigned char place);

} // namespace tabrova
