// The zoom: places, pictures, mouse and keys at each of its steps.
#include "editing/panel_placement.h"
#include "shell/note_selector.h"
#include "shell/panel_zoom.h"
#include "tests/shell/main_window.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <map>

namespace tabrova {
namespace {

class Zooming : public testing::MainWindowTest, public ::testing::WithParamInterface<int> {
  protected:
    Zooming() {
        load();
        window->resizeClient(1600, 848);
    }
    QWidget& at(const char* name) { return *window->findChild<QWidget*>(name); }
    const WindowLayout& layout() { return window->commands().views.layout(); }
    int zoom() { return window->commands().views.zoom(); }
    void choose(int percent) {
        window->commands().views.setZoom(percent);
        QApplication::processEvents();
    }
    // Where a logical place of the page lies on the widget, in the middle of that pixel.
    QPoint onPage(int x, int y) {
        return {static_cast<int>((x + 0.5) * zoom() / 100), static_cast<int>((y + 0.5) * zoom() / 100)};
    }
    void fill() {
        for (int staff = 1; staff < 8; ++staff)
            window->editor().AppendStaff();
        for (int column = 0; column < 256; column += 3) {
            window->document().setNote(column, column % 6, std::to_string(column % 30).c_str());
            if (column % 2 == 0) window->document().setTechnique(column, column % 6, "v");
            if (column % 8 == 0) window->document().setBarMark(column, ".");
        }
        window->editor().refreshdrawing();
    }
};

TEST_P(Zooming, TheMouseFindsTheCellUnderIt) {
    fill();
    choose(GetParam());
    Document& document = window->document();
    for (int staff = 1; staff <= document.VisibleStaves; ++staff)
        for (int column = 0; column < 32; column += 5)
            for (int string = 0; string < 6; ++string) {
                const int x = column * document.ColumnWidth + CursorLeft + 6;
                const int y = SlotHeight * (staff - 1) + CursorTop + StringSpacing * string;
                QTest::mouseClick(&at("picDocument"), Qt::LeftButton, {}, onPage(x, y));
                EXPECT_EQ(document.CurrentStaff, staff);
                EXPECT_EQ(document.ColumnInStaff, column);
                EXPECT_EQ(document.CurrentString, string);
            }
}

TEST_P(Zooming, ThePlacesAreThoseOfAHundredPercentLarger) {
    fill();
    window->menu().action("mnuVirtualFretboard")->trigger();
    choose(GetParam());
    const double factor = GetParam() / 100.0;
    const auto expectAt = [&](const char* name, const Rect& place) {
        const QRect seen = at(name).geometry();
        EXPECT_NEAR(seen.x(), place.left * factor, 1.0) << name;
        EXPECT_NEAR(seen.y(), 24 + (place.top - 24) * factor, 1.0) << name;
        EXPECT_NEAR(seen.width(), place.width * factor, 1.0) << name;
        EXPECT_NEAR(seen.height(), place.height * factor, 1.0) << name;
    };
    expectAt("picDocument", layout().picDocument);
    expectAt("picStandardNotation", layout().picStandardNotation);
    expectAt("VScroll1", layout().VScroll1);
    expectAt("picFretboard", layout().picFretboard);
    EXPECT_EQ(at("StatusBar1").geometry(), QRect(0, 848 - 24, 1600, 24));
    EXPECT_EQ(at("Toolbar1").geometry(), QRect(0, 0, 1600, 24));
    EXPECT_EQ(at("picBend").size(), (QSizeF(170, 62) * factor).toSize());
    EXPECT_EQ(at("picRepeat").size(), (QSizeF(170, 62) * factor).toSize());
    EXPECT_EQ(at("picNoteSelector").size(), (QSizeF(228, 82) * factor).toSize());
    trigger("mnuChoose");
    EXPECT_EQ(at("picTrackChooser").geometry().bottom() + 1, 848 - 16);
    EXPECT_NEAR(at("picTrackChooser").width(), 260 * factor, 1.0);
}

// The page at one hundred percent and two pixels a point, drawn plainly and brought to the zoom's size.
TEST_P(Zooming, ThePictureIsTheUnzoomedOneAtItsSize) {
    fill();
    choose(GetParam());
    const Surface& surface = window->view().picDocument;
    EXPECT_EQ(surface.scale(), GetParam() == 100 ? 1 : 2);
    TabView plain;
    plain.setScale(surface.scale());
    plain.picDocument.setBackground(surface.background());
    plain.picDocument.resize(surface.width(), surface.height());
    plain.picDocument.Cls();
    const Document& shown = window->document();
    plain.drawStaves(shown);
    plain.DrawNotationAndRhythm(shown);
    EXPECT_EQ(plain.picDocument.image(), surface.image());
    // Every image pixel of a whole scale is one pixel of the screen; otherwise one is the mean of what it
    // covers.
    window->editor().cursor().objects.nCursor.left = 5000;
    window->editor().cursor().objects.vLine1Visible = false;
    const QImage seen = at("picDocument").grab().toImage().convertToFormat(QImage::Format_RGB32);
    const double step = surface.scale() * 100.0 / GetParam();
    const QImage& drawn = plain.picDocument.image();
    int wrong = 0;
    for (int y = 1; y < seen.height() - 2; y += 3)
        for (int x = 1; x < seen.width() - 2; x += 3) {
            double sum = 0;
            for (int sy = static_cast<int>(y * step); sy < (y + 1) * step; ++sy)
                for (int sx = static_cast<int>(x * step); sx < (x + 1) * step; ++sx) {
                    const double width = std::min(sx + 1.0, (x + 1) * step) - std::max<double>(sx, x * step);
                    const double height = std::min(sy + 1.0, (y + 1) * step) - std::max<double>(sy, y * step);
                    sum += qGreen(drawn.pixel(sx, sy)) * width * height;
                }
            wrong += std::abs(qGreen(seen.pixel(x, y)) - sum / (step * step)) > 2.0;
        }
    EXPECT_EQ(wrong, 0);
}

TEST_P(Zooming, TheSmallPanelsOpenWhereTheyDoUnzoomed) {
    choose(GetParam());
    window->editor().goTo(1, 3);
    const Rect cursor = window->editor().page().nCursor;
    QTest::keyClick(&at("picDocument"), Qt::Key_B);
    QWidget& bend = at("picBend");
    ASSERT_TRUE(bend.isVisible());
    const double factor = GetParam() / 100.0;
    const Rect place = placeBesideCursor(cursor, layout().picDocument, {0, 0, 170, 62});
    EXPECT_NEAR(bend.x(), place.left * factor, 1.0);
    EXPECT_NEAR(bend.y(), 24 + (place.top - 24) * factor, 1.0);
    choose(GetParam() == 200 ? 100 : 200);
    EXPECT_NEAR(bend.x(), place.left * zoom() / 100.0, 1.0) << "it stays beside the cursor";
    EXPECT_NEAR(bend.y(), 24 + (place.top - 24) * zoom() / 100.0, 1.0);
    choose(GetParam());
    QTest::keyClick(&bend, Qt::Key_Right);
    EXPECT_NEAR(at("BendCursor").x(), 28 * factor, 1.0);
    QTest::keyClick(&bend, Qt::Key_Return);
    EXPECT_FALSE(bend.isVisible());
}

TEST_P(Zooming, TheFretPaletteTakesTheFretUnderTheMouse) {
    choose(GetParam());
    const double factor = GetParam() / 100.0;
    for (const auto& [x, y, fret] :
         {std::tuple{10, 25, "0"}, {90, 25, "4"}, {70, 45, "13"}, {190, 65, "29"}}) {
        QTest::mouseClick(&at("picDocument"), Qt::RightButton, {}, onPage(60, 60));
        auto& palette = dynamic_cast<NoteSelector&>(at("picNoteSelector"));
        ASSERT_TRUE(palette.isVisible());
        const QPoint place(static_cast<int>(x * factor), static_cast<int>(y * factor));
        QMouseEvent move(QEvent::MouseMove, place, palette.mapToGlobal(place), Qt::NoButton, {}, {});
        QApplication::sendEvent(&palette, &move);
        QTest::mouseClick(&palette, Qt::LeftButton, {}, place);
        Document& document = window->document();
        const CellPlace cell = window->editor().cursor().cell();
        EXPECT_EQ(document.note(cell.column, cell.row), fret);
    }
}

TEST_P(Zooming, NoTextIsCutInAnyLanguage) {
    choose(GetParam());
    trigger("mnuChoose");
    int texts = 0;
    for (const auto& language : std::filesystem::directory_iterator(folder() / "languages")) {
        std::filesystem::copy_file(language.path() / "lang.trl", folder() / "lang.trl",
                                   std::filesystem::copy_options::overwrite_existing);
        window->commands().language.LoadLanguage();
        QApplication::processEvents();
        for (const char* panel : {"picBend", "picRepeat", "picNoteSelector", "picTrackChooser"})
            for (const QLabel* label : at(panel).findChildren<QLabel*>()) {
                if (label->text().isEmpty()) continue;
                EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
                    << language.path().filename() << " " << panel << " " << label->text().toStdString();
                EXPECT_LE(label->fontMetrics().height(), label->height() + 1) << panel;
                ++texts;
            }
        for (const QPushButton* button : at("picTrackChooser").findChildren<QPushButton*>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
    }
    EXPECT_GE(texts, 7 * 6);
}

INSTANTIATE_TEST_SUITE_P(Steps, Zooming, ::testing::ValuesIn(ZoomSteps));

class ZoomCommands : public Zooming {};

TEST_F(ZoomCommands, MenuKeysAndWheelChangeIt) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    trigger("mnuZoomIn");
    EXPECT_EQ(zoom(), 125);
    trigger("mnuZoom(3)");
    EXPECT_EQ(zoom(), 200);
    EXPECT_TRUE(window->menu().isChecked("mnuZoom(3)"));
    trigger("mnuZoom(3)");
    EXPECT_TRUE(window->menu().isChecked("mnuZoom(3)")) << "chosen again it stays";
    trigger("mnuZoomOut");
    EXPECT_EQ(zoom(), 150);
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 100);
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 125);
    QTest::keyClick(window.get(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 150);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 125);
    const auto turn = [this](int angle, Qt::KeyboardModifiers held) {
        QWheelEvent event({50, 50}, at("picDocument").mapToGlobal(QPointF(50, 50)), {}, {0, angle},
                          Qt::NoButton, held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&at("picDocument"), &event);
    };
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 150);
    turn(-60, Qt::ControlModifier);
    turn(-60, {});
    EXPECT_EQ(zoom(), 150) << "half a notch of each is none of either";
    turn(-60, Qt::ControlModifier);
    turn(-60, Qt::ControlModifier);
    EXPECT_EQ(zoom(), 125);
    EXPECT_EQ(services.settings.GetSetting("Options", "Zoom", ""), "125");
}

