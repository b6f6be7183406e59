// The small panels by themselves: where their parts stand, what their keys do, and what they tell.
#include "core/document/document_operations.h"
#include "shell/bend_panel.h"
#include "shell/repeat_panel.h"
#include "shell/status_bar.h"
#include "shell/toolbar.h"
#include "shell/track_chooser.h"
#include "tests/forms/described_layout.h"
#include "tests/tabview/plain_blitter.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace tabrova {
namespace {

using testing::described;
using testing::margins;
using testing::text;

template <class Control = QWidget>
Control& in(const QWidget& panel, const char* name) {
    return *panel.findChild<Control*>(name);
}

class Bends : public ::testing::Test {
  protected:
    Bends() {
        panel.chosen = [this](int code) { codes.push_back(code); };
        panel.show();
        panel.setFocus();
    }
    QRect cell() { return in(panel, "BendCursor").geometry(); }
    void press(Qt::Key key) { QTest::keyClick(&panel, key); }

    std::vector<int> codes;
    BendPanel panel{nullptr};
};

TEST_F(Bends, StandOnAGridOfSixByTwo) {
    EXPECT_EQ(panel.size(), QSize(170, 62));
    EXPECT_EQ(panel.minimumSize(), panel.maximumSize());
    EXPECT_EQ(panel.frameShape(), QFrame::StyledPanel);
    EXPECT_TRUE(panel.autoFillBackground());
    EXPECT_EQ(panel.focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(in(panel, "Label1").geometry(), QRect(1, 1, 168, 14));
    EXPECT_EQ(in(panel, "Image2").geometry(), QRect(1, 16, 168, 28));
    EXPECT_EQ(in(panel, "Label2").geometry(), QRect(4, 45, 164, 15));
    for (const char* label : {"Label1", "Image2", "Label2"})
        EXPECT_EQ(in(panel, label).font().pixelSize(), 11) << label;
    EXPECT_EQ(cell(), QRect(0, 16, 28, 14));
    EXPECT_TRUE(BendPanel(nullptr).isHidden());
}

TEST_F(Bends, TheArrowsStopAtTheEnds) {
    for (const int left : {28, 56, 84, 112, 140, 140}) {
        press(Qt::Key_Right);
        EXPECT_EQ(cell(), QRect(left, 16, 28, 14));
    }
    press(Qt::Key_Down);
    EXPECT_EQ(cell(), QRect(140, 30, 28, 14));
    press(Qt::Key_Down);
    EXPECT_EQ(cell(), QRect(140, 30, 28, 14));
    for (const int left : {112, 84, 56, 28, 0, 0}) {
        press(Qt::Key_Left);
        EXPECT_EQ(cell(), QRect(left, 30, 28, 14));
    }
    press(Qt::Key_Up);
    EXPECT_EQ(cell(), QRect(0, 16, 28, 14));
    press(Qt::Key_5);
    EXPECT_EQ(cell(), QRect(0, 16, 28, 14));
    EXPECT_TRUE(codes.empty());
}

TEST_F(Bends, EnterChoosesTheCodeOfTheCell) {
    for (const Qt::Key row : {Qt::Key_Up, Qt::Key_Down}) {
        press(row);
        for (int column = 0; column < 6; ++column) {
            press(column % 2 ? Qt::Key_Return : Qt::Key_Enter);
            press(Qt::Key_Right);
        }
        for (int column = 0; column < 6; ++column)
            press(Qt::Key_Left);
    }
    EXPECT_EQ(codes,
              (std::vector<int>{1200, 1201, 1202, 1203, 1204, 1205, 1206, 1207, 1208, 1209, 1210, 1211}));
}

TEST_F(Bends, EachCellShowsItsArrowAndItsSteps) {
    in(panel, "BendCursor").hide();
    const QImage seen = panel.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QImage expected(170, 62, QImage::Format_RGB32);
    expected.fill(panel.palette().color(QPalette::Window));
    QPainter painter(&expected);
    QFont small = panel.font();
    small.setPixelSize(11);
    painter.setFont(small);
    painter.setPen(panel.palette().color(QPalette::WindowText));
    const char* const steps[] = {"½", "1", "1½", "2", "2½", "3"};
    for (int column = 0; column < 6; ++column) {
        const QString step = QString::fromUtf8(steps[column]);
        painter.drawText(QRect(28 * column, 16, 28, 14), Qt::AlignCenter, QString::fromUtf8("↓") + step);
        painter.drawText(QRect(28 * column, 30, 28, 14), Qt::AlignCenter, QString::fromUtf8("↑") + step);
    }
    painter.end();
    const QRect inside(3, 16, 164, 28); // of the panel's frame
    EXPECT_TRUE(testing::sameImage(seen.copy(inside), expected.copy(inside), "bends"));
}

TEST_F(Bends, AClickOnALabelGivesThePanelTheKeyboardBack) {
    panel.activateWindow();
    for (const char* label : {"Label1", "Image2", "Label2"}) {
        panel.clearFocus();
        QTest::mouseClick(&in(panel, label), Qt::LeftButton);
        EXPECT_EQ(panel.focusWidget(), &panel) << label;
    }
}

TEST_F(Bends, TheHighlightIsATintedCellInABorderOfTwo) {
    const QRect place = cell();
    const QColor color = panel.palette().color(QPalette::Highlight);
    QImage expected(place.size(), QImage::Format_RGB32);
    expected.fill(panel.palette().color(QPalette::Window));
    {
        QPainter painter(&expected);
        QColor tint = color;
        tint.setAlpha(40);
        painter.fillRect(0, 0, 28, 14, tint);
        painter.fillRect(0, 0, 28, 2, color);
        painter.fillRect(0, 12, 28, 2, color);
        painter.fillRect(0, 0, 2, 14, color);
        painter.fillRect(26, 0, 2, 14, color);
    }
    {
        // Two corners are the toolkit's own: its pen does not reach them.
        QPainter painter(&expected);
        QColor tint = color;
        tint.setAlpha(40);
        for (const int y : {0, 13}) {
            painter.fillRect(0, y, 1, 1, panel.palette().color(QPalette::Window));
            painter.fillRect(0, y, 1, 1, tint);
        }
    }
    QWidget& shape = in(panel, "BendCursor");
    QImage seen(place.size(), QImage::Format_RGB32);
    seen.fill(panel.palette().color(QPalette::Window));
    shape.render(&seen, {}, {}, QWidget::RenderFlags());
    EXPECT_TRUE(testing::sameImage(seen, expected, "highlight"));
}

class Repeats : public ::testing::Test {
  protected:
    Repeats() {
        panel.chosen = [this](int value) { values.push_back(value); };
        panel.show();
    }
    void press(Qt::Key key) { QTest::keyClick(&panel.scroller(), key); }
    QString shown() { return in<QLabel>(panel, "lblRepeatTimes").text(); }

    std::vector<int> values;
    RepeatPanel panel{nullptr};
};

TEST_F(Repeats, StandInTheirPlaces) {
    EXPECT_EQ(panel.size(), QSize(170, 62));
    EXPECT_EQ(panel.minimumSize(), panel.maximumSize());
    EXPECT_EQ(panel.frameShape(), QFrame::StyledPanel);
    EXPECT_TRUE(panel.autoFillBackground());
    EXPECT_EQ(in(panel, "lblToolTip2(0)").geometry(), QRect(1, 2, 130, 15));
    EXPECT_EQ(in(panel, "lblRepeatTimes").geometry(), QRect(132, 2, 28, 15));
    EXPECT_EQ(in(panel, "lblToolTip2(1)").geometry(), QRect(4, 43, 164, 15));
    EXPECT_EQ(panel.scroller().geometry(), QRect(6, 22, 158, 16));
    EXPECT_EQ(in<QLabel>(panel, "lblRepeatTimes").alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    for (const char* label : {"lblToolTip2(0)", "lblRepeatTimes", "lblToolTip2(1)"})
        EXPECT_EQ(in(panel, label).font().pixelSize(), 11) << label;
    EXPECT_EQ(panel.scroller().focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(RepeatPanel(nullptr).isHidden());
}

TEST_F(Repeats, AreOneTo15ByTheArrowsAndShown) {
    EXPECT_EQ(shown(), "1");
    EXPECT_EQ(panel.scroller().minimum(), 1);
    EXPECT_EQ(panel.scroller().maximum(), 15);
    for (int value = 2; value <= 16; ++value) {
        press(value % 2 ? Qt::Key_Right : Qt::Key_Down);
        EXPECT_EQ(shown(), QString::number(std::min(value, 15)));
    }
    for (int value = 14; value >= 0; --value) {
        press(value % 2 ? Qt::Key_Left : Qt::Key_Up);
        EXPECT_EQ(shown(), QString::number(std::max(value, 1)));
    }
    press(Qt::Key_End);
    EXPECT_EQ(shown(), "15");
    EXPECT_TRUE(values.empty());
}

TEST_F(Repeats, EnterChoosesTheNumber) {
    press(Qt::Key_Return);
    press(Qt::Key_Right);
    press(Qt::Key_Enter);
    EXPECT_EQ(values, (std::vector<int>{1, 2}));
}

TEST(StatusPanels, TakeTheRoomOfTheirTextsAndLeaveTheThirdTheRest) {
    StatusBar bar(nullptr);
    const auto& row = *qobject_cast<QHBoxLayout*>(bar.layout());
    EXPECT_EQ(margins(row).toStdString(), "8 7 8 0");
    EXPECT_EQ(row.spacing(), 16);
    EXPECT_EQ(text(described(row)),
              "StatusBar1(1) stretch 0\nStatusBar1(2) stretch 0\nStatusBar1(3) stretch 1\n");
    EXPECT_TRUE(bar.autoFillBackground());
    for (const char* name : {"StatusBar1(1)", "StatusBar1(2)", "StatusBar1(3)"}) {
        const auto& panel = in<QLabel>(bar, name);
        EXPECT_EQ(panel.textFormat(), Qt::PlainText);
        EXPECT_EQ(panel.cursor().shape(), Qt::PointingHandCursor);
        EXPECT_EQ(panel.minimumSizeHint().width(), 0);
        EXPECT_EQ(panel.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
        EXPECT_EQ(panel.focusPolicy(), Qt::TabFocus);
    }
}

TEST(StatusPanels, AClickBetweenThemCountsForTheOneBeforeIt) {
    StatusBar bar(nullptr);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(5, 5)); // nobody listens
    int track = 0, options = 0, place = 0;
    bar.trackPanelClicked = [&track] { ++track; };
    bar.optionsPanelClicked = [&options] { ++options; };
    bar.placePanelClicked = [&place] { ++place; };
    bar.setTrackPanel("Untitled Track selected");
    in<QLabel>(bar, "StatusBar1(2)").setText("Click here for the options");
    bar.resize(700, 24);
    bar.show();
    const int second = in(bar, "StatusBar1(2)").x(), third = in(bar, "StatusBar1(3)").x();
    ASSERT_EQ(second, 8 + in(bar, "StatusBar1(1)").sizeHint().width() + 16);
    ASSERT_EQ(third, second + in(bar, "StatusBar1(2)").sizeHint().width() + 16);
    for (const int x : {0, second - 1})
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(x, 12));
    EXPECT_EQ(track, 2);
    for (const int x : {second, third - 1})
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(x, 12));
    EXPECT_EQ(options, 2);
    for (const int x : {third, 699})
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(x, 12));
    EXPECT_EQ(place, 2);
    EXPECT_EQ(track, 2);
}

TEST(StatusPanels, ShowAsMuchAsThereIsRoomForAndAreWeakerWhenDisabled) {
    StatusBar bar(nullptr);
    bar.resize(500, 24);
    bar.show();
    const QString long_ = QString("A track of a long name ").repeated(12);
    bar.setTrackPanel(long_);
    EXPECT_EQ(bar.trackPanel(), long_);
    for (const bool enabled : {true, false}) {
        bar.setEnabled(enabled);
        auto& panel = in<QLabel>(bar, "StatusBar1(1)");
        QImage expected(panel.size(), QImage::Format_RGB32);
        expected.fill(panel.palette().color(QPalette::Window));
        QPainter painter(&expected);
        painter.setFont(panel.font());
        painter.setPen(
            panel.palette().color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        painter.drawText(expected.rect(), Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(panel.font()).elidedText(long_, Qt::ElideRight, panel.width()));
        painter.end();
        const QImage seen = panel.grab().toImage().convertToFormat(QImage::Format_RGB32);
        EXPECT_TRUE(testing::sameImage(seen, expected, "status_panel"));
    }
}

class Tracks : public ::testing::Test {
  protected:
    Tracks() {
        resetToNewDocument(document);
        document.TrackNames = {"one", "two", "three"};
        panel.chosen = [this](int row) { rows.push_back(row); };
        panel.addTrack = [this] { ++added; };
        panel.closed = [this] { ++closed; };
        panel.showTracks(document);
    }
    ListBox& list() { return in<ListBox>(panel, "TrackNames"); }
    QStringList names() {
        QStringList all;
        for (int row = 0; row < list().count(); ++row)
            all.append(list().item(row)->text());
        return all;
    }

    Document document;
    std::vector<int> rows;
    int added = 0, closed = 0;
    TrackChooser panel{nullptr};
};

TEST_F(Tracks, StandInTheirPlaces) {
    const auto& column = *qobject_cast<QVBoxLayout*>(panel.layout());
    EXPECT_EQ(margins(column).toStdString(), "6 4 6 6");
    EXPECT_EQ(column.spacing(), 4);
    EXPECT_EQ(text(described(column)), "lblToolTip2(2) stretch 0\nTrackNames stretch 1\nlayout stretch 0\n");
    const auto& buttons = *qobject_cast<QHBoxLayout*>(column.itemAt(2)->layout());
    EXPECT_EQ(text(described(buttons)), "AddTrack stretch 0\nspace 0 stretch 0\nCommand1 stretch 0\n");
    EXPECT_TRUE(buttons.itemAt(1)->expandingDirections() & Qt::Horizontal);
    EXPECT_EQ(panel.frameShape(), QFrame::StyledPanel);
    EXPECT_TRUE(panel.autoFillBackground());
    EXPECT_TRUE(panel.isHidden());
    EXPECT_EQ(in<QLabel>(panel, "lblToolTip2(2)").buddy(), &list());
}

TEST_F(Tracks, AreThoseOfTheDocument) {
    EXPECT_EQ(names(), QStringList({"one", "two", "three"}));
    document.TrackNames = {"two", "caf\xE9"};
    panel.showTracks(document);
    EXPECT_EQ(names(), QStringList({"two", "café"}));
    document.TrackNames = {"two", "x", "y", "z"};
    panel.showTracks(document);
    EXPECT_EQ(names(), QStringList({"two", "x", "y", "z"}));
    document.TrackNames.clear();
    panel.showTracks(document);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(Tracks, ShowTheSelectedRowAndNoneForARowThatIsNotThere) {
    for (const auto& [row, shown] : {std::pair{0, 0}, {2, 2}, {3, -1}, {1, 1}, {-1, -1}, {-2, -1}}) {
        panel.showSelected(row);
        EXPECT_EQ(list().currentRow(), shown) << row;
    }
    EXPECT_TRUE(rows.empty());
}

TEST_F(Tracks, TheSelectedRowIsScrolledTo) {
    document.TrackNames.assign(200, "track");
    panel.showTracks(document);
    panel.resize(200, 150);
    panel.open();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.focusWidget(), &list());
    panel.showSelected(150);
    EXPECT_TRUE(list().viewport()->rect().intersects(list().visualItemRect(list().item(150))));
}

TEST_F(Tracks, TellAClickAndTheirButtons) {
    panel.resize(200, 200);
    panel.open();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(list().item(1)).center());
    EXPECT_EQ(rows, std::vector<int>{1});
    QTest::mouseClick(&in(panel, "AddTrack"), Qt::LeftButton);
    EXPECT_EQ(added, 1);
    EXPECT_EQ(closed, 0);
    QTest::mouseClick(&in(panel, "Command1"), Qt::LeftButton);
    EXPECT_EQ(closed, 1);
    QTest::keyClick(&panel, Qt::Key_Escape);
    EXPECT_EQ(closed, 2);
    QTest::keyClick(&panel, Qt::Key_F2);
    EXPECT_EQ(closed, 2);
}

class Buttons : public ::testing::Test {
  protected:
    Buttons() {
        bar.pressed = [this](const QString& word) { words.append(word); };
        bar.available = [](const QString& word) { return word != "print"; };
    }
    QToolButton& button(const QString& word) {
        return in<QToolButton>(bar, ("Toolbar1(" + word + ")").toUtf8());
    }

