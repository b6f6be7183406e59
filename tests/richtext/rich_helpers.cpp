#include "tests/richtext/rich_helpers.h"

#include "richtext/state/rtf_reader.h"

namespace tabrova::tests {

namespace {

// Adds "name=value" or "name" if the two differ.
struct Differences {
    std::string text;

    void add(bool differs, const std::string& what) {
        if (differs) text += (text.empty() ? "" : " ") + what;
    }
    void add(const char* name, int value, int usual) {
        add(value != usual, std::string(name) + "=" + std::to_string(value));
    }
    void add(const char* name, std::optional<QRgb> color) {
        if (color)
            add(true,
                name + ("=" + QString::number(*color & 0xFFFFFF, 16).rightJustified(6, '0')).toStdString());
    }
};

} // namespace

RichText readBody(std::string_view body) {
    return readRichText(std::string(Header) + std::string(body) + "}");
}

std::string shown(const RichParagraph& paragraph) {
    QString text;
    for (const RichRun& run : paragraph.runs)
        text += run.picture < 0 ? run.text : "<" + QString::number(run.picture) + ">";
    return text.replace('\t', '>').replace(QChar(0x2028), '^').toStdString();
}

std::string shown(const std::vector<RichBlock>& blocks) {
    std::string text;
    for (const RichBlock& block : blocks) {
        if (&block != &blocks.front()) text += "/";
        if (const auto* paragraph = std::get_if<RichParagraph>(&block)) {
            text += shown(*paragraph);
            continue;
        }
        const RichTable& table = *std::get<std::unique_ptr<RichTable>>(block);
        for (const RichRow& row : table.rows) {
            text += &row == &table.rows.front() ? "[" : ";";
            for (const RichCell& cell : row.cells)
                text += (&cell == &row.cells.front() ? "" : "|") + shown(cell);
        }
        text += "]";
    }
    return text;
}

std::string shown(const RichText& text) { return shown(text.blocks); }
std::string shownBody(std::string_view body) { return shown(readBody(body)); }

std::string described(const CharacterLook& look) {
    const CharacterLook usual;
    Differences all;
    all.add("font", look.font, 0);
    all.add("size", look.halfPoints, usual.halfPoints);
    all.add(look.bold, "bold");
    all.add(look.italic, "italic");
    all.add(look.strikeOut, "struck");
    all.add("underline", static_cast<int>(look.underline), 0);
    all.add("script", static_cast<int>(look.script), 0);
    all.add("capitals", static_cast<int>(look.capitals), 0);
    all.add("raised", look.raised, 0);
    all.add("color", look.color);
    all.add("back", look.background);
    all.add("link", look.link, -1);
    return all.text;
}

std::string described(const ParagraphLook& look) {
    Differences all;
    all.add("side", static_cast<int>(look.side), 0);
    all.add(look.rightToLeft, "rightToLeft");
    all.add("left", look.left, 0);
    all.add("right", look.right, 0);
    all.add("first", look.firstLine, 0);
    all.add("above", look.above, 0);
    all.add("below", look.below, 0);
    all.add("spacing", static_cast<int>(look.spacing), 0);
    all.add("line", look.line, 0);
    all.add("back", look.background);
    for (const TabStop& tab : look.tabs)
        all.add(true, "tab=" + std::to_string(tab.place) + "LRMP"[static_cast<int>(tab.side)]);
    return all.text;
}

std::string described(const CellBorder& border) {
    const CellBorder usual;
    Differences all;
    all.add(border.drawn, "drawn");
    all.add("width", border.width, usual.width);
    all.add("color", border.color);
    return all.text;
}

std::string described(const CellLook& look) {
    Differences all;
    all.add("across", static_cast<int>(look.across), 0);
    all.add("down", static_cast<int>(look.down), 0);
    all.add("place", static_cast<int>(look.place), 0);
    if (look.gap) all.add(true, "gap=" + std::to_string(*look.gap));
    all.add("back", look.background);
    for (std::size_t side = 0; side < look.borders.size(); ++side) {
        const std::string border = described(look.borders[side]);
        all.add(!border.empty(), std::string(1, "TLBR"[side]) + "(" + border + ")");
    }
    return all.text;
}

const RichParagraph& paragraphAt(const RichText& text, std::size_t at) {
    return std::get<RichParagraph>(text.blocks.at(at));
}

const RichTable& tableAt(const RichText& text, std::size_t at) {
    return *std::get<std::unique_ptr<RichTable>>(text.blocks.at(at));
}

const RichRun& runAt(const RichText& text, std::size_t at) { return paragraphAt(text, 0).runs.at(at); }

std::string characterLook(std::string_view words) {
    const RichText text = readBody(std::string(words) + " x");
    return text.blocks.empty() ? "nothing" : described(runAt(text, 0).look);
}

std::string paragraphLook(std::string_view words) {
    return described(paragraphAt(readBody(std::string(words) + " x\\par"), 0).look);
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int time = 0; time < times; ++time)
        all += text;
    return all;
}

} // namespace tabrova::tests
