#include "shell/icons/icon_drawing.h"

#include <QTransform>

#include <charconv>
#include <cmath>
#include <vector>

namespace tabrova {

namespace {

constexpr double lineUnits = 1.6;

// One point of a path, and whether a line across (y) or up and down (x) ends there.
struct Node {
    double x = 0;
    double y = 0;
    bool snapX = false;
    bool snapY = false;
};

class PartReader {
  public:
    PartReader(const IconPart& part, const IconGrid& grid)
        : text_(part.text), grid_(grid), centred_(part.stroke != Stroke::Fill) {}

    QPainterPath read() {
        while (skipSpace())
            command(take());
        flush();
        return path_;
    }

  private:
    bool skipSpace() {
        while (!text_.empty() && text_.front() == ' ')
            text_.remove_prefix(1);
        return !text_.empty();
    }

    char take() {
        const char letter = text_.front();
        text_.remove_prefix(1);
        return letter;
    }

    double number() {
        double value = 0;
        skipSpace();
        const auto result = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        Q_ASSERT(result.ec == std::errc{});
        text_.remove_prefix(static_cast<size_t>(result.ptr - text_.data()));
        return value;
    }

    Node point() {
        const double x = number();
        return {x, number()};
    }

    void command(char letter) {
        switch (letter) {
        case 'M':
            flush();
            nodes_ = {point()};
            break;
        case 'L':
            lineTo(point());
            break;
        case 'H':
            lineTo({number(), nodes_.back().y});
            break;
        case 'V':
            lineTo({nodes_.back().x, number()});
            break;
        case 'Q':
            curveTo(2);
            break;
        case 'C':
            curveTo(3);
            break;
        case 'Z':
            close();
            break;
        case 'O':
            oval();
            break;
        case 'A':
            anchor(point());
            break;
        default:
            Q_ASSERT(!"a letter of an icon's drawing");
        }
    }

    void lineTo(Node to) {
        join(nodes_.back(), to);
        nodes_.push_back(to);
        steps_.push_back(1);
    }

    void curveTo(int points) {
        for (int index = 0; index < points; ++index)
            nodes_.push_back(point());
        steps_.push_back(points);
    }

    void close() {
        join(nodes_.back(), nodes_.front());
        flush();
        path_.closeSubpath();
    }

    static void join(Node& from, Node& to) {
        if (from.y == to.y) from.snapY = to.snapY = true;
        if (from.x == to.x) from.snapX = to.snapX = true;
    }

    void oval() {
        flush();
        const Node centre = point();
        const Node axes = point();
        QPainterPath outline;
        outline.addEllipse(QPointF(), axes.x * grid_.scale, axes.y * grid_.scale);
        QTransform turn;
        turn.translate(centre.x * grid_.scale + moved_.x(), centre.y * grid_.scale + moved_.y());
        turn.rotate(number());
        path_.addPath(turn.map(outline));
    }

    void anchor(const Node& at) {
        moved_ = {snapped(at.x * grid_.scale, true) - at.x * grid_.scale,
                  snapped(at.y * grid_.scale, true) - at.y * grid_.scale};
    }

    // A line's middle stands on the middle of a pixel or between two, an edge of a filled shape between two.
    double snapped(double pixel, bool centred) const {
        return centred && grid_.oddLine ? std::floor(pixel) + 0.5 : std::round(pixel);
    }

    QPointF placed(const Node& node) const {
        const double x = node.x * grid_.scale;
        const double y = node.y * grid_.scale;
        return {node.snapX ? snapped(x, centred_) : x + moved_.x(),
                node.snapY ? snapped(y, centred_) : y + moved_.y()};
    }

    // Adds the points read since the last beginning.
    void flush() {
        if (nodes_.empty()) return;
        path_.moveTo(placed(nodes_.front()));
        size_t next = 1;
        for (const int points : steps_) {
            const auto at = [&](size_t index) { return placed(nodes_[next + index]); };
            if (points == 1) path_.lineTo(at(0));
            if (points == 2) path_.quadTo(at(0), at(1));
            if (points == 3) path_.cubicTo(at(0), at(1), at(2));
            next += static_cast<size_t>(points);
        }
        nodes_.clear();
        steps_.clear();
    }

    std::string_view text_;
    const IconGrid& grid_;
    bool centred_;
    QPointF moved_;
    std::vector<Node> nodes_;
    // How many of the nodes each line or curve takes.
    std::vector<int> steps_;
    QPainterPath path_;
};

} // namespace

// Below two pixels a line keeps its exact width, because rounding would make it much thinner or much thicker:
// it is one full pixel with a faint edge on either side.
IconGrid::IconGrid(double pixelsPerUnit) : scale(pixelsPerUnit), lineWidth(lineUnits * pixelsPerUnit) {
    if (lineWidth < 1.75) return;
    lineWidth = std::round(lineWidth);
    oddLine = static_cast<int>(lineWidth) % 2 == 1;
}

QPainterPath iconPath(const IconPart& part, const IconGrid& grid) { return PartReader(part, grid).read(); }

} // namespace tabrova
