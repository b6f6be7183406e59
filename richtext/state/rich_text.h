// A rich text as it was read, before it becomes a document of the toolkit: paragraphs, tables and pictures
// with their looks. Lengths are in twips, 1440 to an inch, unless they say otherwise.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>

#include <array>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace tabrova {

enum class FontKind { Any, Roman, Swiss, Modern, Script, Decorative };

struct RichFont {
    QString name;
    FontKind kind = FontKind::Any;
};

enum class UnderlineLook { None, Single, Dashed, Dotted, Wavy };
enum class ScriptPlace { Line, Above, Below };
enum class Capitals { AsTyped, All, Small };

struct CharacterLook {
    int font = -1; // in RichText::fonts; -1: any
    int halfPoints = 24;
    bool bold = false;
    bool italic = false;
    bool strikeOut = false;
    UnderlineLook underline = UnderlineLook::None;
    ScriptPlace script = ScriptPlace::Line;
    Capitals capitals = Capitals::AsTyped;
    int raised = 0;                      // half points; below the line if negative
    std::optional<QRgb> color = {};      // none: the reader's own
    std::optional<QRgb> background = {}; //
    int link = -1;                       // in RichText::links
    bool operator==(const CharacterLook&) const = default;
};

enum class TextSide { Left, Right, Middle, Both };
enum class TabSide { Left, Right, Middle, Point };
enum class LineSpacing { Auto, AtLeast, Exactly, Times };

struct TabStop {
    int place = 0; // from the margin of the page
    TabSide side = TabSide::Left;
};

struct ParagraphLook {
    TextSide side = TextSide::Left;
    bool rightToLeft = false;
    int left = 0;
    int right = 0;
    int firstLine = 0; // further in than `left`, or out if negative
    int above = 0;
    int below = 0;
    LineSpacing spacing = LineSpacing::Auto;
    int line = 0; // twips, or 240 a line for Times
    std::optional<QRgb> background = {};
    std::vector<TabStop> tabs = {};
};

// Text, with U+2028 for the end of a line inside of a paragraph, or a picture.
struct RichRun {
    QString text;
    CharacterLook look;
    int picture = -1; // in RichText::pictures
};

struct RichParagraph {
    ParagraphLook look;
    CharacterLook endLook; // of its end: how high an empty one is
    std::vector<RichRun> runs;
    std::vector<QString> anchors; // places that links lead to
};

struct RichTable;
using RichBlock = std::variant<RichParagraph, std::unique_ptr<RichTable>>;

struct CellBorder {
    bool drawn = false;
    int width = 15;
    std::optional<QRgb> color = {};
};

enum class Side { Top, Left, Bottom, Right };
enum class CellMerge { None, First, Following };
enum class CellPlace { Top, Middle, Bottom };

struct CellLook {
    int end = 0; // right edge, from the margin of the page
    CellMerge across = CellMerge::None;
    CellMerge down = CellMerge::None;
    CellPlace place = CellPlace::Top;
    std::optional<int> gap = {}; // its own instead of the row's
    std::optional<QRgb> background = {};
    std::array<CellBorder, 4> borders = {}; // by Side
};

struct RowLook {
    int left = 0;
    int gap = 60; // between a cell's edge and its text
    TextSide side = TextSide::Left;
    std::vector<CellLook> cells;
};

using RichCell = std::vector<RichBlock>;

struct RichRow {
    RowLook look; // as many cells as the row has
    std::vector<RichCell> cells;
};

struct RichTable {
    std::vector<RichRow> rows;
};

enum class PictureKind { Png, Jpeg };

struct RichPicture {
    PictureKind kind = PictureKind::Png;
    QByteArray bytes;
    int width = 0; // 0: the picture's own
    int height = 0;
};

struct RichText {
    std::vector<RichFont> fonts;
    std::vector<QString> links; // as they stand in the text
    std::vector<RichPicture> pictures;
    std::vector<RichBlock> blocks;
    int defaultTab = 720;
};

} // namespace tabrova
