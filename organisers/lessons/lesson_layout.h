// Where the lesson viewer's parts stand in its window. Twips are 15 to a pixel.
#pragma once

#include <QRect>

namespace tabrova {

constexpr int TwipsPerPixel = 15;

struct LessonPlaces {
    QRect txtLesson;
    int columnLeft; // of the title and the logo, beside the lesson
    QRect statusBar;
};

constexpr int LessonStatusBarHeight = 24;
constexpr int LessonColumnWidth = 118; // pixels that the lesson leaves, less than one of them cut off

// At a size that leaves no room the lesson stays as it was; so does the column in a narrow window.
LessonPlaces lessonPlaces(QSize inner, const LessonPlaces& before);

// The panel with the list: its lower edge on the upper one of the status bar.
QRect selectorPlace(const LessonPlaces& places, QSize panel);

} // namespace tabrova
