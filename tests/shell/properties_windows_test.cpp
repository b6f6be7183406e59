// The windows for the properties of document and tracks, with real clicks and keys.
#include "core/document/document_operations.h"
#include "editing/track_texts.h"
#include "forms/text_edges.h"
#include "tests/shell/main_window.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <fstream>

namespace tabrova {
namespace {

class PropertiesWindows : public testing::MainWindowTest {
  protected:
    Document& document() { return window->document(); }
    void openFileProperties() {
        trigger("mnuFileProperties");
        properties = form("frmFileProperties");
        ASSERT_NE(properties, nullptr);
    }
    void openTrackProperties() {
        trigger("mnuTrackProps");
        track = form("frmTrackProperties");
        ASSERT_NE(track, nullptr);
    }
    void openInstruments() {
        openTrackProperties();
        press(*track, "Command2");
        instruments = form("frmInstrumentSelector");
    }
    void press(const QWidget& on, const char* button) {
        QTest::mouseClick(control<QPushButton>(on, button), Qt::LeftButton);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void addTrack(BoxAnswer answer) {
        boxes.queueAnswer(answer);
        trigger("mnuAddTrack");
        boxes.take();
    }
    QString labelText(const char* name) { return control<QLabel>(*track, name)->text(); }
    ListBox& list() { return *control<ListBox>(*instruments, "lst_Instrument"); }
    void clickRow(int row) {
        list().scrollToItem(list().item(row));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(row)).center());
    }

    QWidget* properties = nullptr;
    QWidget* track = nullptr;
    QWidget* instruments = nullptr;
};

TEST_F(PropertiesWindows, TheDocumentsPropertiesShowItsValuesWithTheFocusOnTheSpeed) {
    load();
    openFileProperties();
    EXPECT_EQ(control<QLineEdit>(*properties, "txtTitle")->text(), "Untitled");
    EXPECT_EQ(control<QLineEdit>(*properties, "txtAuthor")->text(), "Anonymous");
    const auto* speed = control<QSlider>(*properties, "sldSpeed");
    EXPECT_EQ(speed->value(), 480);
    EXPECT_EQ(speed->minimum(), 20);
    EXPECT_EQ(speed->maximum(), 2000);
    EXPECT_EQ(speed->singleStep(), 1);
    EXPECT_EQ(speed->pageStep(), 5);
    EXPECT_FALSE(control<QCheckBox>(*properties, "chkSpeedBoost")->isChecked());
    EXPECT_EQ(control<QPlainTextEdit>(*properties, "txtNotes")->toPlainText(), "");
    EXPECT_TRUE(control<QCheckBox>(*properties, "chkReverb")->isChecked());
    EXPECT_NE(control<QWidget>(*properties, "imgLogo"), nullptr);
    EXPECT_EQ(properties->focusWidget(), speed);
}

TEST_F(PropertiesWindows, DoneWritesAllSixBackAndRedraws) {
    load();
    openFileProperties();
    control<QLineEdit>(*properties, "txtTitle")->setText("Café");
    control<QLineEdit>(*properties, "txtAuthor")->setText("Me");
    control<QSlider>(*properties, "sldSpeed")->setValue(700);
    control<QCheckBox>(*properties, "chkSpeedBoost")->setChecked(true);
    control<QPlainTextEdit>(*properties, "txtNotes")->setPlainText("one\ntwo");
    control<QCheckBox>(*properties, "chkReverb")->setChecked(false);
    EXPECT_EQ(document().Title, "Untitled"); // not before it is closed
    press(*properties, "Command1");
    EXPECT_EQ(document().Title, "Caf\xE9");
    EXPECT_EQ(document().Author, "Me");
    EXPECT_EQ(document().Tempo, 700);
    EXPECT_EQ(document().DoubleTime, -1);
    EXPECT_EQ(document().Notes, "one\r\ntwo");
    EXPECT_EQ(document().PreventReverberations, 0);
    EXPECT_TRUE(window->windowTitle().contains("Café")) << window->windowTitle().toStdString();
    EXPECT_EQ(form("frmFileProperties"), nullptr);
}

TEST_F(PropertiesWindows, ClosingByEscapeWritesBackToo) {
    load();
    openFileProperties();
    control<QSlider>(*properties, "sldSpeed")->setValue(60);
    QTest::keyClick(properties, Qt::Key_Escape);
    EXPECT_EQ(document().Tempo, 60);
}

TEST_F(PropertiesWindows, NumbersBecomeWhatTheControlsShow) {
    load();
    document().Tempo = 5000;
    document().PreventReverberations = 5;
    openFileProperties();
    press(*properties, "Command1");
    EXPECT_EQ(document().Tempo, 2000);
    EXPECT_EQ(document().PreventReverberations, 1);
}

TEST_F(PropertiesWindows, TextsThatWereNotTouchedKeepTheDocumentsBytes) {
    load();
    document().Title = std::string(40, 'T') + "\r\t";
    document().Author = "a\nb";
    document().Notes = std::string(300, 'n') + "\rx";
    document().DoubleTime = -1;
    const std::string title = document().Title, author = document().Author, notes = document().Notes;
    openFileProperties();
    press(*properties, "Command1");
    EXPECT_EQ(document().Title, title);
    EXPECT_EQ(document().Author, author);
    EXPECT_EQ(document().Notes, notes);
    EXPECT_EQ(document().DoubleTime, -1);
}

TEST_F(PropertiesWindows, TitleAuthorAndNotesHaveTheirLengths) {
    load();
    openFileProperties();
    for (const char* box : {"txtTitle", "txtAuthor"}) {
        auto* line = control<QLineEdit>(*properties, box);
        line->clear();
        QTest::keyClicks(line, QString(40, 'a'));
        EXPECT_EQ(line->text().size(), 30);
    }
    auto* notes = control<QPlainTextEdit>(*properties, "txtNotes");
    notes->setPlainText(QString("ab\n").repeated(100));
    EXPECT_EQ(QString(notes->toPlainText()).replace("\n", "\r\n").size(), 250);
    notes->setPlainText(QString::fromUtf8("Файл é 🎸?"));
    EXPECT_EQ(notes->toPlainText(), QString::fromUtf8(" é ?"));
}

TEST_F(PropertiesWindows, SpeedSliderAndBoxAgree) {
    load();
    openFileProperties();
    control<QSpinBox>(*properties, "spnSpeed")->setValue(333);
    EXPECT_EQ(control<QSlider>(*properties, "sldSpeed")->value(), 333);
    control<QSlider>(*properties, "sldSpeed")->setValue(444);
    EXPECT_EQ(control<QSpinBox>(*properties, "spnSpeed")->value(), 444);
}

TEST_F(PropertiesWindows, PlaybackReadsTheCheckBox) {
    load();
    document().DoubleTime = -1;
    trigger("mnuSoundPlayAll"); // loads the form by itself
    ASSERT_NE(form("frmFileProperties"), nullptr);
    EXPECT_FALSE(form("frmFileProperties")->isVisible());
    const ListedTimer* timer = timers.timers().value("Hitime1");
    EXPECT_EQ(timer->timerInterval(), 62);
    trigger("mnuPlaybackStop");
    control<QCheckBox>(*form("frmFileProperties"), "chkSpeedBoost")->setChecked(false);
    trigger("mnuSoundPlayAll");
    EXPECT_EQ(timer->timerInterval(), 125);
    trigger("mnuPlaybackStop");
    EXPECT_EQ(document().DoubleTime, -1);
}

TEST_F(PropertiesWindows, ANewDocumentUnloadsTheFormSoThatItShowsTheNewValues) {
    load();
    document().Tempo = 900;
    trigger("mnuSoundPlayAll");
    trigger("mnuPlaybackStop");
    trigger("mnuFileNew");
    ASSERT_NE(form("frmFileProperties"), nullptr);
    int shown = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "frmFileProperties" && widget->isVisible()) {
            ++shown;
            EXPECT_EQ(control<QSlider>(*widget, "sldSpeed")->value(), 480);
        }
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(document().Tempo, 480);
}

