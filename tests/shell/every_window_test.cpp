// What holds for every window of the program: the keys, the focus and its mark.
#include "tests/shell/every_window.h"

#include "forms/picture_button.h"
#include "forms/tab_order.h"

#include <QCheckBox>
#include <QImage>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>

namespace tabrova {
namespace {

class EveryWindow : public testing::EveryWindowTest {
  protected:
    // Where the keyboard is at first: at the first control, or at what the window is for.
    QString firstFocusByItsOwnRule() const {
        constexpr std::pair<const char*, const char*> Rules[] = {
            {"frmFileProperties", "sldSpeed"}, // the speed is what is changed most
            {"frmAbout", "cmdOK"},             // nothing but to be read and closed
            {"frmAltSplash", "frmAltSplash"},  // nothing is highlighted at first
            {"frmChordWizard", "lstKeys"},     // the keys are chosen from, not the tabs above them
            {"frmBandManager", "mnuOption(0)"},
            {"frmTuningManager", "Combo1"},     // the presets below the picture to be sounded
            {"frmMetronome", "Command1"},       // Return starts and stops it
            {"frmDrumMachine", "cmdTrack0(0)"}, // the first step of the grid
            {"frmLessons", "lstLessons"},       // the selector that lies upon the lesson
            {"frmPercussion", "List1"},         // drums are written from the list
        };
        for (const auto& [form, control] : Rules)
            if (is(form)) return control;
        return nameOf(firstTabStop(*opened));
    }
    // One of each kind that looks and works alike, as the buttons of a grid do.
    static QList<QWidget*> oneOfEachKind(const QList<QWidget*>& stops) {
        QSet<QString> kinds;
        QList<QWidget*> chosen;
        for (QWidget* stop : stops) {
            const QString kind =
                stop->objectName().section('(', 0, 0) + " " + stop->metaObject()->className();
            if (kinds.contains(kind)) continue;
            kinds.insert(kind);
            chosen.append(stop);
        }
        return chosen;
    }
    static bool actsOnReturn(const QWidget* widget) {
        const bool box = qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget);
        return !box && qobject_cast<const QAbstractButton*>(widget);
    }
    QWidget* at(const QString& name) const { return opened->findChild<QWidget*>(name); }
};

TEST_F(EveryWindow, OpensWithTheKeyboardAtItsFirstControl) {
    forEachWindow([this] {
        EXPECT_EQ(nameOf(opened->focusWidget()).toStdString(), firstFocusByItsOwnRule().toStdString());
    });
}

TEST_F(EveryWindow, IsWalkedByTabThroughAllItsControlsAndBack) {
    forEachPage([this] {
        const QList<QWidget*> stops = walk();
        for (QWidget* widget : usable()) {
            if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) continue;
            if (qobject_cast<QRadioButton*>(widget)) continue;
            EXPECT_TRUE(stops.contains(widget)) << pathOf(*widget);
        }
        stops.first()->setFocus();
        QList<QWidget*> back = walk(Qt::Key_Backtab);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(back, stops);
    });
}

TEST_F(EveryWindow, IsWalkedByTabInReadingOrder) {
    forEachPage([this] {
        QWidget* first = firstTabStop(*opened);
        first->setFocus();
        const QList<QWidget*> stops = walk();
        for (qsizetype stop = 1; stop < stops.size(); ++stop) {
            const QRect before = placeOf(*stops[stop - 1]), after = placeOf(*stops[stop]);
            const bool below = after.top() >= before.top();
            const bool beside = after.left() >= before.right();
            EXPECT_TRUE(below || beside) << pathOf(*stops[stop - 1]) << " to " << pathOf(*stops[stop]);
        }
    });
}

TEST_F(EveryWindow, PressesTheButtonThatHasTheFocusAtReturn) {
    forEachPage([this] {
        QStringList names;
        for (QWidget* widget : oneOfEachKind(usable()))
            if (actsOnReturn(widget) && widget->focusPolicy() != Qt::NoFocus)
                names.append(widget->objectName());
        for (const QString& name : names) {
            openAnew();
            auto* button = qobject_cast<QAbstractButton*>(at(name));
            ASSERT_NE(button, nullptr) << name.toStdString();
            QSignalSpy clicks(button, &QAbstractButton::clicked);
            button->setFocus(Qt::TabFocusReason);
            QTest::keyClick(opened->windowHandle(), Qt::Key_Return);
            EXPECT_EQ(clicks.count(), 1) << name.toStdString();
        }
    });
}

TEST_F(EveryWindow, IsClosedByEscapeFromEveryControl) {
    forEachPage([this] {
        QStringList names;
        for (const QWidget* stop : oneOfEachKind(walk()))
            names.append(stop->objectName());
        for (const QString& name : names) {
            openAnew();
            if (QWidget* stop = at(name)) stop->setFocus(Qt::TabFocusReason);
            QPointer<QWidget> open = opened;
            QTest::keyClick(opened->windowHandle(), Qt::Key_Escape);
            EXPECT_FALSE(open && open->isVisible()) << name.toStdString();
        }
    });
}

TEST_F(EveryWindow, ShowsWhereTheFocusIs) {
    forEachPage([this] {
        for (QWidget* stop : oneOfEachKind(walk())) {
            if (stop == opened) continue;
            QWidget* other =
                firstTabStop(*opened) == stop ? tabStop(*opened, stop, TabStep::Next) : firstTabStop(*opened);
            const QRect place = placeOf(*stop);
            stop->setFocus(Qt::TabFocusReason);
            QApplication::processEvents();
            const QImage with = opened->grab(place).toImage();
            if (other)
                other->setFocus(Qt::TabFocusReason);
            else
                stop->clearFocus();
            QApplication::processEvents();
            EXPECT_TRUE(with != opened->grab(place).toImage()) << pathOf(*stop);
        }
    });
}

} // namespace
} // namespace tabrova