TEST_F(ZoomCommands, TheNextRunHasTheSameZoom) {
    choose(150);
    window.reset();
    load();
    EXPECT_EQ(zoom(), 150);
    EXPECT_EQ(at("picDocument").y(), 24 + 270);
    EXPECT_TRUE(window->menu().isChecked("mnuZoom(2)"));
}

TEST_F(ZoomCommands, TheRulersTicksStandOverTheColumns) {
    for (const int percent : ZoomSteps) {
        choose(percent);
        const QImage seen = window->clientArea()->grab().toImage();
        for (const RulerTick& tick : window->view().ruler()) {
            if (!tick.onBeat) continue;
            const QPoint place(static_cast<int>(std::lround(tick.x * percent / 100.0)),
                               24 + static_cast<int>(std::lround(172 * percent / 100.0)));
            EXPECT_EQ(seen.pixelColor(place), QColor(Qt::black)) << percent << " " << tick.x;
        }
    }
}

TEST_F(ZoomCommands, TheRulersTicksAreOfOneWidth) {
    const std::map<int, int> widths = {{100, 1}, {125, 1}, {150, 2}, {200, 2}};
    for (const int percent : ZoomSteps) {
        choose(percent);
        const QImage seen = window->clientArea()->grab().toImage();
        const int y = 24 + static_cast<int>(std::lround(172 * percent / 100.0));
        for (const RulerTick& tick : window->view().ruler()) {
            const int x = static_cast<int>(std::lround(tick.x * percent / 100.0));
            int width = 0;
            while (seen.pixelColor(x + width, y) == seen.pixelColor(x, y))
                ++width;
            EXPECT_EQ(width, widths.at(percent)) << percent << " " << tick.x;
        }
    }
}

