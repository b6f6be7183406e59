// The help's window: choosing topics from the list, by keys and by typing.
#include "organisers/help/frmHelp.h"

#include "organisers/help/topic_list.h"
#include "tests/organisers/help/written_topics.h"
#include "tests/workbench/tool_bench.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace tabrova::testing {
namespace {

constexpr char NoTopic[] = "(Please select a topic)";

class HelpWindow : public ToolBench {
  protected:
    HelpWindow() {
        form.Form_Load();
        form.show();
        QApplication::processEvents();
        list().chosen = [this, before = list().chosen](int row) {
            ++chosen;
            before(row);
        };
    }
    template <class Control>
    Control& control(const char* name) {
        auto* found = form.findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    TopicList& list() { return *static_cast<TopicList*>(form.findChild<QComboBox*>("lstTopics")); }
    QLineEdit& line() { return *list().lineEdit(); }
    QAbstractItemView& found() { return *list().completer()->popup(); }
    std::string heading() { return control<QLabel>("lblTitle").text().toStdString(); }
    std::string answer() { return control<QLabel>("lblHelp(0)").text().toStdString(); }
    void typed(const char* text) {
        form.activateWindow();
        list().setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&line(), text);
        QApplication::processEvents();
    }
    void expectTopic(int row) {
        const auto& written = WrittenTopics[row];
        EXPECT_EQ(list().currentIndex(), row);
        EXPECT_EQ(list().currentText().toStdString(), written.question);
        EXPECT_EQ(heading(), "How do I " + std::string(written.question));
        EXPECT_EQ(answer(), written.answer);
    }
    void expectNoTopic() {
        EXPECT_EQ(list().currentIndex(), -1);
        EXPECT_EQ(list().currentText(), NoTopic);
        EXPECT_EQ(heading(), "Welcome To Tabrova!");
        EXPECT_EQ(answer(), WrittenWelcome);
    }

    frmHelp form{context, nullptr};
    int chosen = 0;
};

TEST_F(HelpWindow, OpensWithAWelcomeAndNoTopic) {
    expectNoTopic();
    EXPECT_EQ(form.windowTitle(), "Tabrova - Help");
    EXPECT_EQ(control<QLabel>("Label1").text(), "How do I...");
    EXPECT_EQ(list().count(), 35);
    EXPECT_EQ(form.focusWidget(), &list());
    EXPECT_NE(form.findChild<QWidget*>("imgLogo"), nullptr);
}

TEST_F(HelpWindow, EveryRowShowsItsTopic) {
    for (const WrittenTopic& written : WrittenTopics) {
        list().setCurrentIndex(written.position);
        emit list().activated(written.position);
        expectTopic(written.position);
    }
}

TEST_F(HelpWindow, ATopicThatIsChosenTwiceIsTheSameText) {
    for (int time = 0; time < 2; ++time) {
        emit list().activated(7);
        expectTopic(7);
    }
    EXPECT_EQ(chosen, 2);
}

TEST_F(HelpWindow, ArrowKeysGoFromTopicToTopic) {
    list().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&list(), Qt::Key_Down);
    expectTopic(0);
    QTest::keyClick(&list(), Qt::Key_Down);
    expectTopic(1);
    QTest::keyClick(&list(), Qt::Key_Up);
    expectTopic(0);
}

TEST_F(HelpWindow, ARowOfTheOpenedListIsChosenByTheMouse) {
    list().showPopup();
    QApplication::processEvents();
    QAbstractItemView& rows = *list().view();
    const QRect place = rows.visualRect(rows.model()->index(3, 0));
    QTest::mouseMove(rows.viewport(), place.center());
    QTest::qWait(QApplication::doubleClickInterval() + 50); // the list takes no release before it
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, place.center());
    QApplication::processEvents();
    expectTopic(3);
}

TEST_F(HelpWindow, TypingShowsTheRowsThatHoldTheTextInAnyCase) {
    typed("DRUM");
    EXPECT_TRUE(found().isVisible());
    EXPECT_EQ(found().model()->rowCount(), 1);
    EXPECT_EQ(found().model()->index(0, 0).data().toString(), "Use a drum machine to keep time?");
    EXPECT_EQ(heading(), "Welcome To Tabrova!"); // not chosen yet
    QTest::keyClick(&found(), Qt::Key_Down);
    QTest::keyClick(&found(), Qt::Key_Return);
    QApplication::processEvents();
    expectTopic(22);
}

TEST_F(HelpWindow, AFoundRowIsChosenByTheMouse) {
    typed("scales");
    const QRect place = found().visualRect(found().model()->index(0, 0));
    QTest::mouseClick(found().viewport(), Qt::LeftButton, {}, place.center());
    QApplication::processEvents();
    expectTopic(15);
}

TEST_F(HelpWindow, ReturnChoosesTheOnlyRowThatHoldsTheText) {
    typed("metronome");
    QTest::keyClick(&line(), Qt::Key_Return);
    expectTopic(21);
    typed("nothing of this kind");
    QTest::keyClick(&line(), Qt::Key_Return);
    expectTopic(21);
}

TEST_F(HelpWindow, ReturnOnTextOfSeveralRowsOrOfNoneChangesNothing) {
    for (const char* text : {"track", "xyz", " "}) {
        typed(text);
        QTest::keyClick(&line(), Qt::Key_Return);
        QApplication::processEvents();
        expectNoTopic();
    }
    line().clear();
    QTest::keyClick(&line(), Qt::Key_Return);
    expectNoTopic();
    EXPECT_EQ(chosen, 0);
    EXPECT_EQ(list().count(), 35);
}

TEST_F(HelpWindow, TypedTextDoesNotOutlastTheFocus) {
    typed("xyz");
    EXPECT_EQ(list().currentText(), "xyz");
    QTest::keyClick(&list(), Qt::Key_Tab);
    list().clearFocus();
    expectNoTopic();
    emit list().activated(2);
    typed("metronom");
    list().clearFocus();
    expectTopic(2);
    EXPECT_EQ(list().count(), 35);
}

TEST_F(HelpWindow, WhatIsTypedTakesThePlaceOfTheTextAlsoAfterAClick) {
    list().clearFocus();
    QTest::mouseClick(&line(), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(line().selectedText(), NoTopic);
}

TEST_F(HelpWindow, ARowThatIsNoneLeavesTheTopic) {
    emit list().activated(4);
    list().setCurrentIndex(-1);
    emit list().activated(-1);
    expectTopic(4);
}

TEST_F(HelpWindow, EveryAnswerHasRoomAtTheSmallestSize) {
    form.resize(form.minimumSizeHint());
    for (const WrittenTopic& written : WrittenTopics) {
        emit list().activated(written.position);
        QApplication::processEvents();
        for (const char* name : {"lblTitle", "lblHelp(0)"}) {
            const auto& label = control<QLabel>(name);
            EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name << written.position;
            EXPECT_EQ(label.textFormat(), Qt::PlainText);
        }
    }
    EXPECT_TRUE(control<QLabel>("lblHelp(0)").textInteractionFlags() & Qt::TextSelectableByMouse);
}

TEST_F(HelpWindow, TheAnswersSheetHasTheColorsOfATextInEveryTheme) {
    const auto& sheet = control<QFrame>("picTracks");
    EXPECT_EQ(sheet.backgroundRole(), QPalette::Base);
    EXPECT_EQ(control<QLabel>("lblHelp(0)").foregroundRole(), QPalette::Text);
    EXPECT_TRUE(sheet.isAncestorOf(&control<QLabel>("lblTitle")));
}

TEST_F(HelpWindow, EscapeClosesIt) {
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace tabrova::testing
