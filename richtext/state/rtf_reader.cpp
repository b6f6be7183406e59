#include "richtext/state/rtf_reader.h"

#include "richtext/state/rtf_words.h"
#include "richtext/tokens/rtf_tokenizer.h"

#include <utility>

namespace tabrova {

namespace {

constexpr std::string_view Signature = "{\\rtf";

class Reader {
  public:
    explicit Reader(RichText& text) : state_(text) {}

    void read(std::string_view bytes) {
        RtfTokenizer tokens(bytes);
        while (!state_.isFull() && take(tokens.next())) {
        }
        state_.finish();
    }

  private:
    // False at the end.
    bool take(const RtfToken& token);
    void takeWord(const RtfToken& token);
    void takeSign(unsigned char sign);
    void takeText(std::string_view text);
    void takeUnicode(int number);
    bool isLeftOut();

    RtfState state_;
    bool starred_ = false; // the group may be passed over by who does not know it
    int leftOut_ = 0;      // bytes that stand for a character that was read already
};

bool Reader::take(const RtfToken& token) {
    switch (token.kind) {
    case RtfTokenKind::End:
        return false;
    case RtfTokenKind::GroupBegin:
        leftOut_ = 0;
        starred_ = false;
        state_.openGroup();
        return true;
    case RtfTokenKind::GroupEnd:
        leftOut_ = 0;
        return state_.closeGroup();
    default:
        break;
    }
    if (state_.isTooDeep() || state_.now().destination == Destination::Skipped) return true;
    const char byte = static_cast<char>(token.byte);
    if (token.kind == RtfTokenKind::Word) takeWord(token);
    if (token.kind == RtfTokenKind::Sign) takeSign(token.byte);
    if (token.kind == RtfTokenKind::Byte && !isLeftOut()) state_.addBytes({&byte, 1});
    if (token.kind == RtfTokenKind::Text) takeText(token.text);
    if (token.kind == RtfTokenKind::Binary && !isLeftOut() &&
        state_.now().destination == Destination::Picture)
        state_.picture.addBytes(token.text);
    return true;
}

bool Reader::isLeftOut() {
    if (leftOut_ == 0) return false;
    --leftOut_;
    return true;
}

void Reader::takeText(std::string_view text) {
    const auto out = std::min(text.size(), static_cast<std::size_t>(leftOut_));
    leftOut_ -= static_cast<int>(out);
    if (out < text.size()) state_.addBytes(text.substr(out));
}

void Reader::takeWord(const RtfToken& token) {
    const bool starred = std::exchange(starred_, false);
    if (token.text == "bin") return;
    if (token.text == "u") return takeUnicode(token.number.value_or(0));
    const RtfWordRow* row = findRtfWord(token.text);
    if (row && row->use == WordUse::Character && isLeftOut()) return;
    if (row && row->use == WordUse::Text) leftOut_ = 0;
    const bool opens = row && (row->use == WordUse::Opens || row->use == WordUse::Part);
    if (starred && !opens) {
        state_.flush();
        state_.now().destination = Destination::Skipped;
        return;
    }
    const Destination where = state_.now().destination;
    if (!row || (where == Destination::Silent && row->use != WordUse::Part) ||
        (where != Destination::Body && row->use == WordUse::Text))
        return;
    state_.flush();
    row->act(state_, {token.number});
}

void Reader::takeUnicode(int number) {
    state_.flush();
    state_.addUnicode(static_cast<char16_t>(number & 0xFFFF));
    leftOut_ = state_.now().bytesAfterUnicode;
}

void Reader::takeSign(unsigned char sign) {
    if (sign == '*') {
        starred_ = true;
        return;
    }
    if (isLeftOut()) return;
    if (sign == '\\' || sign == '{' || sign == '}') {
        const char byte = static_cast<char>(sign);
        return state_.addBytes({&byte, 1});
    }
    state_.flush();
    const Destination where = state_.now().destination;
    switch (sign) {
    case '\n':
        if (where == Destination::Body) state_.endParagraph();
        break;
    case '\t':
        state_.addCharacters(QChar('\t'));
        break;
    case '~':
        state_.addCharacters(QChar(0xA0));
        break;
    case '_':
        state_.addCharacters(QChar(0x2011));
        break;
    case '-':
        state_.addCharacters(QChar(0xAD));
        break;
    default:
        break;
    }
}

} // namespace

bool isRichText(std::string_view bytes) { return bytes.starts_with(Signature); }

RichText readRichText(std::string_view bytes) {
    RichText text;
    Reader(text).read(bytes);
    return text;
}

} // namespace tabrova
