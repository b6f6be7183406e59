// Random acts on the help's window, each compared with a plain model that was written on its own.
#include "organisers/help/frmHelp.h"
#include "tests/organisers/help/plain_help.h"
#include "tests/workbench/tool_bench.h"

#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <random>

namespace tabrova::testing {
namespace {

class RandomHelpActs : public ToolBench, public ::testing::WithParamInterface<unsigned> {
  protected:
    void open() {
        window = std::make_unique<frmHelp>(context, nullptr);
        window->Form_Load();
        window->show();
        window->activateWindow();
        QApplication::processEvents();
        model = {};
    }
    std::size_t below(std::size_t end) { return chance() % end; }
    QComboBox& list() { return *window->findChild<QComboBox*>("lstTopics"); }
    std::string label(const char* name) { return window->findChild<QLabel*>(name)->text().toStdString(); }

    void act() {
        static const std::vector<void (RandomHelpActs::*)()> acts = {
            &RandomHelpActs::chooseRow, &RandomHelpActs::chooseRow, &RandomHelpActs::chooseAgain,
            &RandomHelpActs::byArrow,   &RandomHelpActs::byArrow,   &RandomHelpActs::byName,
            &RandomHelpActs::byPart,    &RandomHelpActs::nonsense,  &RandomHelpActs::reopen};
        (this->*acts[below(acts.size())])();
    }
    void compare() {
        EXPECT_EQ(window->windowTitle(), "Tabrova - Help");
        EXPECT_EQ(label("Label1"), "How do I...");
        EXPECT_EQ(label("lblTitle"), model.title.toStdString());
        EXPECT_EQ(label("lblHelp(0)"), model.answer.toStdString());
        EXPECT_EQ(list().currentIndex(), model.row);
        ASSERT_EQ(list().count(), 35);
        for (const WrittenTopic& topic : WrittenTopics)
            EXPECT_EQ(list().itemText(topic.position), PlainHelp::text(topic.question));
        const QString none = "(Please select a topic)";
        const QString wanted = model.row < 0 ? none : list().itemText(model.row);
        EXPECT_EQ(list().currentText().toStdString(), wanted.toStdString());
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }

    std::mt19937 chance;
    std::string told;
    std::unique_ptr<frmHelp> window;
    PlainHelp model;

  private:
    void choose(int row) {
        told = "row " + std::to_string(row);
        list().setCurrentIndex(row);
        emit list().activated(row);
        model.choose(row);
    }
    void chooseRow() { choose(static_cast<int>(below(35))); }
    void chooseAgain() {
        if (model.row >= 0) choose(model.row);
    }
    void byArrow() {
        const bool down = below(2) == 0;
        told = down ? "down" : "up";
        QTest::keyClick(&list(), down ? Qt::Key_Down : Qt::Key_Up);
        const int row = model.row + (down ? 1 : -1);
        if (row >= 0 && row < 35) model.choose(row);
    }
    void type(const QString& text) {
        told = "type " + text.toStdString();
        QLineEdit& box = *list().lineEdit();
        box.setFocus();
        box.selectAll();
        if (text.isEmpty()) pressKey(Qt::Key_Delete);
        for (const QChar letter : text)
            QTest::keyClick(&receiver(), letter.toLatin1());
        pressKey(Qt::Key_Return);
    }
    // The list of found rows takes the keys while it is open.
    QWidget& receiver() {
        QWidget* found = QApplication::activePopupWidget();
        return found ? *found : *list().lineEdit();
    }
    void pressKey(Qt::Key key) { QTest::keyClick(&receiver(), key); }
    void byName() {
        const auto row = static_cast<int>(below(35));
        const QString text = list().itemText(row);
        type(below(2) == 0 ? text : text.toUpper());
        model.choose(row);
    }
    // The only row that holds it.
    void byPart() {
        static const std::pair<const char*, int> parts[] = {
            {"metronome", 21}, {"WEIRD", 34}, {"a  doc", 5}, {"my band", 16}, {"2.1x", 6}, {"repeats", 11}};
        const auto& [part, row] = parts[below(std::size(parts))];
        type(part);
        model.choose(row);
    }
    void nonsense() {
        static const char* const texts[] = {"",  "zzz", "document", "&", "<b>", "(Please select a topic)",
                                            ".*"};
        type(texts[below(std::size(texts))]);
    }
    void reopen() {
        told = "reopen";
        window->close();
        window->Form_Unload();
        window.reset();
        open();
    }
};

TEST_P(RandomHelpActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    open();
    compare();
    std::string acts;
    for (int count = 0; count < 700 && !HasFailure(); ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        SCOPED_TRACE(acts);
        compare();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomHelpActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
