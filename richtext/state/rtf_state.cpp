#include "richtext/state/rtf_state.h"

#include "richtext/state/text_characters.h"

#include <algorithm>
#include <utility>

namespace tabrova {

RtfState::RtfState(RichText& to) : text(to), flow(to), fonts(to), groups_(1) {}

void RtfState::openGroup() {
    flush();
    if (groups_.size() >= MostGroups || tooDeep_ > 0) {
        ++tooDeep_;
        return;
    }
    GroupState inner = groups_.back();
    inner.isField = false;
    groups_.push_back(std::move(inner));
}

bool RtfState::closeGroup() {
    flush();
    if (tooDeep_ > 0) {
        --tooDeep_;
        return true;
    }
    if (groups_.size() <= 2) return false;
    const GroupState left = std::move(groups_.back());
    groups_.pop_back();
    if (left.destination != now().destination) leave(left);
    if (left.isField && flow.characters() == left.fieldCharacters) addCharacters(left.fieldSymbol);
    return true;
}

void RtfState::leave(const GroupState& group) {
    switch (group.destination) {
    case Destination::Picture:
        return takePicture();
    case Destination::Instruction:
        return takeInstruction();
    case Destination::Anchor:
        return flow.addAnchor(onlyText(std::exchange(anchor_, {})).trimmed());
    case Destination::Fonts:
        return endFontTable();
    default:
        return;
    }
}

void RtfState::endFontTable() {
    fonts.end();
    const int font = fonts.indexOf(defaultFont);
    for (GroupState& group : groups_)
        group.character.font = font;
}

void RtfState::addBytes(std::string_view bytes) {
    switch (now().destination) {
    case Destination::Body:
        if (!now().hidden) addBodyBytes(bytes);
        return;
    case Destination::Fonts:
        return fonts.addName(bytes, textCodePage);
    case Destination::Colors:
        return endColors(bytes);
    case Destination::Picture:
        return picture.addDigits(bytes);
    case Destination::Instruction:
    case Destination::Anchor:
        return bytes_.add(bytes, textCodePage);
    default:
        return;
    }
}

void RtfState::addBodyBytes(std::string_view bytes) {
    const int font = now().character.font;
    const int codePage = fonts.codePageOf(font, textCodePage);
    if (codePage != SymbolCodePage) return bytes_.add(bytes, codePage);
    flush();
    QString signs;
    for (const char byte : bytes)
        signs += symbolCharacter(text.fonts[static_cast<std::size_t>(font)].name,
                                 static_cast<unsigned char>(byte));
    addCharacters(signs);
}

void RtfState::flush() {
    if (!bytes_.isEmpty()) addCharacters(bytes_.take());
}

void RtfState::addCharacters(const QString& characters) {
    const auto addTo = [&characters](QString& line) {
        line += QStringView(characters).left(LongestInstruction - line.size());
    };
    switch (now().destination) {
    case Destination::Body:
        if (!now().hidden) addText(onlyText(characters));
        return;
    case Destination::Instruction:
        return addTo(instruction_);
    case Destination::Anchor:
        return addTo(anchor_);
    case Destination::Fonts:
        return fonts.addName(characters);
    default:
        return;
    }
}

void RtfState::addText(const QString& characters) {
    for (QStringView rest = characters; !rest.isEmpty() && !flow.isFull();) {
        if (flow.isParagraphLong()) endParagraph();
        const QStringView taken = rest.left(flow.fitting(rest, now().character));
        flow.addText(taken.toString(), now().character);
        rest = rest.mid(taken.size());
    }
}

void RtfState::addUnicode(char16_t unit) {
    constexpr char16_t FirstPicture = 0xF020, LastPicture = 0xF0FF;
    const char16_t high = std::exchange(highHalf_, char16_t{0});
    if (QChar::isHighSurrogate(unit)) {
        highHalf_ = unit;
        return;
    }
    if (QChar::isLowSurrogate(unit)) {
        if (high) addCharacters(QString(QChar(high)) + QChar(unit));
        return;
    }
    if (unit < FirstPicture || unit > LastPicture) return addCharacters(QChar(unit));
    const int font = now().character.font;
    const QString name = font < 0 ? QString() : text.fonts[static_cast<std::size_t>(font)].name;
    addCharacters(symbolCharacter(name, static_cast<unsigned char>(unit & 0xFF)));
}

int RtfState::nested() const {
    const GroupState& group = groups_.back();
    return group.inTable ? std::max(group.nested, 1) : 0;
}

// That of the list before a paragraph's first character.
void RtfState::addSign() {
    const GroupState& group = now();
    if (group.list > 0 && spelledSign) lists.count(group.list, group.listLevel);
    if (group.list > 0 && !spelledSign && !flow.isParagraphEmpty()) {
        const QString sign = lists.nextSign(group.list, group.listLevel);
        if (!sign.isEmpty()) flow.putFirst(sign + '\t', group.character);
    }
    spelledSign = false;
}

void RtfState::endParagraph() {
    addSign();
    flow.endParagraph(now().paragraph, now().character, nested());
}

void RtfState::endCell() {
    addSign();
    flow.endCell(now().paragraph, now().character, nested());
}

void RtfState::endRow() {
    endRowsText();
    flow.endRow(row, 1);
}

// What stands behind the last cell's end is a cell of its own.
void RtfState::endRowsText() {
    if (now().inTable && !flow.isParagraphEmpty()) endParagraph();
}

void RtfState::endNestedRow() {
    endRowsText();
    flow.endRow(row, std::max(now().nested, 2));
    row = std::exchange(outerRow, {});
}

void RtfState::finish() {
    flush();
    if (!flow.isParagraphEmpty()) endParagraph();
    flow.finish({}, {}, 0);
}

void RtfState::plainCharacters() {
    CharacterLook plain;
    plain.font = fonts.indexOf(defaultFont);
    plain.link = now().character.link;
    now().character = plain;
    now().hidden = false;
}

void RtfState::plainParagraph() {
    now().paragraph = {};
    now().inTable = false;
    now().nested = 0;
    now().list = 0;
    now().listLevel = 0;
    nextTab = TabSide::Left;
    border = nullptr;
}

std::optional<QRgb> RtfState::color(int number) const {
    if (number < 0 || static_cast<std::size_t>(number) >= colors_.size()) return std::nullopt;
    return colors_[static_cast<std::size_t>(number)];
}

void RtfState::setPart(int part, int value) {
    parts_[static_cast<std::size_t>(part)] = std::clamp(value, 0, 255);
    partTold_ = true;
}

// Each semicolon ends a color; one of which nothing was told is the reader's own.
void RtfState::endColors(std::string_view bytes) {
    for (const char byte : bytes) {
        if (byte != ';' || colors_.size() >= MostColors) continue;
        colors_.push_back(partTold_ ? std::optional(qRgb(parts_[0], parts_[1], parts_[2])) : std::nullopt);
        parts_ = {};
        partTold_ = false;
    }
}

void RtfState::addTab(int place) {
    auto& tabs = now().paragraph.tabs;
    if (tabs.size() < MostTabs) tabs.push_back({place, std::exchange(nextTab, TabSide::Left)});
}

void RtfState::beginRow() {
    row = {};
    cell = {};
    border = nullptr;
}

void RtfState::endCellLook(int end) {
    border = nullptr;
    cell.end = end;
    if (row.cells.size() < RichFlow::MostCells) row.cells.push_back(cell);
    cell = {};
}

void RtfState::takePicture() {
    auto taken = std::exchange(picture, {}).take();
    if (!taken || now().hidden || text.pictures.size() >= MostPictures) return;
    pictureBytes_ += taken->bytes.size();
    if (pictureBytes_ <= MostPictureBytes) flow.addPicture(std::move(*taken), now().character);
}

GroupState* RtfState::field() {
    const auto found =
        std::find_if(groups_.rbegin(), groups_.rend(), [](const auto& group) { return group.isField; });
    return found == groups_.rend() ? nullptr : &*found;
}

void RtfState::takeInstruction() {
    const QString instruction = std::exchange(instruction_, {});
    GroupState* of = field();
    if (!of) return;
    of->fieldSymbol = symbolOfInstruction(instruction, textCodePage);
    of->fieldCharacters = flow.characters();
    const QString link = linkOfInstruction(instruction);
    if (link.isEmpty() || text.links.size() >= MostLinks) return;
    text.links.push_back(link);
    of->fieldLink = static_cast<int>(text.links.size()) - 1;
}

void RtfState::beginFieldResult() {
    const GroupState* of = field();
    if (of && of->fieldLink >= 0) now().character.link = of->fieldLink;
}

} // namespace tabrova
