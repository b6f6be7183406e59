// Random acts of a user on what every kind of failed read leaves, in the real program: menus, keys, clicks,
// panels, tracks, playback, properties, saving. Nothing is compared; the program must bear them all. Longer
// walks by TABROVA_WALK_COMMANDS and TABROVA_WALK_SEED.
#include "tests/app/driver_session.h"
#include "tests/core/document/damaged_documents.h"

#include <QFile>

#include <fstream>
#include <random>

namespace tabrova::testing {
namespace {

constexpr const char* MenuItems[] = {"mnuFileNew",
                                     "mnuFileSave",
                                     "mnuSaveAs",
                                     "mnuFileProperties",
                                     "mnuCCP",
                                     "mnuStandard",
                                     "mnuIntelligent",
                                     "mnuCopyStaff",
                                     "mnuCopyNextBeat(0)",
                                     "mnuCopyNextBeat(7)",
                                     "mnuEditPaste(0)",
                                     "mnuEditPaste(1)",
                                     "mnuViewNotation",
                                     "mnuVirtualFretboard",
                                     "mnuViewRefresh",
                                     "mnuEditNewBarBeforeCurrent",
                                     "mnuEditNewBarAfterCurrentBar",
                                     "mnuEditnewBarAtEndofDocument",
                                     "ClearStaffallall",
                                     "clearstaffallnorepeats",
                                     "clearstaffallnotes",
                                     "clearstaffalltech",
                                     "clearstaffcurrentall",
                                     "clearstaffcurrentnorepeats",
                                     "clearstaffcurrentnotes",
                                     "clearstaffcurrenttech",
                                     "mnuDeleteBar",
                                     "mnuEditInsertNoteOnAllTracks",
                                     "mnuEditInsertNoteOnCurrentTrack",
                                     "mnuEditRemoveNoteonAllTracks",
                                     "mnuEditRemoveNoteonCurrentTrack",
                                     "mnuNoteDeleteNote",
                                     "mnuNoteDeleteTechnique",
                                     "mnuInsertSeparator",
                                     "mnuInsertOpenRepeat",
                                     "mnuInsertClosedRepeat",
                                     "mnuNoteRemoveBar",
                                     "mnuAddTrack",
                                     "mnuKillTrack",
                                     "mnuTrackProps",
                                     "mnuChoose",
                                     "mnuToolsOptions",
                                     "mnuSoundPlayAll",
                                     "mnuPlayFromHere",
                                     "mnuPlaybackStop",
                                     "mnuAbout"};

constexpr const char* Keys[] = {"Left",      "Right",  "Up",          "Down",   "7",
                                "1",         "2",      "X",           "J",      "H",
                                "B",         "G",      "K",           "U",      "Z",
                                "Return",    "Space",  "Shift+Space", "Delete", "Shift+Delete",
                                "Backspace", "Escape", "PgUp",        "PgDown", "Ctrl+Z",
                                "Tab",       "Home",   "End"};

constexpr const char* Places[] = {"picDocument",
                                  "picFretboard",
                                  "picStandardNotation",
                                  "picNoteSelector",
                                  "picBend",
                                  "StatusBar1(1)",
                                  "TrackNames",
                                  "frmOptions.lstColors",
                                  "Toolbar1(wholenote)",
                                  "Toolbar1(triplet)",
                                  "Toolbar1(sixteenthnote)",
                                  "Toolbar1(bend)",
                                  "Toolbar1(ghostnote)",
                                  "Command1",
                                  "AddTrack",
                                  "Image1"};

constexpr const char* Receivers[] = {"picDocument",
                                     "picDocument",
                                     "picDocument",
                                     "picBend",
                                     "RepeatScroller",
                                     "TrackNames",
                                     "frmTrackProperties.txtTrackName",
                                     "frmTrackProperties.tVolume",
                                     "frmFileProperties.sldSpeed",
                                     "frmFileProperties.txtNotes"};

class DamagedWalk {
  public:
    explicit DamagedWalk(unsigned seed) : random_(seed) {
        int number = 0;
        for (const DamagedDocument& damaged : damagedDocuments()) {
            const QString path = folder_.filePath(QString("damaged%1.tr3").arg(number++));
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(damaged.bytes.data(), static_cast<qint64>(damaged.bytes.size()));
            files_.append(path);
        }
        drive_.ok("freeze");
        drive_.ok("resize frmMain 800 500");
    }

