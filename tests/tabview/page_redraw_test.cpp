// A redraw tells of no more than where page and strip came out different, and never of less.
#include "tabview/tab_view.h"

#include "tests/tabview/page_helpers.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace tabrova {
namespace {

class PageRedraw : public ::testing::TestWithParam<int> {
  protected:
    PageRedraw() {
        testing::makePage(document, 2, 4, 1000, 600);
        view.setScale(GetParam());
        view.picDocument.resize(1000, 600);
        view.picStandardNotation.resize(1000, StripHeight);
        redraw();
    }
    // What it told.
    Rect redraw() {
        view.startRedraw();
        view.drawStaves(document);
        view.drawStripBackground();
        view.DrawNotationAndRhythm(document);
        view.endRedraw();
        toldOfStrip = view.picStandardNotation.takeChanged();
        return view.picDocument.takeChanged();
    }
    // A redraw after a change; every pixel that differs must lie in what it tells.
    template <class Change>
    Rect redrawAfter(Change change) {
        const QImage before = page();
        const QImage stripBefore = strip();
        change();
        const Rect told = redraw();
        expectAllDifferencesIn(told, before, page());
        expectAllDifferencesIn(toldOfStrip, stripBefore, strip());
        return told;
    }
    void expectAllDifferencesIn(const Rect& told, const QImage& before, const QImage& now) {
        ASSERT_EQ(now.size(), before.size());
        const int scale = GetParam();
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width(); ++x) {
                if (now.pixel(x, y) == before.pixel(x, y)) continue;
                ASSERT_TRUE(x / scale >= told.left && x / scale < told.right() && y / scale >= told.top &&
                            y / scale < told.bottom())
                    << x << ", " << y << ": " << told.left << " " << told.top << " " << told.width << " "
                    << told.height;
            }
    }
    QImage page() const { return std::as_const(view).picDocument.image().copy(); }

    QImage strip() const { return std::as_const(view).picStandardNotation.image().copy(); }

    Document document;
    TabView view;
    Rect toldOfStrip;
    std::mt19937 random{7};
};

TEST_P(PageRedraw, TellsNothingWhenNothingIsDifferent) {
    EXPECT_EQ(redraw(), Rect());
    EXPECT_EQ(toldOfStrip, Rect());
    testing::fillAtRandom(document, random, 20);
    redraw();
    EXPECT_EQ(redraw(), Rect());
    EXPECT_EQ(toldOfStrip, Rect());
}

TEST_P(PageRedraw, TellsTheStripsPartOfOneNote) {
    document.setNote(8, 2, "7");
    redraw();
    EXPECT_GT(toldOfStrip.width, 0);
    EXPECT_LT(toldOfStrip.width, 400);
}

TEST_P(PageRedraw, OneThatStartsAgainTellsAllSinceItsFirstStart) {
    const QImage before = page();
    document.setNote(40, 2, "7");
    view.startRedraw();
    view.drawStaves(document);
    EXPECT_GT(redraw().width, 0);
    EXPECT_NE(page(), before);
    EXPECT_EQ(redraw(), Rect());
}

TEST_P(PageRedraw, TellsTheNeighbourhoodOfOneNote) {
    const Rect told = redrawAfter([this] { document.setNote(40, 2, "7"); });
    EXPECT_GT(told.width, 0);
    EXPECT_LE(told.width, 48);
    EXPECT_LE(told.height, 48);
}

TEST_P(PageRedraw, ATypedCellIsToldAtOnceAndAgainWhereTheRedrawDrawsItOtherwise) {
    const QImage before = page();
    view.copyToPage({{500, 300, 9, 7}, {331, 1, 9, 7}});
    EXPECT_EQ(view.picDocument.takeChanged(), (Rect{500, 300, 9, 7}));
    const Rect told = redrawAfter([] {});
    EXPECT_EQ(page(), before);
    EXPECT_LE(told.left, 500);
    EXPECT_GE(told.right(), 509);
    EXPECT_LE(told.width, 32);
}

TEST_P(PageRedraw, WhatWasNotTakenBeforeStaysTold) {
    view.copyToPage({{500, 300, 9, 7}, {331, 1, 9, 7}});
    document.setNote(0, 0, "7");
    const Rect told = redraw();
    EXPECT_LE(told.left, 24);
    EXPECT_GE(told.right(), 509);
    EXPECT_GE(told.bottom(), 307);
}

TEST_P(PageRedraw, DrawingOverADrawnPageIsTold) {
    document.setNote(1, 0, "5");
    view.DrawNotationAndRhythm(document);
    EXPECT_GT(view.picDocument.takeChanged().width, 0);
}

TEST_P(PageRedraw, APageOfAnotherSizeOrPaperIsToldWhole) {
    view.picDocument.resize(900, 500);
    EXPECT_EQ(redraw(), (Rect{0, 0, 900, 500}));
    view.picDocument.setBackground(0xFFFFFFFF);
    EXPECT_EQ(redraw(), (Rect{0, 0, 900, 500}));
    EXPECT_EQ(redraw(), Rect());
}

TEST_P(PageRedraw, NeverTellsLessThanWhatItsPixelsTell) {
    const auto choose = [this](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int step = 0; step < 60; ++step)
        redrawAfter([&] {
            const int column = choose(document.ColumnCapacity - 1);
            const int row = choose(document.RowCapacity - 1);
            switch (choose(6)) {
            case 0:
                testing::fillAtRandom(document, random, choose(10));
                break;
            case 1:
                document.CurrentTrack = static_cast<std::int16_t>(1 + choose(1));
                break;
            case 2:
                document.setBarMark(column,
                                    std::array{"", ".", "r", "r3"}[static_cast<std::size_t>(choose(3))]);
                break;
            case 3:
                document.setTechnique(column, row, testing::TechniqueCodes[choose(28)]);
                break;
            case 4:
                document.CurrentStaff = static_cast<std::int16_t>(1 + choose(3));
                break;
            case 5:
                view.copyToPage({{choose(1000), choose(600), 9, 7}, {331, 1, 9, 7}});
                break;
            default:
                document.setNote(column, row, std::to_string(choose(25)));
            }
        });
}

INSTANTIATE_TEST_SUITE_P(AtScale, PageRedraw, ::testing::Values(1, 2));

} // namespace
} // namespace tabrova
