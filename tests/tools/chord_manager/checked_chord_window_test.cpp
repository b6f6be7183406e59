// The window and its plain model side by side: how they are set up and compared, and the edges that random
// acts seldom reach.
#include "core/document/document_operations.h"
#include "tests/tools/chord_manager/checked_chord_window.h"

#include <QTabWidget>

#include <sstream>

namespace tabrova::testing {

namespace {

std::string iconText(BoxIcon icon) {
    constexpr const char* Names[] = {"none", "information", "question", "exclamation", "critical"};
    return Names[static_cast<std::size_t>(icon)];
}

std::string buttonsText(const QList<BoxAnswer>& buttons) {
    constexpr const char* Names[] = {"ok", "cancel", "yes", "no"};
    std::string text;
    for (const BoxAnswer button : buttons)
        text += (text.empty() ? "" : " ") + std::string(Names[static_cast<std::size_t>(button)]);
    return text;
}

std::vector<PlainBox> plain(const QList<RecordingMessageBoxes::Asked>& asked) {
    std::vector<PlainBox> boxes;
    for (const auto& [box, answer] : asked)
        boxes.push_back(
            {box.title.toStdString(), box.text.toStdString(), iconText(box.icon), buttonsText(box.buttons)});
    return boxes;
}

// The first line that is another one, and all of both.
std::string firstDifference(const std::string& shown, const std::string& wanted) {
    std::istringstream shownLines(shown), wantedLines(wanted);
    std::string shownLine, wantedLine;
    while (shownLine == wantedLine && (shownLines || wantedLines)) {
        if (!std::getline(shownLines, shownLine)) shownLine = "(end)";
        if (!std::getline(wantedLines, wantedLine)) wantedLine = "(end)";
    }
    return "the window has\n  " + shownLine + "\nand the model\n  " + wantedLine + "\nWindow:\n" + shown +
           "Model:\n" + wanted;
}

} // namespace

CheckedChordWindowTest::CheckedChordWindowTest() {
    ResizeGrids(document(), 64, 18);
    document().StaffCount = 2;
    document().TrackCount = 3;
    document().GuitarTrackFlags = {True16, True16, False16};
    document().TrackNames = {"a", "b", "c"};
    document().TrackVolumes = {"127", "100", "90"};
    document().TrackInstruments = {"24", "25", "26"};
    document().setTechnique(0, 3, "h");
    bench.editor.refreshdrawing();
    desk.guitar = {true, true, false};
    desk.staffs = 2;
    midi.take();
}

void CheckedChordWindowTest::open() {
    model = std::make_unique<PlainChordManager>(desk);
    window = std::make_unique<CheckedChordWindow>(context, timers);
    // A list that comes into view shows what lies in its folder by then.
    window->tabShown = [this](int tab) {
        if (tab == 0) model->types.readAgain(desk.typeFiles);
        if (tab == 1) model->chords.readAgain(desk.chordFiles);
    };
}

void CheckedChordWindowTest::close() {
    model->close();
    model.reset();
    window->form.Form_Unload();
    window.reset();
}

std::string CheckedChordWindowTest::documentText() {
    PlainDesk shown;
    shown.staffs = document().StaffCount;
    shown.staff = document().CurrentStaff;
    shown.columnInStaff = document().ColumnInStaff;
    shown.track = document().CurrentTrack;
    shown.string = document().CurrentString;
    for (int column = 0; column < document().ColumnCapacity; ++column)
        for (int row = 0; row < document().RowCapacity; ++row)
            if (const std::string note(document().note(column, row)); !note.empty())
                shown.notes[{column, row}] = note;
    return described(shown) + std::string(document().technique(0, 3));
}

std::vector<std::array<int, 3>> CheckedChordWindowTest::takeMidi() {
    std::vector<std::array<int, 3>> bytes;
    for (const ShortMessage& message : midi.take())
        bytes.push_back({message[0], message[1], message[2]});
    return bytes;
}

::testing::AssertionResult CheckedChordWindowTest::sameAsModel() {
    const std::pair<std::string, std::string> both[] = {
        {midiText(takeMidi()), midiText(std::exchange(desk.midi, {}))},
        {boxText(plain(boxes.take())), boxText(std::exchange(desk.boxes, {}))},
        {window ? window->described() : "", model ? described(*model) : ""},
        {documentText(), described(desk) + "h"},
        {described(filesIn(folder() / "chords")), described(desk.chordFiles)},
        {described(filesIn(folder() / "chordtypes")), described(desk.typeFiles)}};
    for (const auto& [shown, wanted] : both)
        if (shown != wanted) return ::testing::AssertionFailure() << firstDifference(shown, wanted);
    return ::testing::AssertionSuccess();
}

TEST_F(CheckedChordWindowTest, OpensWithoutAChord) {
    open();
    EXPECT_TRUE(sameAsModel());
}

TEST_F(CheckedChordWindowTest, ClosingSilencesAndOpeningAgainStartsAtTheDefaults) {
    open();
    window->clickRow("lstKeys", 3);
    model->lstKeys_Click(3);
    window->type("txt_addcrdL", "3");
    model->enter(0, "3");
    window->toggle("chkPlayNow");
    model->playNow = true;
    ASSERT_TRUE(sameAsModel());
    close();
    EXPECT_TRUE(sameAsModel());
    open();
    EXPECT_TRUE(sameAsModel());
}

} // namespace tabrova::testing
