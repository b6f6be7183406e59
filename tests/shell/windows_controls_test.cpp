// The shell's windows: where their controls stand, and what each control holds back.
#include "forms/logo.h"
#include "organisers/about/frmAbout.h"
#include "organisers/file_properties/notes_box.h"
#include "tests/forms/described_layout.h"
#include "tests/shell/main_window.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

namespace tabrova {
namespace {

using testing::described;
using testing::margins;
using testing::text;

class Windows : public testing::MainWindowTest {
  protected:
    Windows() { load(); }
    QWidget& open(const char* item, const char* name) {
        trigger(item);
        opened = form(name);
        EXPECT_NE(opened, nullptr);
        return *opened;
    }
    template <class Control = QWidget>
    Control& at(const char* name) {
        return *opened->findChild<Control*>(name);
    }
    QGridLayout& grid() { return *qobject_cast<QGridLayout*>(opened->layout()); }

    QWidget* opened = nullptr;
};

TEST_F(Windows, OfTheDocumentsProperties) {
    open("mnuFileProperties", "frmFileProperties");
    EXPECT_EQ(margins(grid()).toStdString(), "16 12 16 14");
    EXPECT_EQ(grid().verticalSpacing(), 8);
    EXPECT_EQ(grid().horizontalSpacing(), 10);
    EXPECT_EQ(grid().rowMinimumHeight(7), 6);
    EXPECT_EQ(text(described(grid())), "imgLogo 0,0 1x5\n"
                                       "Label1 1,0\n"
                                       "txtTitle 1,1 1x4\n"
                                       "Label2 2,0\n"
                                       "txtAuthor 2,1 1x4\n"
                                       "Label3 3,0\n"
                                       "sldSpeed 3,1\n"
                                       "spnSpeed 3,2\n"
                                       "Label4 3,3\n"
                                       "lblQuarters 3,4\n"
                                       "chkSpeedBoost 4,1 1x4\n"
                                       "Label5 5,0 aligned 32\n"
                                       "txtNotes 5,1 1x4\n"
                                       "chkReverb 6,1 1x4\n"
                                       "Command1 8,0 1x5 aligned 2\n"
                                       "row 5 stretch 1\n"
                                       "column 1 stretch 1\n");
    for (const auto& [label, control] : {std::pair{"Label1", "txtTitle"},
                                         {"Label2", "txtAuthor"},
                                         {"Label3", "spnSpeed"},
                                         {"Label5", "txtNotes"}})
        EXPECT_EQ(at<QLabel>(label).buddy(), &at(control));
    EXPECT_EQ(opened->windowModality(), Qt::WindowModal);
    EXPECT_EQ(opened->size(), opened->sizeHint().expandedTo({430, 380}));
    EXPECT_EQ(at("sldSpeed").minimumWidth(), 150);
    EXPECT_TRUE(at<QPushButton>("Command1").isDefault());
    EXPECT_TRUE(at<NotesBox>("txtNotes").tabChangesFocus());
    auto& speed = at<QSpinBox>("spnSpeed");
    EXPECT_EQ(speed.minimum(), 20);
    EXPECT_EQ(speed.maximum(), 2000);
    EXPECT_FALSE(speed.keyboardTracking());
}

TEST_F(Windows, OfTheDocumentShowLongNamesFromTheirBeginning) {
    window->document().Title = std::string(45, 'T');
    window->document().Author = "short";
    open("mnuFileProperties", "frmFileProperties");
    EXPECT_EQ(at<QLineEdit>("txtTitle").maxLength(), 45);
    EXPECT_EQ(at<QLineEdit>("txtTitle").cursorPosition(), 0);
    EXPECT_EQ(at<QLineEdit>("txtAuthor").maxLength(), 30);
    EXPECT_EQ(at<QLineEdit>("txtAuthor").cursorPosition(), 0);
}

TEST_F(Windows, OfTheDocumentShowASpeedOutsideTheSliderAtItsEnd) {
    for (const auto& [tempo, shown] : {std::pair{5, 20}, {20, 20}, {2000, 2000}, {30000, 2000}}) {
        window->document().Tempo = static_cast<std::int16_t>(tempo);
        open("mnuFileProperties", "frmFileProperties");
        EXPECT_EQ(at<QSpinBox>("spnSpeed").value(), shown);
        EXPECT_EQ(at<QSlider>("sldSpeed").value(), shown);
        opened->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Windows, OfATracksProperties) {
    open("mnuTrackProps", "frmTrackProperties");
    EXPECT_EQ(margins(grid()).toStdString(), "16 14 16 14");
    EXPECT_EQ(grid().verticalSpacing(), 8);
    EXPECT_EQ(grid().horizontalSpacing(), 10);
    EXPECT_EQ(grid().rowMinimumHeight(3), at("Command1").sizeHint().height());
    EXPECT_EQ(grid().rowMinimumHeight(4), 6);
    EXPECT_EQ(text(described(grid())), "Label1 0,0\n"
                                       "txtTrackName 0,1\n"
                                       "Command9 0,2\n"
                                       "lblPatchDisplay 1,0 1x2\n"
                                       "Command2 1,2\n"
                                       "Label6 2,0\n"
                                       "lblTuning 2,1\n"
                                       "Command1 2,2\n"
                                       "Label2 3,0\n"
                                       "tVolume 3,1\n"
                                       "lblVolume 3,2 aligned 132\n"
                                       "Command3 5,2\n"
                                       "row 4 stretch 1\n"
                                       "column 1 stretch 1\n");
    EXPECT_EQ(opened->windowModality(), Qt::WindowModal);
    EXPECT_EQ(opened->width(), std::max(opened->sizeHint().width(), 420));
    EXPECT_EQ(opened->height(), opened->sizeHint().height());
    EXPECT_EQ(at("tVolume").minimumWidth(), 180);
    for (const char* label : {"lblPatchDisplay", "lblTuning", "lblVolume"})
        EXPECT_EQ(at<QLabel>(label).textFormat(), Qt::PlainText) << label;
    for (const char* button : {"Command9", "Command2", "Command1"})
        EXPECT_FALSE(at<QPushButton>(button).autoDefault()) << button;
    EXPECT_TRUE(at<QPushButton>("Command3").isDefault());
    EXPECT_EQ(opened->focusWidget(), &at("txtTrackName"));
    EXPECT_EQ(at<QLineEdit>("txtTrackName").selectedText(), "Untitled Track");
}

TEST_F(Windows, OfATrackShowTheVolumeBesideTheSlider) {
    window->document().TrackVolumes.front() = "70";
    open("mnuTrackProps", "frmTrackProperties");
    EXPECT_EQ(at<QLabel>("lblVolume").text(), "70");
    at<QSlider>("tVolume").setValue(99);
    EXPECT_EQ(at<QLabel>("lblVolume").text(), "99");
    QTest::keyClick(&at("tVolume"), Qt::Key_Home);
    EXPECT_EQ(at<QLabel>("lblVolume").text(), "60");
    EXPECT_EQ(window->document().TrackVolumes.front(), "60");
    window->document().TrackCount = 0;
    at<QSlider>("tVolume").setValue(100);
    EXPECT_EQ(window->document().TrackVolumes.front(), "60");
}

TEST_F(Windows, OfTheInstruments) {
    open("mnuTrackProps", "frmTrackProperties");
    QTest::mouseClick(&at("Command2"), Qt::LeftButton);
    opened = form("frmInstrumentSelector");
    ASSERT_NE(opened, nullptr);
    const auto& column = *qobject_cast<QVBoxLayout*>(opened->layout());
    EXPECT_EQ(margins(column).toStdString(), "14 12 14 14");
    EXPECT_EQ(text(described(column)), "Label1 stretch 0\n"
                                       "lst_Instrument stretch 1\n"
                                       "space 4 stretch 0\n"
                                       "layout stretch 0\n");
    const auto& buttons = *qobject_cast<QHBoxLayout*>(column.itemAt(3)->layout());
    EXPECT_EQ(text(described(buttons)), "Command1 stretch 0\nspace 0 stretch 0\nCommand2 stretch 0\n");
    EXPECT_TRUE(buttons.itemAt(1)->expandingDirections() & Qt::Horizontal);
    EXPECT_EQ(opened->size(), opened->sizeHint().expandedTo({300, 400}));
    EXPECT_EQ(opened->windowModality(), Qt::ApplicationModal);
    EXPECT_FALSE(at<QPushButton>("Command1").autoDefault());
    EXPECT_TRUE(at<QPushButton>("Command2").isDefault());
    EXPECT_EQ(opened->focusWidget(), &at("lst_Instrument"));
    EXPECT_EQ(opened->windowHandle()->transientParent(), form("frmTrackProperties")->windowHandle());
    EXPECT_EQ(at<QLabel>("Label1").buddy(), &at("lst_Instrument"));
}

TEST_F(Windows, OfTheInstrumentsCloseInOrderAndRedraw) {
    open("mnuTrackProps", "frmTrackProperties");
    QTest::mouseClick(&at("Command2"), Qt::LeftButton);
    window->document().TrackInstruments.front() = "31";
    window->setWindowTitle("stale");
    opened = form("frmInstrumentSelector");
    QTest::keyClick(opened, Qt::Key_Escape);
    EXPECT_FALSE(opened->isVisible());
    EXPECT_NE(window->windowTitle(), "stale");
    opened = form("frmTrackProperties");
    EXPECT_EQ(at<QLabel>("lblPatchDisplay").text(), "Patch: Guitar Harmonics");
}

TEST_F(Windows, AboutTheProgramTellOfAMissingSystemToolAndOfNothingElse) {
    open("mnuAbout", "frmAbout");
    systemInformation.starts = true;
    QTest::mouseClick(&at("cmdSysInfo"), Qt::LeftButton);
    EXPECT_EQ(systemInformation.take(), 1);
    EXPECT_TRUE(boxes.take().empty());
    systemInformation.starts = false;
    QTest::mouseClick(&at("cmdSysInfo"), Qt::LeftButton);
    const auto told = boxes.take();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.first().box.text.toStdString(), "System Information Is Unavailable At This Time");
}

TEST_F(Windows, AboutTheProgram) {
    open("mnuAbout", "frmAbout");
    EXPECT_EQ(margins(grid()).toStdString(), "24 20 24 20");
    EXPECT_EQ(grid().verticalSpacing(), 10);
    EXPECT_EQ(grid().rowMinimumHeight(4), 12);
    EXPECT_EQ(text(described(grid())), "unnamed 0,0 1x3\n"
                                       "lblVersion 1,0 1x3\n"
                                       "lblCredits 2,0 1x3\n"
                                       "lblSequencer 3,0 1x3\n"
                                       "cmdSysInfo 5,1\n"
                                       "cmdOK 5,2\n"
                                       "column 0 stretch 1\n");
    EXPECT_TRUE(at<QLabel>("lblCredits").wordWrap());
    EXPECT_EQ(at("lblCredits").minimumWidth(), 340);
    EXPECT_FALSE(at<QPushButton>("cmdSysInfo").autoDefault());
    EXPECT_TRUE(at<QPushButton>("cmdOK").isDefault());
    EXPECT_EQ(opened->focusWidget(), &at("cmdOK"));
    const auto& title = *qobject_cast<QLabel*>(grid().itemAtPosition(0, 0)->widget());
    EXPECT_TRUE(title.font().bold());
    EXPECT_DOUBLE_EQ(title.font().pointSizeF(), opened->font().pointSizeF() * 1.8);
    auto& author = at<QLabel>("lblSequencer");
    EXPECT_EQ(author.textInteractionFlags(), Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    emit author.linkActivated("author");
    EXPECT_EQ(addresses.take(), QStringList{"https://tabrova.invalid/author"});
    QTest::mouseClick(&at("cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(opened->isVisible());
}

class NoteLines : public ::testing::Test {
  protected:
    NoteLines() { box.show(); }
    QString written() const { return box.toPlainText(); }

    NotesBox box{nullptr};
};

TEST_F(NoteLines, HoldTwoHundredAndFiftyCharactersALineEndCountingTwo) {
    box.setPlainText(QString(260, 'n'));
    EXPECT_EQ(written(), QString(250, 'n'));
    box.setPlainText(QString(248, 'n') + "\n\n");
    EXPECT_EQ(written(), QString(248, 'n') + "\n");
    box.setPlainText(QString(249, 'n') + "\n");
    EXPECT_EQ(written(), QString(249, 'n'));
}

TEST_F(NoteLines, OfAFileMayBeLongerAndDoNotGrow) {
    box.showNotes(QString(300, 'n'));
    EXPECT_EQ(written().size(), 300);
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(written(), QString(300, 'n'));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(written().size(), 299);
    box.showNotes("short");
    box.setPlainText(QString(260, 'n'));
    EXPECT_EQ(written().size(), 250);
}

TEST_F(NoteLines, ReturnMakesALineWhereThereIsRoomForTwo) {
    box.setPlainText(QString(248, 'n'));
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(written(), QString(248, 'n') + "\n");
    box.setPlainText(QString(249, 'n'));
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(written(), QString(249, 'n'));
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(written(), QString(249, 'n') + "x");
}

TEST_F(NoteLines, ASelectionGivesItsRoomToWhatReplacesIt) {
    box.setPlainText(QString(246, 'n') + "a\nb");
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(246);
    cursor.setPosition(249, QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
    QTest::keyClicks(&box, "12345");
    EXPECT_EQ(written(), QString(246, 'n') + "1234");
}

TEST_F(NoteLines, TheHintIsAskedOnlyForACharacterThatNoFileHolds) {
    int hints = 0;
    box.hint = [&hints] {
        ++hints;
        return QString("no");
    };
    box.setPlainText(QString(250, 'n'));
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(hints, 0);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString::fromUtf8("Ж"), Qt::NoModifier);
    EXPECT_EQ(hints, 1);
    EXPECT_EQ(written(), QString(250, 'n'));
}

TEST_F(NoteLines, WhatIsTakenOutLeavesTheCursorInTheText) {
    box.setPlainText("ab");
    box.moveCursor(QTextCursor::End);
    box.insertPlainText(QString::fromUtf8("ЖЖc"));
    EXPECT_EQ(written(), "abc");
    EXPECT_EQ(box.textCursor().position(), 3);
}

} // namespace
} // namespace tabrova