    void run(int commands) {
        openDamaged();
        const long before = memory();
        for (int each = 0; each < commands && !::testing::Test::HasFailure(); ++each) {
            if (each % 60 == 59) openDamaged();
            act();
        }
        tidy();
        std::cout << sent_ << " commands, memory at the start " << before << " KB, at the end " << memory()
                  << " KB\n";
    }

    // A new document is as good as ever.
    void expectWhole() {
        openDamaged();
        tidy();
        drive_.ok("answer no");
        drive_.ok("do mnuFileNew");
        drive_.run("click frmFileProperties.Command1");
        const QJsonObject doc = drive_.doc();
        EXPECT_EQ(doc["TrackCount"].toInt(), 1);
        EXPECT_EQ(doc["StaffCount"].toInt(), 1);
        EXPECT_EQ(doc["ColumnCapacity"].toInt(), 32);
        EXPECT_TRUE(doc["NoteGrid"].toArray().isEmpty());
        drive_.ok("press picDocument 7");
        EXPECT_EQ(note(drive_.doc(), 0, 0), "7");
    }

  private:
    int choose(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
    template <std::size_t Count>
    QString oneOf(const char* const (&list)[Count]) {
        return list[choose(0, static_cast<int>(Count) - 1)];
    }

    // False if the program refused, as it may: the control is disabled or not there.
    bool send(const QString& command) {
        ++sent_;
        const QJsonObject answer = drive_.run(command);
        EXPECT_FALSE(answer.isEmpty()) << "no answer to " << command.toStdString();
        EXPECT_FALSE(answer.contains("ended")) << command.toStdString();
        return !answer.contains("error");
    }

    long memory() {
        std::ifstream status("/proc/" + std::to_string(drive_.processId()) + "/status");
        for (std::string word; status >> word;)
            if (word == "VmRSS:") {
                long kilobytes = 0;
                status >> kilobytes;
                return kilobytes;
            }
        return 0;
    }

    // Out of panels, playback and windows that hold the page closed.
    void tidy() {
        for (const char* command :
             {"do mnuPlaybackStop", "press picBend Return", "press RepeatScroller Return",
              "press frmFileProperties Escape", "press frmTrackProperties Escape",
              "press frmInstrumentSelector Escape", "press frmOptions Escape", "press frmAbout Escape",
              "boxes", "choosers", "midi"})
            send(command);
    }

    void openDamaged() {
        tidy();
        // Answers that nobody asked for yet would be given to the next question.
        for (; unasked_ > 0; --unasked_)
            send("do mnuKillTrack");
        for (; unchosen_ > 0; --unchosen_)
            send("do mnuSaveAs");
        send("answer no");
        send("answer file " + files_[choose(0, static_cast<int>(files_.size()) - 1)]);
        send("do mnuFileOpen");
    }

    QString place(int width, int height) {
        const char* const far[] = {"2147483647 2147483647", "-2147483648 5", "5 -2147483648",
                                   "2147483647 40"};
        if (choose(0, 30) == 0) return oneOf(far);
        return QString("%1 %2").arg(choose(0, width)).arg(choose(0, height));
    }

    void act() {
        const int kind = choose(0, 99);
        if (kind < 35) return press();
        if (kind < 62) return menu();
        if (kind < 80) return mouse();
        if (kind < 88) return value();
        if (kind < 96) return play();
        send(QString("resize frmMain %1 %2").arg(choose(200, 1200)).arg(choose(100, 800)));
    }

    void press() { send("press " + oneOf(Receivers) + " " + oneOf(Keys)); }

    void menu() {
        const QString item = oneOf(MenuItems);
        const bool asks = item == "mnuFileNew" || item == "mnuAddTrack" || item == "mnuKillTrack";
        const bool chooses = item == "mnuSaveAs";
        const char* const answers[] = {"yes", "no", "cancel"};
        if (asks) send("answer " + oneOf(answers));
        if (chooses) send("answer file " + folder_.filePath("saved.tr3"));
        const bool done = send("do " + item);
        if (asks && !done) ++unasked_;
        if (chooses && !done) ++unchosen_;
    }

    void mouse() {
        const char* const acts[] = {"click", "click", "click", "dblclick", "move", "down", "up"};
        const char* const buttons[] = {"left", "right", "middle"};
        send(oneOf(acts) + " " + oneOf(Places) + " " + place(900, 500) + " " + oneOf(buttons));
    }

    void value() {
        const char* const values[] = {"VScroll1 3",
                                      "VScroll1 1",
                                      "VScroll1 900",
                                      "TrackNames 0",
                                      "TrackNames 1",
                                      "TrackNames 500",
                                      "frmTrackProperties.tVolume 80",
                                      "frmTrackProperties.txtTrackName \"a name\"",
                                      "frmFileProperties.txtTitle \"a title\"",
                                      "frmFileProperties.txtNotes \"two\\nlines\"",
                                      "frmFileProperties.sldSpeed 2000",
                                      "frmFileProperties.chkSpeedBoost 1",
                                      "frmOptions.PlayAllTracks 1",
                                      "frmOptions.PlayCurrentTrack 1",
                                      "frmOptions.PlayNone 1",
                                      "frmOptions.chkStats 1",
                                      "frmOptions.chkTABOUT 0"};
        send("set " + oneOf(values));
    }

    void play() {
        const char* const starts[] = {"mnuSoundPlayAll", "mnuPlayFromHere"};
        send("do " + oneOf(starts));
        for (int ticks = choose(1, 12); ticks > 0; --ticks)
            send("fire Hitime1");
        if (choose(0, 2) == 0) send("fire tmrsndStopper");
        if (choose(0, 3) != 0) send("do mnuPlaybackStop");
    }

    std::mt19937 random_;
    QTemporaryDir folder_;
    DriverSession drive_;
    QStringList files_;
    int sent_ = 0;
    int unasked_ = 0, unchosen_ = 0;
};

TEST(DamagedDocuments, BearEveryActOfAUser) {
    const int commands = qEnvironmentVariableIntValue("TABROVA_WALK_COMMANDS");
    const int seed = qEnvironmentVariableIntValue("TABROVA_WALK_SEED");
    DamagedWalk walk(static_cast<unsigned>(seed == 0 ? 1 : seed));
    walk.run(commands == 0 ? 1500 : commands);
    if (!HasFailure()) walk.expectWhole();
}

// Each of them as it was found: a document that ends behind the number of its tracks, then one command.
TEST(DamagedDocuments, KeepTheNotesTypedAfterAFailedReadInTheirCells) {
    for (const char* tracks : {" 1000 ", " 3 ", "-1 "}) {
        SCOPED_TRACE(tracks);
        QTemporaryDir folder;
        QFile file(folder.filePath("cut.tr3"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(endsBehindTrackCount(tracks).c_str());
        file.close();
        DriverSession drive({file.fileName()});
        drive.ok("press picDocument 7");
        drive.ok("press picDocument G");
        drive.ok("do mnuEditInsertNoteOnAllTracks");
        const QJsonObject doc = drive.doc();
        const bool moved = QString(tracks) != "-1 ";
        EXPECT_EQ(note(doc, moved ? 1 : 0, 0), "7");
        EXPECT_EQ(cell(doc, "TechniqueGrid", moved ? 1 : 0, 0), "g");
        EXPECT_EQ(doc["NoteGrid"].toArray().size(), 1);
    }
}

} // namespace
} // namespace tabrova::testing
