// What a screen reader says of every control that takes the focus or a click: a name, and one of the chosen
// language.
#include "tests/shell/every_window.h"

#include "core/language/language_lines.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTabBar>

#include <fstream>

namespace tabrova {
namespace {

class SpokenNames : public testing::EveryWindowTest {
  protected:
    // A language in which every text differs and none is a word.
    void installNumberedLines() {
        std::ofstream file(folder() / "lang.trl", std::ios::trunc);
        for (int number = 1; number <= lastLanguageLine(); ++number)
            file << "Line " << number << "\n";
    }
    // A list to choose one row from is called as what is chosen, on some systems.
    static QString nameFor(QWidget& widget) {
        if (qobject_cast<QComboBox*>(&widget)) return widget.accessibleName();
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&widget);
        return reader ? reader->text(QAccessible::Name) : QString();
    }
    // Parts of a control, which speaks for them.
    static bool isPart(const QWidget& widget) {
        const QWidget* parent = widget.parentWidget();
        return widget.objectName().startsWith("qt_") || widget.focusProxy() ||
               qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent) ||
               qobject_cast<const QTabBar*>(parent);
    }
    // Of the main window: what takes clicks without being a button or taking the focus.
    static bool takesClicks(const QWidget& widget) {
        return qobject_cast<const QAbstractButton*>(&widget) ||
               QStringList{"picFretboard", "picNoteSelector", "VScroll1"}.contains(widget.objectName());
    }
    // A text is read itself; a topic of the help has no language but its own.
    static bool isSpokenOf(const QWidget& widget) {
        if (qobject_cast<const QLabel*>(&widget) || widget.objectName() == "lstTopics") return false;
        return (widget.focusPolicy() != Qt::NoFocus || takesClicks(widget)) && !isPart(widget);
    }
    // The names of strings and the numbers of frets and steps are the same in all languages.
    static bool isOfNoLanguage(const QString& name) {
        static const QRegularExpression proper("^((Low |High )?[A-G]#?( [1-5])?|[0-9]+)$");
        return proper.match(name).hasMatch();
    }
    static void expectName(QWidget& widget) {
        const QString name = nameFor(widget);
        EXPECT_FALSE(name.trimmed().isEmpty()) << "no name: " << pathOf(widget);
        EXPECT_TRUE(name.isEmpty() || name.contains("Line ") || isOfNoLanguage(name))
            << pathOf(widget) << " is called " << name.toStdString();
    }
};

TEST_F(SpokenNames, AreThoseOfTheLanguageInEveryWindow) {
    installNumberedLines();
    forEachPage([this] {
        for (QWidget* widget : usable())
            if (isSpokenOf(*widget)) expectName(*widget);
    });
}

TEST_F(SpokenNames, AreThoseOfTheLanguageInTheMainWindow) {
    installNumberedLines();
    load();
    for (const char* panel : {"picBend", "picRepeat", "picTrackChooser", "picNoteSelector", "picFretboard",
                              "picStandardNotation"})
        control<QWidget>(*window, panel)->show();
    for (QWidget* widget : window->findChildren<QWidget*>())
        if (widget->window() == window.get() && isSpokenOf(*widget)) expectName(*widget);
    expectName(*control<QWidget>(*window, "picStandardNotation"));
}

} // namespace
} // namespace tabrova
