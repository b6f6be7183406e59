#include "shell/icons/toolbar_icons.h"

#include "shell/icons/icon_drawing.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace tabrova {

namespace {

// Readable on light and on dark grounds.
constexpr QRgb accentColor = 0xffd4610f;

struct IconColors {
    QColor theme;
    QColor accent;
};

QColor mixed(const QColor& color, const QColor& ground, double share) {
    const auto channel = [&](int upper, int lower) { return qRound(lower + (upper - lower) * share); };
    return QColor(channel(color.red(), ground.red()), channel(color.green(), ground.green()),
                  channel(color.blue(), ground.blue()));
}

// The disabled group's ink, where it is between the ground and the normal ink. Some themes have none of their
// own, or one that cannot be told from the ground: then it is worked out.
QColor disabledInk(const QPalette& palette, const QColor& normal) {
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor ink = palette.color(QPalette::Disabled, QPalette::ButtonText);
    // The parts of an icon overlap, so that no ink may be transparent.
    const QColor opaque = mixed(ink, ground, ink.alphaF());
    const double full = qGray(normal.rgb()) - qGray(ground.rgb());
    const double share = (qGray(opaque.rgb()) - qGray(ground.rgb())) / (full == 0 ? 1 : full);
    return share < 0.2 || share > 0.8 ? mixed(normal, ground, 0.4) : opaque;
}

IconColors colorsFor(QIcon::Mode mode) {
    const QPalette palette = QApplication::palette();
    const QColor normal = palette.color(QPalette::Active, QPalette::ButtonText);
    if (mode == QIcon::Disabled) {
        const QColor disabled = disabledInk(palette, normal);
        return {disabled, disabled};
    }
    if (mode == QIcon::Selected) {
        const QColor onHighlight = palette.color(QPalette::Active, QPalette::HighlightedText);
        return {onHighlight, onHighlight};
    }
    return {normal, QColor(accentColor)};
}

void paintPart(QPainter& painter, const IconPart& part, const IconGrid& grid, const QColor& color) {
    const QPainterPath path = iconPath(part, grid);
    if (part.stroke != Stroke::Line) painter.fillPath(path, color);
    if (part.stroke != Stroke::Fill)
        painter.strokePath(path, QPen(color, grid.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

class ToolbarIconEngine : public QIconEngine {
  public:
    explicit ToolbarIconEngine(const IconDrawing& drawing) : drawing_(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const int side = std::min(rect.width(), rect.height());
        const double pixels = std::abs(painter->deviceTransform().m11());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(1 / pixels, 1 / pixels);
        const IconGrid grid(side * pixels / iconUnits);
        const IconColors colors = colorsFor(mode);
        for (const IconPart& part : drawing_.parts)
            if (!part.text.empty())
                paintPart(*painter, part, grid, part.ink == Ink::Accent ? colors.accent : colors.theme);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QString key() const override { return "toolbar"; }
    QIconEngine* clone() const override { return new ToolbarIconEngine(drawing_); }

  private:
    const IconDrawing& drawing_;
};

} // namespace

QIcon toolbarIcon(const QString& word) {
    const std::string key = word.toStdString();
    for (const auto& drawings : {documentIcons(), techniqueIcons(), noteIcons()}) {
        const auto found = std::ranges::find(drawings, std::string_view(key), &IconDrawing::word);
        if (found != drawings.end()) return QIcon(new ToolbarIconEngine(*found));
    }
    return {};
}

} // namespace tabrova
