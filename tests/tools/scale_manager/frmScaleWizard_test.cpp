// The scale manager's window: opening, showing, hearing, both hands, and scales of the user's own.
#include "tests/workbench/tool_bench.h"
#include "tools/scale_manager/frmScaleWizard.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class ScaleWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmScaleWizard>(context, nullptr);
        form->Form_Load();
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    void click(const char* list, const QString& row) {
        auto& rows = control<QListWidget>(list);
        const auto found = rows.findItems(row, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << row.toStdString();
        rows.scrollToItem(found.first());
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(found.first()).center());
    }
    void press(const char* button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    QStringList scales() {
        QStringList names;
        for (int row = 0; row < control<QListWidget>("scType").count(); ++row)
            names.append(control<QListWidget>("scType").item(row)->text());
        return names;
    }
    std::string labels(const char* string) {
        std::string all;
        for (int slot = 0; slot < 5; ++slot) {
            const QString text = control<QLabel>(QString("%1(%2)").arg(string).arg(slot)).text();
            all += (text.isEmpty() ? "." : text.toStdString()) + " ";
        }
        return all;
    }
    std::string marks(const char* string) {
        std::string all;
        for (int fret = 0; fret < 19; ++fret)
            if (!control(QString("%1(%2)").arg(string).arg(fret)).isHidden())
                all += std::to_string(fret) + " ";
        return all;
    }
    QString title() { return control<QLabel>("lblTitle").text(); }
    std::vector<ShortMessage> sent() { return midi.take(); }
    void file(const std::string& name, const std::string& bytes) {
        fs::create_directories(folder() / "scales");
        std::ofstream(folder() / "scales" / name, std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& name) {
        std::ifstream input(folder() / "scales" / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }
    void move(QWidget& to) {
        QMouseEvent event(QEvent::MouseMove, QPointF(3, 3), to.mapToGlobal(QPointF(3, 3)), Qt::NoButton, {},
                          {});
        QApplication::sendEvent(&to, &event);
    }
    QColor ink(const char* label) { return control(label).palette().color(QPalette::WindowText); }

    std::unique_ptr<frmScaleWizard> form;
};

using Messages = std::vector<ShortMessage>;

TEST_F(ScaleWindow, OpensWithItsScalesItsInstrumentAndNothingShown) {
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Scale Manager");
    EXPECT_EQ(sent(), (Messages{{0xBE, 0, 0x80}, {0xCE, 24, 0}}));
    EXPECT_EQ(scales().size(), 36);
    EXPECT_EQ(bytesOf("Major"), "990249902499124991249924599999\r\n");
    EXPECT_EQ(control<QPushButton>("Command3").text(), "LH");
    EXPECT_EQ(control("Command3").toolTip(), "Switch View Mode");
    EXPECT_EQ(title(), "");
    for (const char* string : {"DotL", "DotA", "DotD", "DotG", "DotB", "DotE"})
        EXPECT_EQ(marks(string), "");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(ScaleWindow, ShowsAScaleInItsKey) {
    open();
    click("ScKey", "A");
    click("scType", "Major");
    EXPECT_EQ(title(), "A Major");
    EXPECT_EQ(labels("nt_l"), ". . 5 7 9 ");
    EXPECT_EQ(labels("nt_b"), ". . 7 9 10 ");
    EXPECT_EQ(labels("nt_e"), ". . . . . ");
    EXPECT_EQ(marks("DotL"), "5 7 9 ");
    EXPECT_EQ(marks("DotE"), "");
    click("ScKey", "D#");
    EXPECT_EQ(labels("nt_l"), ". . 11 13 15 ");
    click("ScKey", "E");
    EXPECT_EQ(labels("nt_l"), ". . 0 2 4 ");
}

TEST_F(ScaleWindow, AScaleWithoutAKeyIsThatOfA) {
    open();
    click("scType", "Dorian");
    EXPECT_EQ(title(), "A Dorian");
    EXPECT_EQ(marks("DotL"), "5 7 8 ");
}

TEST_F(ScaleWindow, AKeyWithoutAScaleShowsNone) {
    open();
    click("ScKey", "C");
    EXPECT_EQ(title(), "C ");
    EXPECT_EQ(marks("DotL"), "");
}

TEST_F(ScaleWindow, AFileThatIsGoneLeavesTheScaleBefore) {
    file("Mine", "99024");
    open();
    click("scType", "Major");
    fs::rename(folder() / "scales", folder() / "elsewhere");
    click("scType", "Mine");
    EXPECT_EQ(marks("DotE"), "");
    EXPECT_EQ(marks("DotL"), "5 7 9 ");
    EXPECT_EQ(title(), "A Mine");
}

TEST_F(ScaleWindow, FilesAreReadAsFarAsTheyGo) {
    file("Short", "99024");
    file("Comma", "99024,99024");
    file("Nines", std::string(30, '9') + "\r\n");
    file("Binary", std::string("\0\xFF"
                               "5",
                               3));
    open();
    click("ScKey", "E");
    const std::map<QString, std::string> lowest = {
        {"Short", ". . 0 2 4 "}, {"Comma", ". . 0 2 4 "}, {"Nines", ". . . . . "}, {"Binary", ". . 5 . . "}};
    for (const auto& [name, texts] : lowest) {
        click("scType", name);
        EXPECT_EQ(labels("nt_l"), texts) << name.toStdString();
        EXPECT_EQ(labels("nt_a"), ". . . . . ") << name.toStdString();
    }
}

TEST_F(ScaleWindow, ANoteIsHeardByAClickAndRingsOn) {
    open();
    click("scType", "Major");
    sent();
    QTest::mouseClick(&control("nt_l(2)"), Qt::LeftButton);
    QTest::mouseClick(&control("nt_b(4)"), Qt::LeftButton);
    EXPECT_EQ(sent(), (Messages{{0x9E, 45, 127}, {0x9E, 69, 127}}));
    ListedTimer& stopper = *timers.timers()["tmrscaleStopper"];
    EXPECT_TRUE(stopper.timerEnabled());
    EXPECT_EQ(stopper.timerInterval(), 2000);
    EXPECT_TRUE(stopper.fire());
    EXPECT_EQ(sent().size(), 18u); // channels 0 to 8 alone
    EXPECT_FALSE(stopper.timerEnabled());
    QTest::mouseClick(&control("nt_e(0)"), Qt::LeftButton);
    EXPECT_TRUE(sent().empty());
    EXPECT_TRUE(stopper.timerEnabled());
    QTest::mouseClick(&control("nt_l(2)"), Qt::RightButton);
    EXPECT_TRUE(sent().empty());
}

TEST_F(ScaleWindow, TheNoteUnderThePointerIsRed) {
    open();
    click("scType", "Major");
    move(control("nt_l(2)"));
    EXPECT_EQ(ink("nt_l(2)"), QColor(255, 0, 0));
    EXPECT_EQ(ink("nt_l(3)"), QColor(0, 0, 0));
    move(control("Picture2"));
    EXPECT_EQ(ink("nt_l(2)"), QColor(0, 0, 0));
}

TEST_F(ScaleWindow, ItsNotesAreHeardByKeys) {
    open();
    click("ScKey", "E");
    click("scType", "Major");
    sent();
    QWidget& tab = control("Picture2");
    tab.setFocus();
    for (const auto key :
         {Qt::Key_Space, Qt::Key_Right, Qt::Key_Return, Qt::Key_Left, Qt::Key_Left, Qt::Key_Enter})
        QTest::keyClick(&tab, key);
    EXPECT_EQ(sent(), (Messages{{0x9E, 40, 127}, {0x9E, 42, 127}, {0x9E, 40, 127}}));
    for (int step = 0; step < 40; ++step)
        QTest::keyClick(&tab, Qt::Key_Down);
    QTest::keyClick(&tab, Qt::Key_Space);
    EXPECT_EQ(sent(), (Messages{{0x9E, 64, 127}})); // the last one, fret 5 of the B string
}

TEST_F(ScaleWindow, TheViewOfTheOtherHandMovesAllMarksButTheLast) {
    open();
    click("ScKey", "E");
    click("scType", "Major");
    const auto left = [this](int fret) { return control(QString("DotG(%1)").arg(fret)).x(); };
    const int right[] = {-4,  20,  44,  66,  88,  110, 132, 156, 178, 202,
                         224, 248, 272, 294, 316, 338, 360, 384, 408};
    for (int fret = 0; fret < 19; ++fret)
        EXPECT_EQ(left(fret), right[fret]) << fret;
    press("Command3");
    EXPECT_EQ(control<QPushButton>("Command3").text(), "RH");
    for (int fret = 0; fret < 19; ++fret)
        EXPECT_EQ(left(fret), fret == 18 ? 408 : right[17 - fret]) << fret;
    EXPECT_EQ(marks("DotL"), "0 2 4 ");
    EXPECT_EQ(labels("nt_l"), ". . 0 2 4 ");
    press("Command3");
    EXPECT_EQ(control<QPushButton>("Command3").text(), "LH");
    for (int fret = 0; fret < 19; ++fret)
        EXPECT_EQ(left(fret), right[fret]) << fret;
}

// The creator

TEST_F(ScaleWindow, ANewScaleIsSavedAndItsBoxesAreFreeAgain) {
    open();
    auto& box = control<QComboBox>("lst_LOWE(2)");
    EXPECT_EQ(box.currentText(), "-");
    EXPECT_EQ(box.count(), 7);
    box.setCurrentText("0");
    control<QComboBox>("lst_E(4)").setCurrentText("5");
    control<QLineEdit>("Txt_flname").setText("Mine (blues)");
    press("Command1");
    EXPECT_EQ(bytesOf("Mine (blues)"), "990999999999999999999999999995\r\n");
    EXPECT_TRUE(scales().contains("Mine (blues)"));
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Scale Added");
    EXPECT_EQ(asked.first().box.text,
              "The new scale 'Mine (blues)' has successfully been added to your list.");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    EXPECT_EQ(box.currentText(), "-");
    EXPECT_EQ(control<QLineEdit>("Txt_flname").text(), "(new scale)");
    EXPECT_EQ(control<QLineEdit>("Txt_flname").maxLength(), 20);
}

TEST_F(ScaleWindow, AKeyInABoxReplacesWhatItShows) {
    open();
    auto& box = control<QComboBox>("lst_B(1)");
    box.setFocus(Qt::OtherFocusReason);
    QTest::keyClick(&box, Qt::Key_3);
    EXPECT_EQ(box.currentText(), "3");
    auto& other = control<QComboBox>("lst_B(2)");
    QWidget* line = other.lineEdit();
    QTest::mouseClick(line, Qt::LeftButton);
    QApplication::processEvents();
    QTest::keyClick(line, Qt::Key_4);
    EXPECT_EQ(other.currentText(), "4");
}

TEST_F(ScaleWindow, AnEmptyScaleUnderTheDefaultNameIsSavedToo) {
    open();
    press("Command1");
    EXPECT_EQ(bytesOf("(new scale)"), std::string(30, '9') + "\r\n");
}

TEST_F(ScaleWindow, WhatCannotBeSavedIsToldAndStays) {
    fs::create_directories(folder() / "scales" / "folder");
    open();
    auto& box = control<QComboBox>("lst_G(1)");
    auto& name = control<QLineEdit>("Txt_flname");
    for (const char* entry : {"9", "6", "x", "", "12"}) {
        box.setEditText(entry);
        press("Command1");
        EXPECT_EQ(box.currentText(), entry);
    }
    box.setEditText("3");
    for (const char* bad : {"", ".", "..", "a/b", "a\\b", "folder"}) {
        name.setText(bad);
        press("Command1");
        EXPECT_EQ(name.text(), bad);
    }
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 11);
    for (const auto& each : asked) {
        EXPECT_EQ(each.box.title, "Error");
        EXPECT_EQ(each.box.text, "Scale was not saved, Please check your input.");
        EXPECT_EQ(each.box.icon, BoxIcon::Critical);
    }
    EXPECT_EQ(scales().size(), 36);
    EXPECT_EQ(box.currentText(), "3");
}

TEST_F(ScaleWindow, AScaleIsDeletedAtOnceAndABuiltInOneComesBack) {
    file("Mine", "99024");
    open();
    press("Command2");
    EXPECT_EQ(scales().size(), 37);
    click("scType", "Mine");
    press("Command2");
    EXPECT_FALSE(fs::exists(folder() / "scales/Mine"));
    click("scType", "Major");
    press("Command2");
    EXPECT_EQ(scales().size(), 35);
    EXPECT_TRUE(boxes.take().isEmpty());
    open();
    EXPECT_EQ(scales().size(), 36);
    EXPECT_TRUE(scales().contains("Major"));
}

TEST_F(ScaleWindow, AFileInThePlaceOfTheFolderIsBorneWithoutAWord) {
    std::ofstream(folder() / "scales") << "x";
    open();
    EXPECT_TRUE(scales().isEmpty());
    click("ScKey", "G");
    EXPECT_EQ(title(), "G ");
    EXPECT_TRUE(boxes.take().isEmpty());
}

} // namespace
} // namespace tabrova::testing
