// A clef is the track of a broad pen: points with the pen's width at each, joined by a smooth curve.
#include "clefs.h"

#include "sheet_canvas.h"

#include <array>
#include <cmath>
#include <span>

namespace sheet {

namespace {

constexpr double staffSpace = 6;
constexpr int stepsBetweenPoints = 16;

// In staff spaces, y downwards from the line that the clef names.
struct PenPoint {
    double x;
    double y;
    double width;
};

constexpr std::array<PenPoint, 21> trebleTrack{{
    {1.22, 0.42, 0.12},  {0.88, 0.05, 0.20},  {1.08, -0.48, 0.30}, {1.62, -0.62, 0.42}, {2.14, -0.05, 0.46},
    {1.98, 0.66, 0.34},  {1.38, 0.98, 0.22},  {0.62, 0.76, 0.34},  {0.24, 0.06, 0.46},  {0.36, -0.78, 0.46},
    {0.92, -1.68, 0.44}, {1.60, -2.46, 0.44}, {2.00, -3.30, 0.34}, {1.90, -4.12, 0.22}, {1.64, -4.44, 0.12},
    {1.16, -3.66, 0.34}, {1.18, -2.70, 0.20}, {1.66, 0.60, 0.18},  {1.78, 1.86, 0.20},  {1.46, 2.50, 0.20},
    {0.98, 2.56, 0.14},
}};

constexpr std::array<PenPoint, 8> bassTrack{{
    {0.26, 0.10, 0.20},
    {0.24, -0.56, 0.22},
    {0.88, -1.00, 0.24},
    {1.62, -0.78, 0.46},
    {1.86, -0.02, 0.56},
    {1.52, 1.06, 0.40},
    {0.86, 1.84, 0.22},
    {0.08, 2.36, 0.10},
}};

double smooth(double before, double from, double to, double after, double along) {
    const double linear = to - before;
    const double square = 2 * before - 5 * from + 4 * to - after;
    const double cube = 3 * (from - to) + after - before;
    return from + 0.5 * along * (linear + along * (square + along * cube));
}

std::vector<PenPoint> smoothTrack(std::span<const PenPoint> points) {
    std::vector<PenPoint> track;
    for (std::size_t index = 0; index + 1 < points.size(); ++index) {
        const PenPoint& from = points[index];
        const PenPoint& to = points[index + 1];
        const PenPoint& before = index == 0 ? from : points[index - 1];
        const PenPoint& after = index + 2 < points.size() ? points[index + 2] : to;
        for (int step = 0; step < stepsBetweenPoints; ++step) {
            const double along = static_cast<double>(step) / stepsBetweenPoints;
            track.push_back({smooth(before.x, from.x, to.x, after.x, along),
                             smooth(before.y, from.y, to.y, after.y, along),
                             smooth(before.width, from.width, to.width, after.width, along)});
        }
    }
    track.push_back(points.back());
    return track;
}

// Both edges of the pen's track as one closed outline.
QPainterPath outlineOf(std::span<const PenPoint> points) {
    const std::vector<PenPoint> track = smoothTrack(points);
    std::vector<QPointF> leftEdge;
    std::vector<QPointF> rightEdge;
    for (std::size_t index = 0; index < track.size(); ++index) {
        const PenPoint& before = track[index == 0 ? 0 : index - 1];
        const PenPoint& after = track[index + 1 < track.size() ? index + 1 : index];
        const QPointF along(after.x - before.x, after.y - before.y);
        const double length = std::hypot(along.x(), along.y());
        const QPointF across = QPointF(-along.y(), along.x()) / length * track[index].width / 2;
        const QPointF middle(track[index].x, track[index].y);
        leftEdge.push_back(middle + across);
        rightEdge.push_back(middle - across);
    }
    QPainterPath path(leftEdge.front());
    for (const QPointF& point : leftEdge)
        path.lineTo(point);
    for (auto point = rightEdge.rbegin(); point != rightEdge.rend(); ++point)
        path.lineTo(*point);
    path.closeSubpath();
    path.setFillRule(Qt::WindingFill);
    return path;
}

void drawDot(QPainter& painter, double x, double y, double radius) {
    painter.drawEllipse(QPointF(x, y), radius, radius);
}

void beginClef(QPainter& painter, const QPointF& place) {
    painter.translate(place);
    painter.scale(staffSpace, staffSpace);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
}

} // namespace

void drawTrebleClef(QPainter& painter, const QPointF& place) {
    painter.save();
    beginClef(painter, place);
    painter.drawPath(outlineOf(trebleTrack));
    drawDot(painter, 0.98, 2.24, 0.38);
    painter.restore();
}

void drawBassClef(QPainter& painter, const QPointF& place) {
    painter.save();
    beginClef(painter, place);
    painter.drawPath(outlineOf(bassTrack));
    drawDot(painter, 0.54, 0.02, 0.38);
    drawDot(painter, 2.46, -0.5, 0.22);
    drawDot(painter, 2.46, 0.5, 0.22);
    painter.restore();
}

} // namespace sheet
