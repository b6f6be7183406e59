// What a rich text's control words act on: the looks of the group under way, the tables of the header, the
// row and the picture that are being told, and the text that comes out.
#pragma once

#include "richtext/state/code_pages.h"
#include "richtext/state/rich_flow.h"
#include "richtext/state/rtf_fonts.h"
#include "richtext/state/rtf_lists.h"
#include "richtext/state/rtf_picture.h"

namespace tabrova {

// Where the text of a group goes.
enum class Destination {
    Body,
    Silent,  // nowhere, but a group inside may be a picture or a text
    Skipped, // nowhere, nor that of any group inside
    Fonts,
    Colors,
    Lists,
    ListNumbers,
    Picture,
    Instruction, // of a field
    Anchor,
};

// What a group takes over from the one around it, and gives up at its end.
struct GroupState {
    Destination destination = Destination::Body;
    CharacterLook character;
    ParagraphLook paragraph;
    bool hidden = false;
    bool inTable = false;
    int nested = 0; // tables
    int list = 0;   // the paragraph's; 0 for none
    int listLevel = 0;
    int bytesAfterUnicode = 1;
    bool isField = false;
    int fieldLink = -1;
    QString fieldSymbol = {};        // the character that the field is, if it shows none
    std::size_t fieldCharacters = 0; // of the whole text, when it was told
};

class RtfState {
  public:
    explicit RtfState(RichText& text);

    static constexpr std::size_t MostGroups = 500; // inside one another; what is deeper is passed over
    static constexpr std::size_t MostColors = 10'000;
    static constexpr std::size_t MostTabs = 60;
    static constexpr qsizetype MostPictureBytes = 64 * 1024 * 1024; // of all together
    static constexpr std::size_t MostPictures = 500;
    static constexpr std::size_t MostLinks = 20'000;
    static constexpr qsizetype LongestInstruction = 4000;

    GroupState& now() { return groups_.back(); }
    void openGroup();
    // False at the end of the text.
    bool closeGroup();
    bool isTooDeep() const { return tooDeep_ > 0; }
    bool isFull() const { return flow.isFull(); }

    // Bytes as they stand, of text or of what else the group holds.
    void addBytes(std::string_view bytes);
    void addCharacters(const QString& text);
    // A code unit of UTF-16; half of a pair alone is nothing. One of the places where fonts of pictures keep
    // theirs is that picture's sign.
    void addUnicode(char16_t unit);
    void flush();

    void endParagraph();
    void endCell();
    void endRow();
    void endNestedRow();
    void finish();

    void plainCharacters();
    void plainParagraph();
    void endFontTable();
    std::optional<QRgb> color(int number) const;
    void addTab(int place);
    void setPart(int part, int value); // of the color under way: 0 red, 1 green, 2 blue
    void beginRow();
    void endCellLook(int end);
    void beginFieldResult();

    RichText& text;
    RichFlow flow;
    RtfFonts fonts;
    RtfLists lists;
    RtfPicture picture;
    int textCodePage = WesternCodePage;
    int defaultFont = 0;
    bool spelledSign = false; // the paragraph's list sign stands in it as text
    TabSide nextTab = TabSide::Left;
    RowLook row;
    RowLook outerRow; // while a row of a table inside is told
    CellLook cell;
    CellBorder* border = nullptr; // the one that is told; none for a paragraph's

  private:
    int nested() const;
    void endRowsText();
    void leave(const GroupState& group);
    GroupState* field(); // the innermost; nullptr for none
    void addSign();
    void takePicture();
    void takeInstruction();
    void endColors(std::string_view bytes);
    void addText(const QString& characters);
    void addBodyBytes(std::string_view bytes);

    std::vector<GroupState> groups_;
    std::size_t tooDeep_ = 0;
    CodePageText bytes_;
    std::vector<std::optional<QRgb>> colors_;
    std::array<int, 3> parts_{};
    bool partTold_ = false;
    QString instruction_;
    QString anchor_;
    qsizetype pictureBytes_ = 0;
    char16_t highHalf_ = 0; // of a pair that is to be completed
};

// The address or the place that a field's instruction tells, "#" before a place; empty for other fields.
QString linkOfInstruction(const QString& instruction);

// The character that a field's instruction tells by its number and font; empty for other fields.
QString symbolOfInstruction(const QString& instruction, int textCodePage);

} // namespace tabrova
