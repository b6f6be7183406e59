// The real message box as the user meets it, and the recording one.
#include "platform/message_boxes.h"
#include "tests/platform/when_shown.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace tabrova {
namespace {

using ::testing::ElementsAre;

class RealBox : public ::testing::Test {
  protected:
    // The answer after `act` in the box.
    BoxAnswer answerTo(const MessageBox& box, std::function<void(QMessageBox&)> act) {
        const WhenShown<QMessageBox> user(std::move(act));
        return boxes.ask(box);
    }
    BoxAnswer answerToClick(const QList<BoxAnswer>& buttons, QMessageBox::StandardButton button) {
        return answerTo({"title", "text", BoxIcon::None, buttons}, [button](QMessageBox& window) {
            QTest::mouseClick(window.button(button), Qt::LeftButton);
        });
    }

    DesktopMessageBoxes boxes;
};

const QList<BoxAnswer> allButtons = {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Ok, BoxAnswer::Cancel};
constexpr QMessageBox::StandardButton allShown[] = {QMessageBox::Yes, QMessageBox::No, QMessageBox::Ok,
                                                    QMessageBox::Cancel};

TEST_F(RealBox, AnswersByTheButtonThatIsClicked) {
    EXPECT_EQ(answerToClick(allButtons, QMessageBox::Yes), BoxAnswer::Yes);
    EXPECT_EQ(answerToClick(allButtons, QMessageBox::No), BoxAnswer::No);
    EXPECT_EQ(answerToClick(allButtons, QMessageBox::Ok), BoxAnswer::Ok);
    EXPECT_EQ(answerToClick(allButtons, QMessageBox::Cancel), BoxAnswer::Cancel);
}

TEST_F(RealBox, AnswersCancelWhenItIsClosedWithoutAButton) {
    for (const auto& buttons : {QList{BoxAnswer::Ok}, QList{BoxAnswer::Yes, BoxAnswer::No}, allButtons})
        EXPECT_EQ(
            answerTo({"title", "text", BoxIcon::None, buttons}, [](QMessageBox& window) { window.reject(); }),
            BoxAnswer::Cancel);
}

// Also where the toolkit would take a button of its own choice for it: No, of Yes and No.
TEST_F(RealBox, AnswersCancelForTheWindowsCrossAndForEscape) {
    for (const auto& buttons : {QList{BoxAnswer::Ok}, QList{BoxAnswer::Yes, BoxAnswer::No}, allButtons}) {
        const MessageBox box = {"title", "text", BoxIcon::Question, buttons};
        EXPECT_EQ(answerTo(box, [](QMessageBox& window) { window.close(); }), BoxAnswer::Cancel);
        EXPECT_EQ(answerTo(box, [](QMessageBox& window) { QTest::keyClick(&window, Qt::Key_Escape); }),
                  BoxAnswer::Cancel);
    }
}

TEST_F(RealBox, TakesEscapeForCancel) {
    EXPECT_EQ(answerTo({"title", "text", BoxIcon::None, {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}},
                       [](QMessageBox& window) { QTest::keyClick(&window, Qt::Key_Escape); }),
              BoxAnswer::Cancel);
}

TEST_F(RealBox, HasTheButtonsThatAreAskedForAndNoOthers) {
    for (const auto& [buttons, shown] :
         {std::pair{QList{BoxAnswer::Ok}, QMessageBox::StandardButtons(QMessageBox::Ok)},
          std::pair{QList{BoxAnswer::Yes, BoxAnswer::No}, QMessageBox::Yes | QMessageBox::No},
          std::pair{QList{BoxAnswer::Ok, BoxAnswer::Cancel}, QMessageBox::Ok | QMessageBox::Cancel}})
        answerTo({"title", "text", BoxIcon::None, buttons}, [expected = shown](QMessageBox& window) {
            EXPECT_EQ(window.standardButtons(), expected);
            window.reject();
        });
}

TEST_F(RealBox, TakesItsFirstButtonForReturn) {
    for (const BoxAnswer first : allButtons) {
        QList<BoxAnswer> buttons = allButtons;
        buttons.removeOne(first);
        buttons.prepend(first);
        EXPECT_EQ(answerTo({"title", "text", BoxIcon::None, buttons},
                           [](QMessageBox& window) { QTest::keyClick(&window, Qt::Key_Return); }),
                  first);
    }
}

TEST_F(RealBox, ShowsTitleTextAndIcon) {
    for (const auto& [icon, shown] : {std::pair{BoxIcon::None, QMessageBox::NoIcon},
                                      std::pair{BoxIcon::Information, QMessageBox::Information},
                                      std::pair{BoxIcon::Question, QMessageBox::Question},
                                      std::pair{BoxIcon::Exclamation, QMessageBox::Warning},
                                      std::pair{BoxIcon::Critical, QMessageBox::Critical}})
        answerTo({"the title", "the text", icon, {BoxAnswer::Ok}}, [expected = shown](QMessageBox& window) {
            EXPECT_EQ(window.windowTitle(), "the title");
            EXPECT_EQ(window.text(), "the text");
            EXPECT_EQ(window.icon(), expected);
            window.reject();
        });
}

TEST_F(RealBox, ShowsItsTextAsItStands) {
    answerTo({"title", "<b>bold</b>", BoxIcon::None, {BoxAnswer::Ok}}, [](QMessageBox& window) {
        EXPECT_EQ(window.textFormat(), Qt::PlainText);
        window.reject();
    });
}

TEST_F(RealBox, HasTheToolkitsWordsOnItsButtonsUnlessTextsAreSet) {
    QMessageBox plain;
    answerTo({"title", "text", BoxIcon::None, allButtons}, [&plain](QMessageBox& window) {
        for (const auto button : allShown)
            EXPECT_EQ(window.button(button)->text(), plain.addButton(button)->text());
        window.reject();
    });
}

TEST_F(RealBox, HasTheTextsThatAreSetOnItsButtons) {
    boxes.buttonTexts = {{BoxAnswer::Yes, "&Ja"}, {BoxAnswer::No, "&Nein"}, {BoxAnswer::Ok, "Gut"}};
    QMessageBox plain;
    answerTo({"title", "text", BoxIcon::None, allButtons}, [&plain](QMessageBox& window) {
        EXPECT_EQ(window.button(QMessageBox::Yes)->text(), "&Ja");
        EXPECT_EQ(window.button(QMessageBox::No)->text(), "&Nein");
        EXPECT_EQ(window.button(QMessageBox::Ok)->text(), "Gut");
        EXPECT_EQ(window.button(QMessageBox::Cancel)->text(), plain.addButton(QMessageBox::Cancel)->text());
        window.reject();
    });
}

TEST(RecordedBoxes, AnswerFromTheirQueueAndThenByTheFirstButton) {
    RecordingMessageBoxes boxes;
    boxes.queueAnswer(BoxAnswer::Cancel);
    boxes.queueAnswer(BoxAnswer::No);
    const MessageBox box{
        "title", "text", BoxIcon::Question, {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}};
    QList<BoxAnswer> answers;
    for (int i = 0; i < 3; ++i)
        answers.append(boxes.ask(box));
    EXPECT_THAT(answers, ElementsAre(BoxAnswer::Cancel, BoxAnswer::No, BoxAnswer::Yes));
}

TEST(RecordedBoxes, KeepWhatWasAskedUntilItIsTaken) {
    RecordingMessageBoxes boxes;
    boxes.ask({"title", "first", BoxIcon::Critical, {BoxAnswer::Ok}});
    boxes.queueAnswer(BoxAnswer::No);
    boxes.ask({"title", "second", BoxIcon::None, {BoxAnswer::Yes, BoxAnswer::No}});
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked[0].box.text, "first");
    EXPECT_EQ(asked[0].answer, BoxAnswer::Ok);
    EXPECT_EQ(asked[1].box.text, "second");
    EXPECT_EQ(asked[1].answer, BoxAnswer::No);
    EXPECT_TRUE(boxes.take().isEmpty());
}

} // namespace
} // namespace tabrova
