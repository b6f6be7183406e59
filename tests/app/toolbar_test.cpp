// The toolbar in the real program: its places, and what each button does at a real click.
#include "driver_session.h"

namespace tabrova::testing {
namespace {

const QStringList Words = {
    "new",          "open",        "save",       "print",        "printpreview", "properties", "playall",
    "playfromhere", "stop",        "tr3",        "bend",         "hammer",       "slide",      "vibrato",
    "whammy",       "dive",        "ghostnote",  "harmonic",     "fade",         "tap",        "slap",
    "pop",          "ring",        "dead",       "staccato",     "jump",         "wholenote",  "halfnote",
    "triplet",      "quarternote", "eighthnote", "sixteenthnote"};

QString button(const QString& word) { return "Toolbar1(" + word + ")"; }

class ToolbarButtons : public ::testing::Test {
  protected:
    void click(const QString& word) { drive.ok("click " + button(word)); }
    bool enabled(const QString& word) { return drive.get(button(word) + " enabled").toBool(); }
    int left(const QString& word) { return drive.get(button(word) + " geometry").toArray()[0].toInt(); }
    // A document of one staff and one percussion track.
    void openPercussion() {
        QFile file(folder.filePath("drums.tr3"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Drums\r\nA\r\n1\r\n 480 \r\n\r\nFalse\r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n"
                   "Drums\r\n127\r\nFalse\r\n0\r\n");
        file.write(QByteArray(" 13 \r\n").repeated(6) + QByteArray("\r\n").repeated(32 * 13));
        file.close();
        drive.ok("answer no");
        drive.ok("answer file " + file.fileName());
        drive.ok("do mnuFileOpen");
    }
    QTemporaryDir folder;
    DriverSession drive;
};

TEST_F(ToolbarButtons, StandInTheirOrder) {
    for (qsizetype at = 1; at < Words.size(); ++at) {
        if (Words[at] == "printpreview" || Words[at - 1] == "printpreview") continue;
        EXPECT_LT(left(Words[at - 1]), left(Words[at])) << Words[at].toStdString();
    }
    EXPECT_FALSE(drive.get(button("printpreview") + " visible").toBool());
}

TEST_F(ToolbarButtons, FitIntoTheNarrowestWindow) {
    drive.ok("resize frmMain 783 500");
    const QJsonArray last = drive.get(button("sixteenthnote") + " geometry").toArray();
    EXPECT_LE(last[0].toInt() + last[2].toInt(), 783);
}

TEST_F(ToolbarButtons, NameTheirCommand) {
    for (const QString& word : Words)
        EXPECT_FALSE(drive.get(button(word) + " tooltip").toString().isEmpty()) << word.toStdString();
    EXPECT_EQ(drive.get(button("hammer") + " tooltip").toString(), "Hammer-on or Pull-off (H)");
}

TEST_F(ToolbarButtons, StoreTheTechniquesOfTheirKeys) {
    const std::pair<const char*, const char*> techniques[] = {
        {"hammer", "h"},    {"slide", "s"},    {"vibrato", "v"}, {"whammy", "w"}, {"dive", "d"},
        {"ghostnote", "g"}, {"harmonic", "m"}, {"fade", "f"},    {"tap", "t"},    {"slap", "l"},
        {"pop", "o"},       {"ring", "r"},     {"staccato", "."}};
    for (const auto& [word, code] : techniques) {
        click(word);
        const QJsonArray cells = drive.doc()["TechniqueGrid"].toArray();
        ASSERT_EQ(cells.size(), 1) << word;
        EXPECT_EQ(DriverSession::text(cells[0].toArray()[2]), code);
    }
}

TEST_F(ToolbarButtons, StoreTheNotesOfTheirKeys) {
    click("dead");
    EXPECT_EQ(DriverSession::text(drive.doc()["NoteGrid"].toArray()[0].toArray()[2]), "x");
    click("jump");
    EXPECT_EQ(DriverSession::text(drive.doc()["NoteGrid"].toArray()[0].toArray()[2]), ">");
}

TEST_F(ToolbarButtons, OpenTheBendPanel) {
    drive.ok("key 86"); // vibrato: the panel's opening clears it
    click("bend");
    EXPECT_TRUE(drive.page()["picBend"].toObject()["visible"].toBool());
    EXPECT_TRUE(drive.doc()["TechniqueGrid"].toArray().isEmpty());
    drive.ok("press picBend Return");
    EXPECT_EQ(DriverSession::text(drive.doc()["TechniqueGrid"].toArray()[0].toArray()[2]), "p0.5");
}

TEST_F(ToolbarButtons, SetTheLengthOfTheNote) {
    const std::pair<const char*, int> lengths[] = {{"wholenote", 16}, {"halfnote", 8},
                                                   {"triplet", 3},    {"quarternote", 4},
                                                   {"eighthnote", 2}, {"sixteenthnote", 1}};
    drive.ok("key 55");
    for (int step = 0; step < 3; ++step)
        drive.ok("key 39");
    drive.ok("key 53");
    drive.ok("click picDocument 24 28");
    for (const auto& [word, columns] : lengths) {
        click(word);
        const QJsonArray cells = drive.doc()["NoteGrid"].toArray();
        ASSERT_EQ(cells.size(), 2) << word;
        EXPECT_EQ(cells[0].toArray()[0].toInt(), 0);
        EXPECT_EQ(cells[1].toArray()[0].toInt(), columns) << word;
        EXPECT_EQ(drive.doc()["CurrentColumn"].toInt(), 0);
    }
}

TEST_F(ToolbarButtons, RunTheCommandsOfTheMenu) {
    drive.ok("answer no");
    click("new");
    EXPECT_EQ(drive.ok("boxes")["boxes"].toArray().size(), 1);
    drive.ok("answer no");
    click("open");
    EXPECT_EQ(drive.ok("boxes")["boxes"].toArray().size(), 1);
    EXPECT_EQ(drive.ok("choosers")["choosers"].toArray().size(), 1);
    click("save");
    EXPECT_EQ(drive.ok("choosers")["choosers"].toArray().size(), 1);
    click("tr3");
    EXPECT_EQ(drive.ok("opened")["opened"].toArray().size(), 1);
    const QJsonObject before = drive.doc();
    click("printpreview");
    EXPECT_EQ(drive.doc(), before);
    EXPECT_TRUE(drive.ok("boxes")["boxes"].toArray().isEmpty());
}

TEST_F(ToolbarButtons, KeepTheFocusOnThePage) {
    drive.ok("press picDocument 5");
    click("hammer");
    EXPECT_TRUE(drive.ok("get picDocument enabled")["value"].toBool());
    drive.ok("press picDocument Right");
    EXPECT_EQ(drive.doc()["ColumnInStaff"].toInt(), 1);
}

TEST_F(ToolbarButtons, OnAPercussionTrackLeaveTheGhostNoteAlone) {
    openPercussion();
    ASSERT_EQ(drive.doc()["GuitarTrackFlags"].toArray(), QJsonArray{false});
    for (qsizetype at = Words.indexOf("bend"); at <= Words.indexOf("jump"); ++at)
        EXPECT_EQ(enabled(Words[at]), Words[at] == "ghostnote") << Words[at].toStdString();
    drive.ok("do mnuSoundPlayAll");
    EXPECT_FALSE(enabled("ghostnote"));
    drive.ok("do mnuPlaybackStop");
    for (qsizetype at = Words.indexOf("bend"); at <= Words.indexOf("jump"); ++at)
        EXPECT_EQ(enabled(Words[at]), Words[at] == "ghostnote") << Words[at].toStdString();
    drive.ok("answer no");
    drive.ok("do mnuFileNew");
    drive.ok("click frmFileProperties.Command1");
    for (qsizetype at = Words.indexOf("bend"); at <= Words.indexOf("jump"); ++at)
        EXPECT_TRUE(enabled(Words[at])) << Words[at].toStdString();
}

} // namespace
} // namespace tabrova::testing
