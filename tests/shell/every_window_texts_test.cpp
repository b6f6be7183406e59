// Every window as it opens in each installed language: as large as its texts need, and no larger than a small
// screen.
#include "tests/shell/every_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>

namespace tabrova {
namespace {

constexpr QSize Screen = {1366, 768};
constexpr int TitleBar = 40;

class EveryWindowsTexts : public testing::EveryWindowTest {
  protected:
    void forEachLanguage(const std::function<void()>& check) {
        int languages = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder() / "languages")) {
            SCOPED_TRACE(entry.path().filename().string());
            std::filesystem::copy_file(entry.path() / "lang.trl", folder() / "lang.trl",
                                       std::filesystem::copy_options::overwrite_existing);
            check();
            ++languages;
        }
        EXPECT_EQ(languages, 7);
    }
    static QSize neededBy(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
            return {0, label->heightForWidth(label->width())};
        if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
            return {group->fontMetrics().horizontalAdvance(group->title()) + 16, 0};
        return widget.sizeHint();
    }
    static bool hasText(const QWidget& widget) {
        return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
               qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
               qobject_cast<const QComboBox*>(&widget);
    }
    static void expectTextFits(const QWidget& widget) {
        const QSize needed = neededBy(widget);
        EXPECT_EQ(widget.size().expandedTo(needed), widget.size())
            << pathOf(widget) << ": " << widget.width() << " x " << widget.height() << " of "
            << needed.width() << " x " << needed.height();
    }
    // A list and a text may hold more than shows, but no panel of controls.
    static void expectAtRest(const QAbstractScrollArea& area) {
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << pathOf(area);
        const bool panel = qobject_cast<const QScrollArea*>(&area);
        EXPECT_FALSE(panel && area.verticalScrollBar()->isVisible()) << pathOf(area);
    }
    void expectTheSmallScreenHoldsIt() const {
        EXPECT_LE(opened->width(), Screen.width());
        EXPECT_LE(opened->height(), Screen.height() - TitleBar);
        EXPECT_EQ(opened->size().expandedTo(opened->minimumSizeHint()), opened->size());
    }
};

TEST_F(EveryWindowsTexts, FitIntoTheirPlacesOnASmallScreenWithoutScrolling) {
    forEachLanguage([this] {
        forEachPage([this] {
            expectTheSmallScreenHoldsIt();
            for (const QWidget* widget : usable()) {
                if (hasText(*widget)) expectTextFits(*widget);
                if (auto* area = qobject_cast<const QAbstractScrollArea*>(widget)) expectAtRest(*area);
            }
        });
    });
}

} // namespace
} // namespace tabrova
