// Charts and tablature of the tools stand on white paper with black ink in every theme, since the colors of
// their marks and captions are fixed.
#pragma once

#include <QPainter>
#include <QWidget>

namespace tabrova {

constexpr QRgb ChartPaper = 0xFFFFFFFF;
constexpr QRgb ChartInk = 0xFF202020;
constexpr QRgb ChartFaintInk = 0xFF8A8A8A;

// Gives the widget, and what lies on it, the colors of paper.
void makePaper(QWidget& widget);

// A rectangle moved onto whole pixels of the screen, at least one of them thick.
void fillSharp(QPainter& painter, const QRectF& place, QRgb color);

// The sheet with its rounded edge.
void paintPaper(QPainter& painter, const QRect& place);

} // namespace tabrova
