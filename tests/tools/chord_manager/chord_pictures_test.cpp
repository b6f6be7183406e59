// What the chord manager draws: the chart's places and pixels, the staff, the tablature and the strip.
#include "forms/paper.h"
#include "tests/tools/chord_manager/chord_window.h"
#include "tools/chord_manager/chord_diagram.h"
#include "tools/chord_manager/new_chord.h"

#include <QPainter>

namespace tabrova::testing {
namespace {

constexpr DiagramLayout Layout = {30, 20, 40, 50, 16};

QImage pictured(QWidget& widget, qreal scale) {
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    widget.render(&image);
    return image;
}

TEST(DiagramPlaces, StringsFretsAndMarks) {
    EXPECT_EQ(Layout.stringX(0), 40);
    EXPECT_EQ(Layout.stringX(5), 190);
    EXPECT_EQ(Layout.fretY(0), 50);
    EXPECT_EQ(Layout.fretY(6), 170);
    EXPECT_EQ(Layout.markPlace(0, 1), QRect(32, 52, 16, 16));
    EXPECT_EQ(Layout.markPlace(5, 6), QRect(182, 152, 16, 16));
    EXPECT_EQ(Layout.markPlace(0, 0), Layout.markPlace(0, SilentMark));
    EXPECT_LT(Layout.markPlace(2, 0).bottom(), 50);
    EXPECT_GT(Layout.markPlace(2, 0).top(), 0);
    EXPECT_TRUE(QRect(QPoint(), Layout.size()).contains(Layout.markPlace(5, 6)));
}

class Charts : public ChordWindow {
  protected:
    static constexpr ChordDiagram::MarkNames Names = {"a", "b", "c", "d", "e", "f"};
};

TEST_F(Charts, AMarkIsOfItsColorAndSeenOnlyWhereItIs) {
    ChordDiagram diagram(Layout, Names, SilentMark + 1, nullptr);
    ChordDisplay display;
    display.marks[1][3] = {true, MarkColor::Root};
    display.marks[2][2] = {true, MarkColor::Plain};
    display.marks[3][0] = {true, MarkColor::Plain};
    display.frets[5] = " ";
    diagram.showChord(display);
    const QImage image = pictured(diagram, 1);
    EXPECT_EQ(image.pixel(Layout.markPlace(1, 3).center()), 0xFFFF0000);
    EXPECT_EQ(image.pixel(Layout.markPlace(2, 2).center()), 0xFF549BF1);
    EXPECT_EQ(image.pixel(Layout.markPlace(3, 0).center()), 0xFFFFFFFF); // a ring
    EXPECT_NE(image.pixel(Layout.markPlace(3, 0).center() + QPoint(5, 0)), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(Layout.markPlace(4, 0).center()), 0xFFFFFFFF);
    EXPECT_NE(image.pixel(Layout.markPlace(4, 3).center()), 0xFF549BF1);
    EXPECT_LT(qGray(image.pixel(Layout.markPlace(5, 0).center())), 80); // the cross of a silent string
    display.frets[5] = "";
    diagram.showChord(display);
    EXPECT_EQ(pictured(diagram, 1).pixel(Layout.markPlace(5, 0).center()), 0xFFFFFFFF);
}

TEST_F(Charts, OneMarkAStringWhereItIsSilentACross) {
    ChordDiagram diagram(Layout, Names, SilentMark + 1, nullptr);
    diagram.showOneMark({SilentMark, 0, 1, 2, 3, 6});
    EXPECT_FALSE(diagram.findChild<QWidget*>("a(7)")->isHidden());
    EXPECT_TRUE(diagram.findChild<QWidget*>("a(0)")->isHidden());
    EXPECT_FALSE(diagram.findChild<QWidget*>("f(6)")->isHidden());
    EXPECT_TRUE(diagram.findChild<QWidget*>("f(7)")->isHidden());
    const QPoint middle = Layout.markPlace(0, SilentMark).center();
    const QImage image = pictured(diagram, 1);
    EXPECT_LT(qGray(image.pixel(middle)), 80);
    EXPECT_EQ(image.pixel(middle + QPoint(5, 0)), 0xFFFFFFFF);
}

TEST_F(Charts, TheNutIsThickAndTheLowestStringThickerThanTheHighest) {
    ChordDiagram diagram(Layout, Names, ChordFretMarks, nullptr);
    for (const int scale : {1, 2, 3}) {
        const QImage image = pictured(diagram, scale);
        const auto run = [&image](QPoint from, QPoint step) {
            int length = 0;
            for (QPoint at = from; qGray(image.pixel(at)) < 0x90; at += step)
                ++length;
            return length;
        };
        const QPoint nut(Layout.stringX(0) * scale + 15 * scale, Layout.fretY(0) * scale - 1);
        EXPECT_EQ(run(nut, {0, -1}), 5 * scale) << scale;
        const auto thickness = [&](std::size_t string) {
            const QPoint middle(Layout.stringX(string) * scale, (Layout.fretY(0) + 10) * scale);
            return run(middle, {1, 0}) + run(middle - QPoint(1, 0), {-1, 0});
        };
        EXPECT_EQ(thickness(0), 3 * scale) << scale;
        EXPECT_EQ(thickness(5), scale) << scale;
    }
}

TEST(SharpRectangles, CoverWholePixelsAtEveryScale) {
    for (const qreal scale : {1.0, 1.5, 2.0, 3.0}) {
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(0.3, 0.3);
            fillSharp(painter, QRectF(3.4, 2.7, 6, 0.2), ChartInk);
        }
        int inked = 0, between = 0;
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 40; ++x) {
                inked += image.pixel(x, y) == ChartInk;
                between += image.pixel(x, y) != ChartInk && image.pixel(x, y) != 0xFFFFFFFF;
            }
        EXPECT_EQ(between, 0) << scale;
        EXPECT_EQ(inked, qRound(6 * scale)) << scale; // one pixel high
    }
}

