// A box of several lines that refuses what a file cannot hold.
#include "forms/code_page_box.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class CodePageBoxTest : public ::testing::Test {
  protected:
    CodePageBoxTest() {
        box.hint = [this] {
            ++hints;
            return QString("not here");
        };
        box.show();
    }
    void type(const QString& text) {
        QKeyEvent key(QEvent::KeyPress, 0, {}, text);
        QApplication::sendEvent(&box, &key);
    }

    CodePageBox box{"txtBox", nullptr};
    int hints = 0;
};

TEST_F(CodePageBoxTest, TakesTheCharactersOfTheCodePage) {
    EXPECT_EQ(box.objectName(), "txtBox");
    for (const char* character : {"a", "é", "½", "€", " "})
        type(QString::fromUtf8(character));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.wholeText(), QString::fromUtf8("aé½€ \n"));
    EXPECT_EQ(hints, 0);
}

TEST_F(CodePageBoxTest, RefusesOthersWithAHint) {
    box.setPlainText("text");
    box.selectAll();
    for (const char* character : {"→", "я", "😀"})
        type(QString::fromUtf8(character));
    EXPECT_EQ(box.wholeText(), "text");
    EXPECT_EQ(hints, 3);
}

TEST_F(CodePageBoxTest, ComposedCharactersAreRefusedToo) {
    const auto compose = [this](const char* text) {
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(text));
        QApplication::sendEvent(&box, &event);
    };
    compose("é");
    EXPECT_EQ(hints, 0);
    compose("a→b");
    EXPECT_EQ(box.wholeText(), QString::fromUtf8("éab"));
    EXPECT_EQ(hints, 1);
}

TEST_F(CodePageBoxTest, PastesWhatAFileCanHold) {
    QApplication::clipboard()->setText(QString::fromUtf8("a→b\r\nc\n"));
    box.paste();
    EXPECT_EQ(box.wholeText(), "ab\nc\n");
}

TEST_F(CodePageBoxTest, HardBlanksStayWhatTheyAre) {
    const QString text = QString::fromUtf8("a\u00A0b\nc");
    box.setPlainText(text);
    EXPECT_EQ(box.wholeText(), text);
    EXPECT_NE(box.toPlainText(), text);
}

TEST_F(CodePageBoxTest, CommandsByKeysStillWork) {
    box.setPlainText("text");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.wholeText(), "");
    EXPECT_TRUE(box.tabChangesFocus());
}

} // namespace
} // namespace tabrova