TEST_F(PropertiesWindows, ATracksPropertiesShowItsValues) {
    load();
    openTrackProperties();
    EXPECT_EQ(track->windowTitle(), "Track Properties - Untitled Track");
    EXPECT_EQ(control<QLineEdit>(*track, "txtTrackName")->text(), "Untitled Track");
    EXPECT_EQ(labelText("lblPatchDisplay"), "Patch: Acoustic Guitar (nylon)");
    EXPECT_EQ(labelText("lblTuning"), "E A D G B E");
    const auto* volume = control<QSlider>(*track, "tVolume");
    EXPECT_EQ(volume->value(), 127);
    EXPECT_EQ(volume->minimum(), 60);
    EXPECT_EQ(volume->maximum(), 127);
}

TEST_F(PropertiesWindows, SetWritesTheNameAndSelectsTheRow) {
    load();
    openTrackProperties();
    midi.take();
    control<QLineEdit>(*track, "txtTrackName")->setText("Lead");
    press(*track, "Command9");
    EXPECT_EQ(document().TrackNames.front(), "Lead");
    EXPECT_EQ(track->windowTitle(), "Track Properties - Lead");
    EXPECT_EQ(control<ListBox>(*window, "TrackNames")->item(0)->text(), "Lead");
    EXPECT_EQ(control<QLabel>(*window, "StatusBar1(1)")->text(), "Track Lead");
    EXPECT_TRUE(track->isVisible());
}

