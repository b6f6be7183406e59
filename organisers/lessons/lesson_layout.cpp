#include "organisers/lessons/lesson_layout.h"

namespace tabrova {

namespace {

constexpr int LeastHeight = 1000; // twips
constexpr int LeastWidth = 2000;
constexpr int BelowLesson = 360;
constexpr int BesideLesson = 1780;
constexpr int ColumnFollowsFrom = 8000;

int toPixels(int twips) { return (twips + TwipsPerPixel / 2) / TwipsPerPixel; }

} // namespace

LessonPlaces lessonPlaces(QSize inner, const LessonPlaces& before) {
    const int width = inner.width() * TwipsPerPixel;
    const int height = inner.height() * TwipsPerPixel;
    LessonPlaces places = before;
    if (height > LeastHeight && width > LeastWidth)
        places.txtLesson = QRect(0, 0, toPixels(width - BesideLesson), toPixels(height - BelowLesson));
    if (width > ColumnFollowsFrom) places.columnLeft = inner.width() - LessonColumnWidth;
    places.statusBar = QRect(0, inner.height() - LessonStatusBarHeight, inner.width(), LessonStatusBarHeight);
    return places;
}

QRect selectorPlace(const LessonPlaces& places, QSize panel) {
    return {QPoint(0, places.statusBar.top() - panel.height()), panel};
}

} // namespace tabrova
