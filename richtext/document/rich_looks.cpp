#include "richtext/document/rich_looks.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr QRgb LinkColor = 0xFF0B57C2;

QFont::StyleHint styleHint(FontKind kind) {
    switch (kind) {
    case FontKind::Roman:
        return QFont::Serif;
    case FontKind::Swiss:
        return QFont::SansSerif;
    case FontKind::Modern:
        return QFont::TypeWriter;
    case FontKind::Script:
        return QFont::Cursive;
    case FontKind::Decorative:
        return QFont::Decorative;
    case FontKind::Any:
        break;
    }
    return QFont::AnyStyle;
}

QTextCharFormat::UnderlineStyle underlineStyle(UnderlineLook look) {
    switch (look) {
    case UnderlineLook::Single:
        return QTextCharFormat::SingleUnderline;
    case UnderlineLook::Dashed:
        return QTextCharFormat::DashUnderline;
    case UnderlineLook::Dotted:
        return QTextCharFormat::DotLine;
    case UnderlineLook::Wavy:
        return QTextCharFormat::WaveUnderline;
    case UnderlineLook::None:
        break;
    }
    return QTextCharFormat::NoUnderline;
}

void setFont(QTextCharFormat& format, const CharacterLook& look, const RichText& text) {
    if (look.font >= 0 && static_cast<std::size_t>(look.font) < text.fonts.size()) {
        const RichFont& font = text.fonts[static_cast<std::size_t>(look.font)];
        if (!font.name.isEmpty()) format.setFontFamilies({font.name});
        format.setFontStyleHint(styleHint(font.kind));
        format.setFontFixedPitch(font.kind == FontKind::Modern);
    }
    format.setFontPointSize(look.halfPoints / 2.0);
    if (look.bold) format.setFontWeight(QFont::Bold);
    if (look.italic) format.setFontItalic(true);
    if (look.strikeOut) format.setFontStrikeOut(true);
    if (look.capitals == Capitals::All) format.setFontCapitalization(QFont::AllUppercase);
    if (look.capitals == Capitals::Small) format.setFontCapitalization(QFont::SmallCaps);
}

// In percent of the font's height.
void setPlace(QTextCharFormat& format, const CharacterLook& look) {
    if (look.script == ScriptPlace::Above) format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (look.script == ScriptPlace::Below) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (look.raised != 0) format.setBaselineOffset(100.0 * look.raised / look.halfPoints);
}

// A link looks like one even if its author has given it no look.
void setLink(QTextCharFormat& format, const CharacterLook& look, const RichText& text) {
    if (look.link < 0 || static_cast<std::size_t>(look.link) >= text.links.size()) return;
    const QString& address = text.links[static_cast<std::size_t>(look.link)];
    format.setAnchor(true);
    format.setAnchorHref(address);
    format.setToolTip(address.toHtmlEscaped());
    if (!look.color) format.setForeground(QColor::fromRgb(LinkColor));
    if (look.underline == UnderlineLook::None) format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
}

Qt::Alignment alignment(TextSide side) {
    switch (side) {
    case TextSide::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case TextSide::Middle:
        return Qt::AlignHCenter;
    case TextSide::Both:
        return Qt::AlignJustify;
    case TextSide::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignAbsolute;
}

QTextOption::TabType tabType(TabSide side) {
    switch (side) {
    case TabSide::Right:
        return QTextOption::RightTab;
    case TabSide::Middle:
        return QTextOption::CenterTab;
    case TabSide::Point:
        return QTextOption::DelimiterTab;
    case TabSide::Left:
        break;
    }
    return QTextOption::LeftTab;
}

// The author's stops, one at the left edge if the first line hangs out of it, and behind the last of them
// those that every text has. The toolkit counts stops from where the first line begins.
QList<QTextOption::Tab> tabStops(const ParagraphLook& look, const RichScale& scale) {
    constexpr int PageWidth = 14400; // twips
    std::vector<TabStop> stops = look.tabs;
    int last = std::max(0, look.firstLine < 0 ? look.left : 0);
    if (look.firstLine < 0) stops.push_back({look.left, TabSide::Left});
    for (const TabStop& stop : look.tabs)
        last = std::max(last, stop.place);
    const int step = scale.text.defaultTab;
    for (int place = (last / step + 1) * step; place < PageWidth; place += step)
        stops.push_back({place, TabSide::Left});
    std::stable_sort(stops.begin(), stops.end(),
                     [](const TabStop& a, const TabStop& b) { return a.place < b.place; });
    const int begin = look.left + look.firstLine;
    QList<QTextOption::Tab> tabs;
    for (const TabStop& stop : stops)
        if (stop.place > begin)
            tabs.append(QTextOption::Tab(scale.pixels(stop.place - begin), tabType(stop.side), '.'));
    return tabs;
}

void setLineHeight(QTextBlockFormat& format, const ParagraphLook& look, const RichScale& scale) {
    constexpr double OneLine = 240;
    const qreal height = scale.pixels(look.line);
    switch (look.spacing) {
    case LineSpacing::AtLeast:
        return format.setLineHeight(height, QTextBlockFormat::MinimumHeight);
    case LineSpacing::Exactly:
        return format.setLineHeight(height, QTextBlockFormat::FixedHeight);
    case LineSpacing::Times:
        return format.setLineHeight(100 * look.line / OneLine, QTextBlockFormat::ProportionalHeight);
    case LineSpacing::Auto:
        break;
    }
}

} // namespace

QTextCharFormat characterFormat(const CharacterLook& look, const RichScale& scale) {
    QTextCharFormat format;
    setFont(format, look, scale.text);
    setPlace(format, look);
    if (look.color) format.setForeground(QColor::fromRgb(*look.color));
    if (look.background) format.setBackground(QColor::fromRgb(*look.background));
    setLink(format, look, scale.text);
    if (look.underline != UnderlineLook::None) format.setUnderlineStyle(underlineStyle(look.underline));
    return format;
}

QTextBlockFormat paragraphFormat(const ParagraphLook& look, bool hasTabs, const RichScale& scale) {
    QTextBlockFormat format;
    format.setAlignment(alignment(look.side));
    if (look.rightToLeft) format.setLayoutDirection(Qt::RightToLeft);
    format.setLeftMargin(scale.pixels(std::max(0, look.left)));
    format.setRightMargin(scale.pixels(std::max(0, look.right)));
    // A line that would begin left of the page begins at its edge.
    format.setTextIndent(scale.pixels(std::max(look.firstLine, -std::max(0, look.left))));
    format.setTopMargin(scale.pixels(look.above));
    format.setBottomMargin(scale.pixels(look.below));
    setLineHeight(format, look, scale);
    if (look.background) format.setBackground(QColor::fromRgb(*look.background));
    if (hasTabs) format.setTabPositions(tabStops(look, scale));
    return format;
}

} // namespace tabrova
