// Where the lesson viewer's parts stand, in pixels of 15 twips.
#include "organisers/lessons/lesson_layout.h"

#include <gtest/gtest.h>

namespace tabrova {
namespace {

constexpr LessonPlaces Before = {QRect(1, 2, 3, 4), 77, QRect()};

struct SizeRow {
    QSize inner;
    QSize lesson; // 1780 twips narrower and 360 lower, to the nearest pixel
};

TEST(LessonLayout, LeavesACornerBesideAndBelowTheLesson) {
    const SizeRow rows[] = {{{1000, 700}, {881, 676}},
                            {{900, 620}, {781, 596}},
                            {{134, 67}, {15, 43}},
                            {{301, 100}, {182, 76}},
                            {{4000, 3000}, {3881, 2976}}};
    for (const SizeRow& row : rows)
        EXPECT_EQ(lessonPlaces(row.inner, Before).txtLesson, QRect(QPoint(0, 0), row.lesson))
            << row.inner.width();
}

TEST(LessonLayout, LeavesTheLessonAsItWasInAWindowOfUpTo2000By1000Twips) {
    for (const QSize inner : {QSize(133, 700), QSize(1000, 66), QSize(1, 1)})
        EXPECT_EQ(lessonPlaces(inner, Before).txtLesson, Before.txtLesson) << inner.width();
}

TEST(LessonLayout, MovesTheTitleWithTheEdgeOfAWindowWiderThan8000Twips) {
    EXPECT_EQ(lessonPlaces({533, 500}, Before).columnLeft, 77);
    EXPECT_EQ(lessonPlaces({534, 500}, Before).columnLeft, 534 - 118);
    EXPECT_EQ(lessonPlaces({1000, 20}, Before).columnLeft, 1000 - 118);
}

TEST(LessonLayout, PutsTheStatusBarAlongTheLowerEdge) {
    EXPECT_EQ(lessonPlaces({900, 620}, Before).statusBar, QRect(0, 596, 900, 24));
    EXPECT_EQ(lessonPlaces({90, 62}, Before).statusBar, QRect(0, 38, 90, 24));
}

TEST(LessonLayout, PutsTheSelectorOnTheStatusBar) {
    const LessonPlaces places = lessonPlaces({900, 620}, Before);
    EXPECT_EQ(selectorPlace(places, {340, 300}), QRect(0, 296, 340, 300));
    EXPECT_EQ(selectorPlace(places, {340, 700}), QRect(0, -104, 340, 700));
}

} // namespace
} // namespace tabrova