TEST_F(ZoomCommands, TheRulersGroundIsLightInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Dark, QColor(0x10, 0x10, 0x10));
    window->setPalette(dark);
    const QImage seen = window->clientArea()->grab().toImage();
    EXPECT_GT(seen.pixelColor(300, 200).lightness(), 190);
    int ticks = 0;
    for (const RulerTick& tick : window->view().ruler()) {
        EXPECT_LT(seen.pixelColor(tick.x, 196).lightness(), 140);
        EXPECT_EQ(seen.pixelColor(tick.whiteX, 196), QColor(Qt::white));
        ++ticks;
    }
    EXPECT_GT(ticks, 30);
}

TEST_F(ZoomCommands, TheTitleOfTheStripLiesOverItsLine) {
    auto& title = at("lblNotationTitle");
    window->editor().goTo(1, 1);
    const int x = window->editor().page().NoteLine.x1;
    const QRect place = title.geometry();
    ASSERT_TRUE(x > place.left() && x < place.right());
    const QImage seen = at("picStandardNotation").grab().toImage();
    EXPECT_EQ(seen.pixelColor(x, place.top()), QColor(Qt::white));
    EXPECT_NE(seen.pixelColor(x, place.bottom() + 4), QColor(Qt::white));
}

TEST(ZoomedFonts, KeepTheirUnit) {
    QFont pixels;
    pixels.setPixelSize(12);
    EXPECT_EQ(zoomedFont(pixels, 150).pixelSize(), 18);
    QFont points;
    points.setPointSizeF(10);
    EXPECT_DOUBLE_EQ(zoomedFont(points, 125).pointSizeF(), 12.5);
}

} // namespace
} // namespace tabrova
