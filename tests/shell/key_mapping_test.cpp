// Keys go by what they type.
#include "core/shell/key_mapping.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

KeyPress pressOf(int key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return keyPressOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

TEST(KeyMapping, EveryNamedKeyHasItsCode) {
    const std::pair<int, int> keys[] = {{Qt::Key_Backspace, 8}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
                                        {Qt::Key_Space, 32},    {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
                                        {Qt::Key_Right, 39},    {Qt::Key_Down, 40},   {Qt::Key_Delete, 46}};
    for (const auto& [key, code] : keys)
        EXPECT_EQ(pressOf(key, {}).keyCode, code);
}

TEST(KeyMapping, LettersAndDigitsAreTheirCapitalsAndThemselves) {
    for (int letter = 'A'; letter <= 'Z'; ++letter) {
        EXPECT_EQ(pressOf(letter, QString(QChar(letter + 32))).keyCode, letter);
        EXPECT_EQ(pressOf(letter, QString(QChar(letter)), Qt::ShiftModifier).keyCode, letter);
    }
    for (int digit = '0'; digit <= '9'; ++digit) {
        EXPECT_EQ(pressOf(digit, QString(QChar(digit))).keyCode, digit);
        EXPECT_EQ(pressOf(digit, QString(QChar(digit)), Qt::KeypadModifier).keyCode, digit);
    }
}

TEST(KeyMapping, ALayoutThatTypesDigitsWithShiftTypesFrets) {
    EXPECT_EQ(pressOf(Qt::Key_Ampersand, "1", Qt::ShiftModifier).keyCode, '1');
    EXPECT_EQ(pressOf(Qt::Key_Agrave, "0", Qt::ShiftModifier).keyCode, '0');
    EXPECT_EQ(pressOf(Qt::Key_Ampersand, "&").keyCode, 0);
    EXPECT_EQ(pressOf(Qt::Key_Exclam, "!", Qt::ShiftModifier).keyCode, 0);
}

TEST(KeyMapping, TellsTheModifiers) {
    EXPECT_EQ(pressOf(Qt::Key_Space, " ", Qt::ShiftModifier).shift, 1);
    EXPECT_EQ(pressOf(Qt::Key_H, "\b", Qt::ControlModifier).shift, 2);
    EXPECT_EQ(pressOf(Qt::Key_H, "\b", Qt::ControlModifier).keyCode, 'H');
    EXPECT_EQ(pressOf(Qt::Key_H, "h", Qt::AltModifier | Qt::ShiftModifier).shift, 5);
}

TEST(KeyMapping, OtherKeysHaveNoCode) {
    for (const int key : {Qt::Key_F2, Qt::Key_Insert, Qt::Key_Home, Qt::Key_Period})
        EXPECT_EQ(pressOf(key, {}).keyCode, 0);
    EXPECT_EQ(pressOf(0x0424, QString::fromUtf8("Ф")).keyCode, 0);
    EXPECT_TRUE(isModifierAlone(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier)));
    EXPECT_FALSE(isModifierAlone(QKeyEvent(QEvent::KeyPress, Qt::Key_H, Qt::ShiftModifier)));
}

} // namespace
} // namespace tabrova
