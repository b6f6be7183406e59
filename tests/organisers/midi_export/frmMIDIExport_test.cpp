// The window of the MIDI export: its lists, its boxes, and what becomes of it.
#include "core/document/document_operations.h"
#include "core/document/track_table.h"
#include "organisers/midi_export/frmMIDIExport.h"
#include "platform/list_box.h"
#include "sound/midi_export.h"
#include "tests/core/files/file_size_limit.h"
#include "tests/sound/midi_file_reader.h"
#include "tests/workbench/tool_bench.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace tabrova::testing {
namespace {

class MidiExportWindow : public ToolBench {
  protected:
    void open(int tracks = 1) {
        while (document().TrackCount < tracks) {
            growByOneTrack(document());
            document().CurrentTrack = static_cast<std::int16_t>(appendTrackRows(document()) + 1);
            finishNewTrack(document(), true);
        }
        form = std::make_unique<frmMIDIExport>(context, nullptr);
        form->closed = [this] { ++closings; };
        form->Form_Load();
        form->Form_Opened({});
        form->show();
        QApplication::processEvents();
    }
    template <class Control = QWidget>
    Control& at(const char* name) {
        return dynamic_cast<Control&>(*form->findChild<QWidget*>(name));
    }
    void click(const char* name) { QTest::mouseClick(&at(name), Qt::LeftButton); }
    QStringList rows(const char* name) {
        QStringList texts;
        auto& list = at<ListBox>(name);
        for (int row = 0; row < list.count(); ++row)
            texts.append(list.item(row)->text());
        return texts;
    }
    void choose(const std::optional<QString>& answer) {
        files.queueAnswer(answer);
        click("Command1");
    }
    // The one box since the last time.
    MessageBox box() {
        const auto asked = boxes.take();
        EXPECT_EQ(asked.size(), 1);
        return asked.empty() ? MessageBox() : asked[0].box;
    }
    QString path(const char* name = "song.mid") const { return home.filePath(name); }