TEST_F(PropertiesWindows, DoneSetsAndCloses) {
    load();
    openTrackProperties();
    control<QLineEdit>(*track, "txtTrackName")->setText("Rhythm");
    press(*track, "Command3");
    EXPECT_EQ(document().TrackNames.front(), "Rhythm");
    EXPECT_EQ(form("frmTrackProperties"), nullptr);
}

TEST_F(PropertiesWindows, AnEmptyNameLeavesTheOldOne) {
    load();
    openTrackProperties();
    control<QLineEdit>(*track, "txtTrackName")->clear();
    press(*track, "Command9");
    EXPECT_EQ(document().TrackNames.front(), "Untitled Track");
    press(*track, "Command3");
    EXPECT_EQ(form("frmTrackProperties"), nullptr);
}

TEST_F(PropertiesWindows, APercussionTrackHasNeitherTuningNorPatch) {
    load();
    addTrack(BoxAnswer::Yes);
    openTrackProperties();
    press(*track, "Command9");
    EXPECT_EQ(track->windowTitle(), "Track Properties - Untitled Track (Perc.)");
    for (const char* name : {"Label6", "lblTuning", "lblPatchDisplay"})
        EXPECT_TRUE(control<QLabel>(*track, name)->isHidden()) << name;
    EXPECT_FALSE(control<QPushButton>(*track, "Command1")->isEnabled());
    EXPECT_FALSE(control<QPushButton>(*track, "Command2")->isEnabled());
    press(*track, "Command3");
    window->document().CurrentTrack = 1;
    openTrackProperties();
    EXPECT_FALSE(control<QLabel>(*track, "lblTuning")->isHidden());
    EXPECT_TRUE(control<QPushButton>(*track, "Command2")->isEnabled());
}

TEST_F(PropertiesWindows, TheVolumeIsWrittenAsTextAtEachMove) {
    load();
    addTrack(BoxAnswer::No);
    openTrackProperties();
    control<QSlider>(*track, "tVolume")->setValue(88);
    EXPECT_EQ(document().TrackVolumes, (std::vector<std::string>{"127", "88"}));
}

TEST_F(PropertiesWindows, AVolumeThatIsNoNumberStaysUntilTheSliderMoves) {
    load();
    for (const char* text : {"loud", "", "40", "200", " 90 "}) {
        document().TrackVolumes.front() = text;
        openTrackProperties();
        EXPECT_EQ(document().TrackVolumes.front(), text);
        EXPECT_EQ(control<QSlider>(*track, "tVolume")->value(), trackVolume(document(), 1).value_or(127));
        press(*track, "Command3");
        EXPECT_EQ(document().TrackVolumes.front(), text);
    }
}

TEST_F(PropertiesWindows, AVolumeThatIsNoNumberTakesTheEndOfTheSlider) {
    load();
    document().TrackVolumes.front() = "loud";
    openTrackProperties();
    QTest::keyClick(control<QSlider>(*track, "tVolume"), Qt::Key_End);
    EXPECT_EQ(document().TrackVolumes.front(), "127");
}

TEST_F(PropertiesWindows, NotesThatAreFullRefuseAKeyAndKeepTheirEnd) {
    load();
    openFileProperties();
    auto* notes = control<QPlainTextEdit>(*properties, "txtNotes");
    notes->setPlainText(QString(247, 'n') + "END");
    notes->moveCursor(QTextCursor::Start);
    QTest::keyClicks(notes, "hello");
    EXPECT_EQ(notes->toPlainText(), QString(247, 'n') + "END");
    notes->selectAll();
    QTest::keyClicks(notes, "abc");
    QTest::sendKeyEvent(QTest::Click, notes, Qt::Key_unknown, QString::fromUtf8("Ж"), Qt::NoModifier);
    EXPECT_EQ(notes->toPlainText(), "abc");
    notes->undo();
    EXPECT_NE(notes->toPlainText(), "abc");
    QApplication::clipboard()->setText(QString::fromUtf8("a\r\nЖb") + QString(400, 'c'));
    notes->selectAll();
    notes->paste();
    EXPECT_EQ(notes->toPlainText().left(5), "a\nbcc");
    EXPECT_EQ(notes->toPlainText().size(), 249);
}

TEST_F(PropertiesWindows, LineEndsThatArePastedIntoANameAreBlanks) {
    load();
    openTrackProperties();
    auto* name = control<QLineEdit>(*track, "txtTrackName");
    name->clear();
    QApplication::clipboard()->setText("A\r\nB\tC");
    name->paste();
    press(*track, "Command3");
    EXPECT_EQ(document().TrackNames.front(), "A  B C");
}

TEST_F(PropertiesWindows, ANameMayHoldWhatTheToolkitTakesForAMark) {
    load();
    document().TrackNames.front() = "A[*]B";
    openTrackProperties();
    EXPECT_EQ(titleOf(*track), "Track Properties - A[*]B");
    EXPECT_EQ(track->windowTitle(), "Track Properties - A[*][*]B");
}

