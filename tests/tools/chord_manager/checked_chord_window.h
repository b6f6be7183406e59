// The real chord manager under test: its controls by their names, worked as a user works them, and what it
// shows as text, line by line the same as the plain model's.
#pragma once

#include "tests/tools/chord_manager/plain_chord_manager.h"
#include "tests/workbench/tool_bench.h"
#include "tools/chord_manager/frmChordWizard.h"

#include <QHash>
#include <QListWidget>
#include <QTest>

#include <functional>

namespace tabrova::testing {

// What stands on the desk and in the window, one line for each thing. Without messages and boxes.
std::string described(const PlainChordManager& manager);
std::string described(const PlainDesk& desk);
std::string described(const PlainFolder& folder);

std::string midiText(const std::vector<std::array<int, 3>>& messages);
std::string boxText(const std::vector<PlainBox>& boxes);

// Files of the folder with their bytes.
PlainFolder filesIn(const std::filesystem::path& folder);

class CheckedChordWindow {
  public:
    // Loads and shows it, each of its tabs once.
    CheckedChordWindow(const ToolContext& context, const TimerList& timers);

    template <class Control = QWidget>
    Control& at(const QString& name) const {
        auto* control = qobject_cast<Control*>(controls_.value(name));
        if (!control) throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }
    ListedTimer& timer(const QString& name) const { return *timers_.timers()[name]; }

    void showTabOf(const QString& control);
    void press(const QString& button);
    void toggle(const QString& box) { QTest::keyClick(&at(box), Qt::Key_Space); }
    void key(const QString& control, Qt::Key key);
    void clickRow(const QString& list, int row);
    // The text replaces what stands in the box: typed key by key, or put in at once.
    void type(const QString& box, const std::string& text);
    void paste(const QString& box, const std::string& text);
    // On the strum strip, `y` in pixels from its upper edge. `held` are the buttons down after the act.
    void strum(QEvent::Type act, int y, Qt::MouseButton button, Qt::MouseButtons held);

    // What it shows, as text: all of it, or one part.
    std::string described() const;
    std::string title() const;
    std::string marksText() const;
    std::string keyBoxesText() const;
    std::string staffText() const;
    std::string fretsText() const;

    frmChordWizard form;
    // Another tab has come into view.
    std::function<void(int tab)> tabShown;

  private:
    std::string constructionText() const;
    std::string previewText() const;
    std::string entriesText() const;
    std::string listText(const QString& name) const;
    std::string highlightText() const;
    std::string timerText(const QString& name) const;

    const TimerList& timers_;
    QHash<QString, QWidget*> controls_;
};

// The window and its model side by side, over a document of two guitar tracks and a percussion track.
class CheckedChordWindowTest : public ToolBench {
  protected:
    CheckedChordWindowTest();
    void open();
    void close();
    // What has been sent, asked and shown since the last time is the same on both sides.
    ::testing::AssertionResult sameAsModel();
    std::string documentText();
    std::vector<std::array<int, 3>> takeMidi();

    PlainDesk desk;
    std::unique_ptr<PlainChordManager> model;
    std::unique_ptr<CheckedChordWindow> window;
};

} // namespace tabrova::testing