TEST_F(Charts, TheStaffShowsHeadsSignsAndALedgerLine) {
    open();
    const auto ink = [this](const char* mark) {
        const QWidget& widget = control(mark);
        const QImage image = pictured(*widget.parentWidget(), 1).copy(widget.geometry());
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark += qGray(image.pixel(x, y)) < 0x60;
        return dark;
    };
    const char* marks[] = {"mnA",  "mnAs", "mnB", "mnC",  "mnCs", "mnD",
                           "mnDs", "mnE",  "mnF", "mnFs", "mnG",  "mnGs"};
    for (const char* mark : marks) {
        const int before = ink(mark);
        control(mark).show();
        EXPECT_GT(ink(mark), before + 15) << mark;
        control(mark).hide();
    }
    const auto middle = [this](const char* mark) { return control(mark).geometry().center().y(); };
    for (const auto& [lower, higher] : {std::pair("mnC", "mnD"),
                                        {"mnD", "mnE"},
                                        {"mnE", "mnF"},
                                        {"mnF", "mnG"},
                                        {"mnG", "mnA"},
                                        {"mnA", "mnB"}})
        EXPECT_NEAR(middle(lower) - middle(higher), 4.5, 1.1) << lower;
    EXPECT_GT(control("mnC").width(), control("mnD").width());
    for (const auto& [sign, head] :
         {std::pair("mnCs", "mnC"), {"mnDs", "mnD"}, {"mnFs", "mnF"}, {"mnGs", "mnG"}, {"mnAs", "mnA"}}) {
        EXPECT_NEAR(middle(sign), middle(head), 1) << sign;
        EXPECT_LT(control(sign).geometry().right(), control(head).geometry().left() + 6) << sign;
    }
}

// Neighbours on the staff would cover each other in one column.
TEST_F(Charts, NoHeadCoversAnother) {
    open();
    const char* heads[] = {"mnC", "mnD", "mnE", "mnF", "mnG", "mnA", "mnB"};
    const char* signs[] = {"mnCs", "mnDs", "mnFs", "mnGs", "mnAs"};
    for (const auto& row : {std::vector<const char*>(std::begin(heads) + 1, std::end(heads)),
                            std::vector<const char*>(std::begin(signs), std::end(signs))})
        for (const char* one : row)
            for (const char* other : row)
                if (one != other) {
                    const QRect both = control(one).geometry() & control(other).geometry();
                    EXPECT_LE(both.width() * both.height(), 2 * 16) << one << " " << other;
                }
}

TEST_F(Charts, TheFretsStandOnTheLinesOfTheTablature) {
    open();
    click("lstKeys", "C");
    int last = -1;
    for (std::size_t string = ChordStrings; string-- > 0;) {
        const QRect place = control(ChordStringTable[string].fretText).geometry();
        if (last >= 0) {
            EXPECT_EQ(place.center().y() - last, 14);
        }
        last = place.center().y();
    }
    const QWidget& staff = *control("tbE").parentWidget();
    const QRect highest = control("tbE").geometry();
    const QImage image = pictured(const_cast<QWidget&>(staff), 1);
    EXPECT_NE(image.pixel(highest.left() - 3, highest.center().y()), 0xFFFFFFFF);
    EXPECT_EQ(image.pixel(highest.left() + 3, highest.center().y()), 0xFFFFFFFF);
}

} // namespace
} // namespace tabrova::testing
