#include "richtext/document/rich_text_document.h"

#include "richtext/document/rich_formats.h"
#include "richtext/document/rich_picture.h"
#include "richtext/document/rich_table.h"

#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int MostColumns = 64;
constexpr int MostPlaces = 12'000; // of a table: its rows by its columns
constexpr QRgb BorderInk = 0xFF000000;

QTextCharFormat::VerticalAlignment cellAlignment(CellPlace place) {
    switch (place) {
    case CellPlace::Middle:
        return QTextCharFormat::AlignMiddle;
    case CellPlace::Bottom:
        return QTextCharFormat::AlignBottom;
    case CellPlace::Top:
        break;
    }
    return QTextCharFormat::AlignTop;
}

class Builder {
  public:
    Builder(const RichText& text, QTextDocument& document, const RichPage& page)
        : scale_{text, page.pixelsPerInch}, pixelRatio_(page.pixelRatio), document_(document),
          cursor_(&document) {}

    void build() {
        cursor_.beginEditBlock();
        addBlocks(scale_.text.blocks);
        cursor_.endEditBlock();
    }

  private:
    // Into the empty block where the cursor stands and behind it.
    void addBlocks(const std::vector<RichBlock>& blocks);
    void addParagraph(const RichParagraph& paragraph);
    void addPicture(const RichRun& run);
    QString nameOf(int picture, QSize shown);
    // The space between the paragraph before and the table is the table's to keep.
    void addTable(const RichTable& table, int above);
    QTextTableFormat tableFormat(const RichTable& table, const TableGrid& grid) const;
    QTextTableCellFormat cellFormat(const CellLook& look, const RowLook& row) const;
    void setBorders(QTextTableCellFormat& format, const CellLook& look) const;
    void makeBlockFlat();

    RichScale scale_;
    qreal pixelRatio_;
    QTextDocument& document_;
    QTextCursor cursor_;
    RichPictures pictures_;
    RichFormats formats_{scale_};
};

void Builder::addBlocks(const std::vector<RichBlock>& blocks) {
    bool free = true; // the cursor's block
    int below = 0;    // the last paragraph, twips
    for (const RichBlock& block : blocks) {
        if (const auto* paragraph = std::get_if<RichParagraph>(&block)) {
            if (!free) cursor_.insertBlock(QTextBlockFormat(), QTextCharFormat());
            addParagraph(*paragraph);
            below = paragraph->look.below;
            free = false;
        } else {
            if (free) makeBlockFlat();
            addTable(*std::get<std::unique_ptr<RichTable>>(block), below);
            below = 0;
            free = true;
        }
    }
    if (free && !blocks.empty()) makeBlockFlat();
}

// The toolkit has a block before and behind every table: one that its author did not write takes no room.
void Builder::makeBlockFlat() {
    QTextBlockFormat format;
    format.setLineHeight(1, QTextBlockFormat::FixedHeight);
    QTextCharFormat small;
    small.setFontPointSize(1);
    cursor_.setBlockFormat(format);
    cursor_.mergeBlockCharFormat(small);
}

void Builder::addParagraph(const RichParagraph& paragraph) {
    const bool hasTabs = std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                                     [](const RichRun& run) { return run.text.contains('\t'); });
    cursor_.setBlockFormat(formats_.of(paragraph.look, hasTabs));
    const CharacterLook& look = paragraph.runs.empty() ? paragraph.endLook : paragraph.runs.front().look;
    QTextCharFormat format = formats_.of(look);
    if (!paragraph.anchors.empty()) {
        format.setAnchor(true);
        format.setAnchorNames(QStringList(paragraph.anchors.begin(), paragraph.anchors.end()));
    }
    cursor_.mergeBlockCharFormat(format);
    for (const RichRun& run : paragraph.runs)
        run.picture < 0 ? cursor_.insertText(run.text, formats_.of(run.look)) : addPicture(run);
}

void Builder::addPicture(const RichRun& run) {
    const QSize shown =
        shownSize(scale_.text.pictures[static_cast<std::size_t>(run.picture)], scale_.pixelsPerInch);
    const QString name = shown.isEmpty() ? QString() : nameOf(run.picture, shown);
    if (name.isEmpty()) return;
    QTextImageFormat format;
    format.merge(formats_.of(run.look));
    format.setName(name);
    format.setWidth(shown.width());
    format.setHeight(shown.height());
    cursor_.insertImage(format);
}

