// Keys go by what they type, and by their place where that is no Latin text.
#include "shell/key_mapping.h"

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

// By the numbers of X and Wayland, which count from 8.
KeyPress pressAt(int number, int key, const QString& text) {
    return keyPressOf(
        QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, static_cast<quint32>(number + 8), 0, 0, text));
}

TEST(KeyMapping, UnderARussianLayoutTheKeysPlaceCounts) {
    const QString typed = QString::fromUtf8("йцукенгшщзфывапролдячсмить");
    const std::string letters = "QWERTYUIOPASDFGHJKLZXCVBNM";
    const int numbers[] = {16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 30, 31, 32,
                           33, 34, 35, 36, 37, 38, 44, 45, 46, 47, 48, 49, 50};
    for (qsizetype at = 0; at < typed.size(); ++at) {
        const auto index = static_cast<std::size_t>(at);
        const QString letter = typed.sliced(at, 1);
        EXPECT_EQ(pressAt(numbers[index], letter.toUpper()[0].unicode(), letter).keyCode, letters[index]);
        EXPECT_EQ(pressAt(numbers[index], letter.toUpper()[0].unicode(), letter.toUpper()).keyCode,
                  letters[index]);
    }
    EXPECT_EQ(pressAt(26, 0x0425, QString::fromUtf8("х")).keyCode, 0); // no letter stands there
    EXPECT_EQ(pressAt(-8, 0x0424, QString::fromUtf8("Ф")).keyCode, 0); // no place is told
}

TEST(KeyMapping, ForeignDigitsAreFretsByTheirPlaceToo) {
    const QString digits = QString::fromUtf8("١٢٣٤٥٦٧٨٩٠");
    for (qsizetype at = 0; at < digits.size(); ++at)
        EXPECT_EQ(pressAt(static_cast<int>(at) + 2, digits[at].unicode(), digits.sliced(at, 1)).keyCode,
                  '0' + (at + 1) % 10);
}

// French M types a comma where an English M is; a German Z stands where an English Y is.
TEST(KeyMapping, UnderALatinLayoutThePlaceDoesNotCount) {
    EXPECT_EQ(pressAt(50, Qt::Key_Comma, ",").keyCode, 0);
    EXPECT_EQ(pressAt(39, Qt::Key_M, "m").keyCode, 'M');
    EXPECT_EQ(pressAt(21, Qt::Key_Z, "z").keyCode, 'Z');
    EXPECT_EQ(pressAt(39, 0x00D6, QString::fromUtf8("ö")).keyCode, 0);
    EXPECT_EQ(pressAt(30, Qt::Key_Exclam, "!").keyCode, 0);
}

TEST(KeyMapping, EveryPlaceOfBothKindsOfKeyboardHasItsLetter) {
    std::string pc, macintosh;
    for (unsigned number = 0; number < 300; ++number) {
        if (const int code = codeOfPcKey(number)) pc.push_back(static_cast<char>(code));
        if (const int code = codeOfMacintoshKey(number)) macintosh.push_back(static_cast<char>(code));
    }
    EXPECT_EQ(pc, "1234567890QWERTYUIOPASDFGHJKLZXCVBNM");
    EXPECT_EQ(macintosh, "ASDFHGZXCVBQWERYT1234659780OUIPLJKNM");
    EXPECT_EQ(codeOfPcKey(2), '1');
    EXPECT_EQ(codeOfPcKey(50), 'M');
    EXPECT_EQ(codeOfPcKey(0xFFFFFFFFu), 0);
    EXPECT_EQ(codeOfMacintoshKey(29), '0');
    EXPECT_EQ(codeOfMacintoshKey(46), 'M');
}

TEST(KeyMapping, ControlAltAndMetaMakeACombination) {
    const auto combined = [](Qt::KeyboardModifiers modifiers) {
        return isCombination(QKeyEvent(QEvent::KeyPress, Qt::Key_Z, modifiers));
    };
    EXPECT_TRUE(combined(Qt::ControlModifier));
    EXPECT_TRUE(combined(Qt::AltModifier));
    EXPECT_TRUE(combined(Qt::MetaModifier));
    EXPECT_TRUE(combined(Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(combined(Qt::NoModifier));
    EXPECT_FALSE(combined(Qt::ShiftModifier));
    EXPECT_FALSE(combined(Qt::KeypadModifier));
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