TEST_F(PropertiesWindows, TheInstrumentIsStoredAsTextAndSent) {
    load();
    openInstruments();
    EXPECT_EQ(list().count(), 128);
    EXPECT_EQ(list().chosenRow(), 24);
    midi.take();
    clickRow(30);
    EXPECT_EQ(document().TrackInstruments.front(), "30");
    const auto sent = midi.take();
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sent.back(), (std::array<std::uint8_t, 3>{0xC0, 30, 0}));
    press(*instruments, "Command2");
    EXPECT_FALSE(instruments->isVisible());
    EXPECT_EQ(labelText("lblPatchDisplay"), "Patch: Distortion Guitar");
}

TEST_F(PropertiesWindows, OkWithNothingChosenTakesTheFirstInstrument) {
    load();
    document().TrackInstruments.front() = "999";
    openInstruments();
    EXPECT_EQ(list().chosenRow(), -1);
    EXPECT_EQ(labelText("lblPatchDisplay"), "Patch: ");
    press(*instruments, "Command2");
    EXPECT_EQ(document().TrackInstruments.front(), "0");
}

TEST_F(PropertiesWindows, ASamplePlaysOneNoteFrom40To73AndIsStoppedOnce) {
    load();
    openInstruments();
    for (int pass = 0; pass < 200; ++pass) {
        midi.take();
        press(*instruments, "Command1");
        const auto sent = midi.take();
        ASSERT_GT(sent.size(), 1U);
        EXPECT_EQ(sent.back()[0], 0x90);
        EXPECT_GE(sent.back()[1], 40);
        EXPECT_LE(sent.back()[1], 73);
        EXPECT_EQ(sent.back()[2], 127);
    }
    ListedTimer* stopper = timers.timers().value("tmrNoteStopper");
    ASSERT_NE(stopper, nullptr);
    EXPECT_TRUE(stopper->timerEnabled());
    midi.take();
    stopper->fire();
    EXPECT_FALSE(stopper->timerEnabled());
    EXPECT_FALSE(midi.take().empty());
}

TEST_F(PropertiesWindows, ASamplesNoteIsTheFractionOf34NotesFrom40) {
    load();
    openInstruments();
    for (const auto& [fraction, note] :
         {std::pair{0.0, 40}, {0.029, 40}, {0.03, 41}, {0.5, 57}, {0.97, 72}, {0.9999, 73}}) {
        randomness.given = {fraction};
        press(*instruments, "Command1");
        EXPECT_EQ(midi.take().back()[1], note) << fraction;
    }
}

class InstrumentFiles : public PropertiesWindows, public ::testing::WithParamInterface<int> {};

TEST_P(InstrumentFiles, OfAnyLengthFillTheList) {
    std::ofstream file(folder() / "genmidi.txt", std::ios::trunc);
    for (int line = 0; line < GetParam(); ++line)
        file << "Instrument " << line << "\r\n";
    file.close();
    load();
    openInstruments();
    EXPECT_EQ(list().count(), GetParam());
    EXPECT_EQ(labelText("lblPatchDisplay"),
              GetParam() > 24 ? QString("Patch: Instrument 24") : QString("Patch: "));
    press(*instruments, "Command2");
    EXPECT_TRUE(boxes.take().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Lines, InstrumentFiles, ::testing::Values(0, 1, 128, 10000));

TEST_F(PropertiesWindows, WithoutTheInstrumentFileTheListIsEmptyWithoutAWord) {
    std::filesystem::remove(folder() / "genmidi.txt");
    load();
    openInstruments();
    EXPECT_EQ(list().count(), 0);
    press(*instruments, "Command2");
    EXPECT_EQ(document().TrackInstruments.front(), "24");
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(PropertiesWindows, AssignedTuningsShowAtOnce) {
    load();
    openTrackProperties();
    window->bench().tracks.assignTuning(11, 13, 13, 13, 13, 14);
    EXPECT_EQ(document().TuningTable, (std::vector<std::int16_t>{14, 13, 13, 13, 13, 11}));
    EXPECT_EQ(labelText("lblTuning"), "D A D G B F");
}

TEST(TuningNames, AreThoseOfAnyTuning) {
    Document document;
    resetToNewDocument(document);
    EXPECT_EQ(tuningNames(document, 1), "E A D G B E");
    document.TuningTable = {25, 1, 14, 12, -32768, 32767};
    EXPECT_EQ(tuningNames(document, 1).size() > 10, true);
    document.TuningTable = {12, 12, 12, 12, 12, 12};
    EXPECT_EQ(tuningNames(document, 1), "D# G# C# F# A# D#");
    EXPECT_EQ(tuningNames(document, 9), "E A D G B E");
}

} // namespace
} // namespace tabrova