    std::unique_ptr<frmMIDIExport> form;
    int closings = 0;
};

TEST_F(MidiExportWindow, OpensWithTheDocumentsTracksAndAnEmptyQueue) {
    document().TrackNames[0] = "Lead \xFC";
    open(3);
    EXPECT_EQ(form->windowTitle(), "Export MIDI File");
    EXPECT_EQ(rows("lstTracks"),
              (QStringList{QString::fromUtf8("0 - Lead ü"), "1 - Untitled Track", "2 - Untitled Track"}));
    EXPECT_EQ(at<ListBox>("lstTracks").chosenRow(), -1);
    EXPECT_EQ(rows("lsttoUse"), QStringList());
    EXPECT_EQ(at<QLabel>("Label1").text(), "(Please specify a filename)");
    EXPECT_FALSE(at<QCheckBox>("chkReverb").isChecked());
    EXPECT_EQ(at<QProgressBar>("ProgressBar1").value(), 0);
    EXPECT_EQ(at<QLineEdit>("PriorityTrack").text(), "0");
    EXPECT_EQ(form->windowModality(), Qt::WindowModal);
}

TEST_F(MidiExportWindow, HasTheTextsOfTheLanguage) {
    open();
    const std::pair<const char*, const char*> buttons[] = {
        {"Command1", "Choose File..."}, {"Command2", "Export"}, {"Command3", "Cancel"}};
    for (const auto& [name, text] : buttons)
        EXPECT_EQ(at<QPushButton>(name).text(), text);
    const std::pair<const char*, const char*> labels[] = {{"Label2", "Tracks in this Document:"},
                                                          {"Label3", "Exportation Queue:"},
                                                          {"Label4", "Priority Track:"}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(at<QLabel>(name).text(), text);
    EXPECT_EQ(at<QCheckBox>("chkReverb").text(), "Prevent Reverberations");
    for (const char* name : {"Command4", "Command5", "Command6", "Command7"})
        EXPECT_FALSE(at(name).toolTip().isEmpty()) << name;
}

TEST_F(MidiExportWindow, ChoosesAFile) {
    open();
    choose(path());
    EXPECT_EQ(at<QLabel>("Label1").text(), path());
    EXPECT_EQ(files.take()[0].question.kind, FileQuestion::Kind::Save);
    choose(std::nullopt);
    EXPECT_EQ(at<QLabel>("Label1").text(), path());
    EXPECT_EQ(files.take()[0].question.name, path());
}

TEST_F(MidiExportWindow, ProposesTheDocumentsName) {
    open();
    choose(std::nullopt);
    EXPECT_EQ(files.take()[0].question.name, "");
    commands.documents.CommonDialog1.fileName = "/music/song.tr3";
    choose(path());
    EXPECT_EQ(files.take()[0].question.name, "/music/song.mid");
    choose(std::nullopt);
    EXPECT_EQ(files.take()[0].question.name, path());
}

TEST_F(MidiExportWindow, AddsTracksOneAfterTheOther) {
    open(3);
    click("Command6");
    EXPECT_EQ(rows("lsttoUse"), QStringList{"0"});
    EXPECT_EQ(at<ListBox>("lstTracks").chosenRow(), 1);
    click("Command6");
    click("Command6");
    EXPECT_EQ(rows("lsttoUse"), (QStringList{"0", "1", "2"}));
    EXPECT_EQ(at<ListBox>("lstTracks").chosenRow(), 2); // there is no next one
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(MidiExportWindow, ATrackIsQueuedOnce) {
    open(2);
    click("Command6");
    at<ListBox>("lstTracks").setCurrentRow(0);
    click("Command6");
    const MessageBox told = box();
    EXPECT_EQ(told.title, "Tabrova for Windows");
    EXPECT_EQ(told.text, "This track is already in the Exportation Queue.");
    EXPECT_EQ(told.icon, BoxIcon::Exclamation);
    EXPECT_EQ(rows("lsttoUse"), QStringList{"0"});
    EXPECT_EQ(at<ListBox>("lstTracks").chosenRow(), 0);
}

TEST_F(MidiExportWindow, TheSixteenthTrackIsRefused) {
    open(17);
    for (int track = 0; track < 15; ++track)
        click("Command6");
    EXPECT_TRUE(boxes.take().isEmpty());
    click("Command6");
    const MessageBox told = box();
    EXPECT_EQ(told.title, "Tabrova for Windows");
    EXPECT_EQ(told.text, "No more than 15 tracks may be exported to a MIDI File.");
    EXPECT_EQ(told.icon, BoxIcon::Exclamation);
    EXPECT_EQ(rows("lsttoUse").size(), 15);
    // Told before one that is there already.
    at<ListBox>("lstTracks").setCurrentRow(0);
    click("Command6");
    EXPECT_EQ(box().text, "No more than 15 tracks may be exported to a MIDI File.");
}

TEST_F(MidiExportWindow, RemovesTheChosenRowOrTheFirst) {
    open(4);
    click("Command7");
    for (int track = 0; track < 4; ++track)
        click("Command6");
    at<ListBox>("lsttoUse").setCurrentRow(2);
    click("Command7");
    EXPECT_EQ(rows("lsttoUse"), (QStringList{"0", "1", "3"}));
    EXPECT_EQ(at<ListBox>("lsttoUse").chosenRow(), -1);
    click("Command7");
    EXPECT_EQ(rows("lsttoUse"), (QStringList{"1", "3"}));
    click("Command7");
    click("Command7");
    click("Command7");
    EXPECT_EQ(rows("lsttoUse"), QStringList());
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(MidiExportWindow, ListsWorkByDoubleClickAndByKeys) {
    open(3);
    auto& tracks = at<ListBox>("lstTracks");
    auto& queue = at<ListBox>("lsttoUse");
    tracks.setFocus();
    tracks.setCurrentRow(1);
    QTest::keyClick(&tracks, Qt::Key_Return);
    EXPECT_EQ(rows("lsttoUse"), QStringList{"1"});
    const QPoint last = tracks.visualItemRect(tracks.item(2)).center();
    QTest::mouseClick(tracks.viewport(), Qt::LeftButton, {}, last);
    QTest::mouseDClick(tracks.viewport(), Qt::LeftButton, {}, last);
    EXPECT_EQ(rows("lsttoUse"), (QStringList{"1", "2"}));
    queue.setFocus();
    queue.setCurrentRow(1);
    QTest::keyClick(&queue, Qt::Key_Delete);
    EXPECT_EQ(rows("lsttoUse"), QStringList{"1"});
    EXPECT_EQ(closings, 0);
    EXPECT_TRUE(boxes.take().isEmpty()); // nothing was exported by Return
}

TEST_F(MidiExportWindow, ThePriorityIsBetweenNothingAndTheNumberOfTracks) {
    open(2);
    auto& box = at<QLineEdit>("PriorityTrack");
    const auto press = [&](const char* button) {
        click(button);
        return box.text();
    };
    EXPECT_EQ(press("Command5"), "0");
    EXPECT_EQ(press("Command4"), "1");
    EXPECT_EQ(press("Command4"), "2");
    EXPECT_EQ(press("Command4"), "2");
    EXPECT_EQ(press("Command5"), "1");
    for (const char* text : {"", "first", "99999"}) {
        box.setText(text);
        EXPECT_EQ(press("Command4"), text);
        EXPECT_EQ(press("Command5"), text);
    }
}

TEST_F(MidiExportWindow, AsksForAFileFirst) {
    open();
    click("Command2");
    const MessageBox told = box();
    EXPECT_EQ(told.title, "Tabrova for Windows");
    EXPECT_EQ(told.text, "Please choose a file to export to first.");
    EXPECT_EQ(told.icon, BoxIcon::Exclamation);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(log, Log{});
}

TEST_F(MidiExportWindow, ExportsTheQueueAndGoes) {
    document().setNote(0, 0, "1");
    open(3);
    document().setNote(0, 12, "3");
    for (const int row : {2, 0}) {
        at<ListBox>("lstTracks").setCurrentRow(row);
        click("Command6");
    }
    choose(path());
    tools.loaded = {"frmMIDIExport"};
    click("Command2");
    const MessageBox told = box();
    EXPECT_EQ(told.title, "Tabrova for Windows");
    EXPECT_EQ(told.text, "The MIDI file has been exported successfully.");
    EXPECT_EQ(told.icon, BoxIcon::Information);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(log, Log{"unload frmMIDIExport"});
    const ReadMidiFile file = readMidiFile(fileBytes(path().toStdString()));
    ASSERT_EQ(file.tracks.size(), 3U);
    EXPECT_EQ(file.tracks[1].size(), 1U + 31 * 7);
    EXPECT_EQ(file.tracks[1][7], (MidiFileEvent{0, 0x90, 67, 127}));
    EXPECT_EQ(file.tracks[2][7], (MidiFileEvent{0, 0x91, 65, 127}));
}

TEST_F(MidiExportWindow, WritesNoteOffsWhenTheBoxIsChecked) {
    open();
    click("Command6");
    choose(path());
    at<QCheckBox>("chkReverb").setChecked(true);
    click("Command2");
    EXPECT_EQ(readMidiFile(fileBytes(path().toStdString())).tracks[1].size(), 1U + 31 * 14);
}

TEST_F(MidiExportWindow, AnEmptyQueueIsExportedToo) {
    open();
    choose(path());
    click("Command2");
    EXPECT_EQ(box().text, "The MIDI file has been exported successfully.");
    EXPECT_EQ(readMidiFile(fileBytes(path().toStdString())).tracks.size(), 1U);
}

TEST_F(MidiExportWindow, TellsNothingOfAFileThatCannotBeWritten) {
    open();
    choose(path("missing/song.mid"));
    click("Command2");
    EXPECT_EQ(box().text, "The MIDI file has been exported successfully.");
}

TEST_F(MidiExportWindow, TellsNothingOfAFullDisk) {
    open();
    click("Command6");
    choose(path());
    {
        const FileSizeLimit full(100);
        click("Command2");
    }
    EXPECT_EQ(box().text, "The MIDI file has been exported successfully.");
    EXPECT_LE(std::filesystem::file_size(path().toStdString()), 100U);
}

// The window is away then, and comes back as it was left.
TEST_F(MidiExportWindow, AnExportThatEndsEarlySaysNothing) {
    document().setNote(0, 0, "x");
    open(2);
    click("Command6");
    choose(path());
    click("Command2");
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(std::filesystem::exists(path().toStdString()));
    document().setNote(0, 0, "");
    document().TrackNames[1] = "Second";
    form->Form_Opened({});
    form->show();
    EXPECT_EQ(rows("lsttoUse"), QStringList{"0"});
    EXPECT_EQ(rows("lstTracks").last(), "1 - Second");
    click("Command2");
    EXPECT_EQ(box().icon, BoxIcon::Information);
}

TEST_F(MidiExportWindow, CancelAndEscapeCloseIt) {
    open();
    click("Command3");
    EXPECT_EQ(closings, 1);
    form->show();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(closings, 2);
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(MidiExportWindow, ADocumentWithoutTrackListsIsBorne) {
    document().TrackNames.clear();
    document().TrackInstruments.clear();
    form = std::make_unique<frmMIDIExport>(context, nullptr);
    form->Form_Load();
    form->Form_Opened({});
    form->show();
    click("Command6");
    click("Command7");
    EXPECT_EQ(rows("lsttoUse"), QStringList());
    EXPECT_TRUE(boxes.take().isEmpty());
}

} // namespace
} // namespace tabrova::testing