// Under which the document keeps the picture; empty if it cannot be shown.
QString Builder::nameOf(int picture, QSize shown) {
    const QImage image =
        pictures_.decode(scale_.text.pictures[static_cast<std::size_t>(picture)], shown, pixelRatio_);
    if (image.isNull()) return {};
    const QString name = "picture:" + QString::number(picture);
    document_.addResource(QTextDocument::ImageResource, QUrl(name), image);
    return name;
}

QTextTableFormat Builder::tableFormat(const RichTable& table, const TableGrid& grid) const {
    const RowLook& first = table.rows.front().look;
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setLeftMargin(std::max(0.0, scale_.pixels(grid.edges.front())));
    if (first.side == TextSide::Middle) format.setAlignment(Qt::AlignHCenter);
    if (first.side == TextSide::Right) format.setAlignment(Qt::AlignRight);
    QList<QTextLength> widths;
    for (int column = 0; column < grid.columns(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        widths.append(
            QTextLength(QTextLength::FixedLength, scale_.pixels(grid.edges[at + 1] - grid.edges[at])));
    }
    format.setColumnWidthConstraints(widths);
    return format;
}

QTextTableCellFormat Builder::cellFormat(const CellLook& look, const RowLook& row) const {
    constexpr qreal Above = 2; // pixels
    QTextTableCellFormat format;
    if (look.background) format.setBackground(QColor::fromRgb(*look.background));
    format.setVerticalAlignment(cellAlignment(look.place));
    const qreal gap = std::max(Above, scale_.pixels(look.gap.value_or(row.gap)));
    format.setLeftPadding(gap);
    format.setRightPadding(gap);
    format.setTopPadding(Above);
    format.setBottomPadding(Above);
    setBorders(format, look);
    return format;
}

void Builder::setBorders(QTextTableCellFormat& format, const CellLook& look) const {
    struct SideProperties {
        Side side;
        QTextFormat::Property width, style, brush;
    };
    static constexpr SideProperties Sides[] = {
        {Side::Top, QTextFormat::TableCellTopBorder, QTextFormat::TableCellTopBorderStyle,
         QTextFormat::TableCellTopBorderBrush},
        {Side::Left, QTextFormat::TableCellLeftBorder, QTextFormat::TableCellLeftBorderStyle,
         QTextFormat::TableCellLeftBorderBrush},
        {Side::Bottom, QTextFormat::TableCellBottomBorder, QTextFormat::TableCellBottomBorderStyle,
         QTextFormat::TableCellBottomBorderBrush},
        {Side::Right, QTextFormat::TableCellRightBorder, QTextFormat::TableCellRightBorderStyle,
         QTextFormat::TableCellRightBorderBrush},
    };
    for (const SideProperties& row : Sides) {
        const CellBorder& border = look.borders[static_cast<std::size_t>(row.side)];
        if (!border.drawn) continue;
        format.setProperty(row.width, std::max(1.0, scale_.pixels(border.width)));
        format.setProperty(row.style, QTextFrameFormat::BorderStyle_Solid);
        format.setProperty(row.brush, QBrush(QColor::fromRgb(border.color.value_or(BorderInk))));
    }
}

void Builder::addTable(const RichTable& rich, int above) {
    const int rows = static_cast<int>(rich.rows.size());
    const TableGrid grid = tableGrid(rich, std::clamp(MostPlaces / rows, 1, MostColumns));
    QTextTableFormat look = tableFormat(rich, grid);
    look.setTopMargin(scale_.pixels(above));
    QTextTable* table = cursor_.insertTable(rows, grid.columns(), look);
    for (const PlacedCell& cell : grid.cells) {
        if (cell.rows > 1 || cell.columns > 1)
            table->mergeCells(cell.row, cell.column, cell.rows, cell.columns);
        QTextTableCell at = table->cellAt(cell.row, cell.column);
        cursor_ = at.firstCursorPosition();
        addBlocks(*cell.content);
        // The format of its first paragraph's end, and how many rows and columns it takes.
        QTextCharFormat format = at.format();
        format.clearBackground();
        format.merge(cellFormat(formats_.plainIfTooMany(*cell.look),
                                rich.rows[static_cast<std::size_t>(cell.row)].look));
        at.setFormat(format);
    }
    cursor_ = table->lastCursorPosition();
    cursor_.movePosition(QTextCursor::NextBlock);
}

} // namespace

std::unique_ptr<QTextDocument> richTextDocument(const RichText& text, const RichPage& page) {
    auto document = std::make_unique<ClosedDocument>();
    document->setUndoRedoEnabled(false);
    Builder(text, *document, page).build();
    return document;
}

} // namespace tabrova