    QStringList words;
    Toolbar bar{nullptr};
};

TEST_F(Buttons, StandInARowOfSquares) {
    const auto& row = *qobject_cast<QHBoxLayout*>(bar.layout());
    EXPECT_EQ(margins(row).toStdString(), "4 1 4 1");
    EXPECT_EQ(row.spacing(), 1);
    ASSERT_EQ(row.count(), 36);
    EXPECT_NE(row.itemAt(35)->spacerItem(), nullptr);
    for (int place = 0; place < 35; ++place) {
        const QWidget& widget = *row.itemAt(place)->widget();
        const bool separator = place == 6 || place == 11 || place == 28;
        EXPECT_EQ(widget.minimumSize(), separator ? QSize(7, 18) : QSize(22, 22)) << place;
        EXPECT_EQ(widget.maximumSize(), widget.minimumSize()) << place;
        EXPECT_EQ(widget.isHidden(), place == 4) << place;
        if (separator) {
            EXPECT_EQ(qobject_cast<const QFrame*>(&widget)->frameShape(), QFrame::VLine);
            EXPECT_EQ(qobject_cast<const QFrame*>(&widget)->frameShadow(), QFrame::Sunken);
            continue;
        }
        const auto& each = *qobject_cast<const QToolButton*>(&widget);
        EXPECT_EQ(each.iconSize(), QSize(18, 18));
        EXPECT_TRUE(each.autoRaise());
        EXPECT_EQ(each.focusPolicy(), Qt::NoFocus);
        EXPECT_FALSE(each.icon().isNull());
    }
    EXPECT_EQ(button("new").property("key").toString(), "Ctrl+N");
    EXPECT_EQ(button("wholenote").property("key").toString(), "");
}

TEST_F(Buttons, TellTheirWord) {
    for (const char* word : {"new", "bend", "sixteenthnote"})
        QTest::mouseClick(&button(word), Qt::LeftButton);
    EXPECT_EQ(words, QStringList({"new", "bend", "sixteenthnote"}));
}

TEST_F(Buttons, AllButStopAreSwitchedAsFarAsTheyAreAvailable) {
    bar.setAllButStopEnabled(false);
    for (const QToolButton* each : bar.findChildren<QToolButton*>())
        EXPECT_EQ(each->isEnabled(), each->objectName() == "Toolbar1(stop)")
            << each->objectName().toStdString();
    button("stop").setEnabled(false);
    bar.setAllButStopEnabled(true);
    for (const QToolButton* each : bar.findChildren<QToolButton*>()) {
        const bool off = each->objectName() == "Toolbar1(stop)" || each->objectName() == "Toolbar1(print)";
        EXPECT_EQ(each->isEnabled(), !off) << each->objectName().toStdString();
    }
}

TEST_F(Buttons, OfTechniquesFollowTheTrackAndNoOthers) {
    const QStringList techniques = {"bend", "hammer",   "slide", "vibrato",  "whammy",
                                    "dive", "harmonic", "fade",  "tap",      "slap",
                                    "pop",  "ring",     "dead",  "staccato", "jump"};
    bar.UpdateTechniqueButtons(false);
    for (const QToolButton* each : bar.findChildren<QToolButton*>()) {
        const QString word = each->objectName().mid(9).chopped(1);
        EXPECT_EQ(each->isEnabled(), !techniques.contains(word)) << word.toStdString();
    }
    bar.setAllButStopEnabled(false);
    bar.UpdateTechniqueButtons(true);
    for (const QToolButton* each : bar.findChildren<QToolButton*>()) {
        const QString word = each->objectName().mid(9).chopped(1);
        EXPECT_EQ(each->isEnabled(), techniques.contains(word) || word == "ghostnote" || word == "stop")
            << word.toStdString();
    }
}

} // namespace
} // namespace tabrova
