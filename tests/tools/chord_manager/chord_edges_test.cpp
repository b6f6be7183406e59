// Edges of the chord manager that random acts seldom reach, and what its controls offer.
#include "tests/tools/chord_manager/checked_chord_window.h"
#include "tools/chord_manager/frmChordTypeCreator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>

#include <gmock/gmock.h>

#include <fstream>

namespace tabrova::testing {

namespace {

QStringList itemsOf(const QComboBox& box) {
    QStringList items;
    for (int row = 0; row < box.count(); ++row)
        items.append(box.itemText(row));
    return items;
}

std::vector<std::string> captionsOf(const QWidget& form, const char* array, int count) {
    std::vector<std::string> captions;
    for (int at = 0; at < count; ++at)
        captions.push_back(
            form.findChild<QCheckBox*>(QString("%1(%2)").arg(array).arg(at))->text().toStdString());
    return captions;
}

const std::vector<std::string> Intervals = {
    "Root",          "Minor 2nd",         "Major 2nd",   "Minor 3rd",           "Major 3rd",
    "Perfect 4th",   "Aug 4th / Dim 5th", "Perfect 5th", "Aug 5th / Minor 6th", "Major 6th / Dim 7th",
    "Minor 7th",     "Major 7th",         "1st",         "Minor 9th",           "Major 9th",
    "Augmented 9th", "Minor 11th",        "Major 11th",  "Augmented 11th",      "Perfect 5th",
    "Minor 13th",    "Major 13th"};

} // namespace

class ChordEdges : public CheckedChordWindowTest {
  protected:
    ChordEdges() { open(); }
    void chordFile(const std::string& name, const std::string& bytes) {
        std::ofstream(folder() / "chords" / name, std::ios::binary) << bytes;
        desk.chordFiles[name] = bytes;
    }
    void chooseChord(std::size_t row) {
        window->showTabOf("lst_Chords");
        window->clickRow("lst_Chords", static_cast<int>(row));
        model->chords.choose(row);
        model->LoadUserChord();
    }
    void chooseKey(int row) {
        window->clickRow("lstKeys", row);
        model->lstKeys_Click(row);
    }
    void tick() {
        window->timer("tmrChordPlayer").fire();
        model->tmrChordPlayer_Timer();
    }
};

TEST_F(ChordEdges, ControlsOfferWhatTheyShould) {
    EXPECT_EQ(window->form.windowTitle(), "Tabrova - Chord Manager");
    QStringList keys;
    for (int row = 0; row < window->at<QListWidget>("lstKeys").count(); ++row)
        keys.append(window->at<QListWidget>("lstKeys").item(row)->text());
    EXPECT_EQ(keys.join(' '), "A A# B C C# D D# E F F# G G#");
    EXPECT_EQ(captionsOf(window->form, "chkKey", 12), PlainKeys);
    EXPECT_EQ(captionsOf(window->form, "cCheck", 22), Intervals);
    EXPECT_EQ(itemsOf(window->at<QComboBox>("Combo1")),
              QStringList({"Favor Open String Chords", "Favor Barre Chords", "Show All Notes"}));
    EXPECT_EQ(itemsOf(window->at<QComboBox>("lstView")), QStringList({"Notation & Tab", "Addition Mode"}));
    const auto& slider = window->at<QSlider>("nbnSlider");
    EXPECT_EQ(std::vector({slider.minimum(), slider.maximum(), slider.value(), slider.tickInterval()}),
              std::vector({50, 700, 630, 20}));
    EXPECT_EQ(window->at<QLineEdit>("txt_NewChordName").maxLength(), 15);
    for (const char* entry :
         {"txt_addcrdL", "txt_addcrda", "txt_addcrdD", "txt_addcrdg", "txt_addcrdb", "txt_addcrde"})
        EXPECT_EQ(window->at<QLineEdit>(entry).maxLength(), 1);
}

TEST_F(ChordEdges, TheCreatorStartsWithNothingCheckedAndItsOwnCaptions) {
    window->press("Command1");
    EXPECT_THAT(log, ::testing::Contains("open frmChordTypeCreator"));
    frmChordTypeCreator creator(context, &window->form);
    creator.Form_Load();
    std::vector<std::string> captions = Intervals;
    captions[6] = "Augmented 4th / Diminished 5th";
    captions[8] = "Augmented 5th / Minor 6th";
    captions[9] = "Major 6th / Diminshed 7th";
    EXPECT_EQ(captionsOf(creator, "cCheck", 22), captions);
    EXPECT_EQ(creator.windowTitle(), "New Chord Type");
    EXPECT_EQ(creator.findChild<QLineEdit*>("txtName")->text(), "New Type");
    for (const auto* box : creator.findChildren<QCheckBox*>())
        EXPECT_EQ(box->checkState(), Qt::Unchecked);
}

TEST_F(ChordEdges, ToolTipsTellTheArrows) {
    const std::pair<const char*, const char*> tips[] = {{"Image6", "Delete Chord from Document"},
                                                        {"Image5", "Move Up"},
                                                        {"Image7", "Move Left"},
                                                        {"Image8", "Move Down"},
                                                        {"Image9", "Move Right"}};
    for (const auto& [button, tip] : tips)
        EXPECT_TRUE(window->at(button).toolTip().startsWith(tip)) << button;
    EXPECT_EQ(window->at<QLabel>("Label10").text(), "Click the + to add the current chord to your document.");
}

// The panel's top is 400 less 400 for each step, in twips of which 15 are a pixel.
TEST_F(ChordEdges, TheConstructionMoves400TwipsAStep) {
    auto& bar = window->at<QScrollBar>("VScroll1");
    for (int value = bar.minimum(); value <= bar.maximum(); ++value) {
        bar.setValue(value);
        EXPECT_NEAR(window->at("Picture3").y(), (400 - value * 400) / 15.0, 1.0) << value;
    }
}

TEST_F(ChordEdges, NoteByNoteIsSilentFirstRingsAtTheEndAndStartsAnew) {
    window->toggle("chkNotebyNote");
    window->toggle("chkPlayNow");
    model->noteByNote = model->playNow = true;
    chooseKey(3);
    for (int count = 0; count < 60; ++count) {
        tick();
        if (count == 4) chooseKey(6);
        if (count == 27) window->press("cmdPlay"), model->PlayChordNow();
        ASSERT_TRUE(sameAsModel()) << count;
    }
    EXPECT_FALSE(window->timer("tmrChordPlayer").timerEnabled());
}

TEST_F(ChordEdges, WithoutAnyTypeTheRootAloneIsShownWithAnEmptyName) {
    for (const auto& [name, bytes] : std::exchange(desk.typeFiles, {}))
        std::filesystem::remove(folder() / "chordtypes" / name);
    window->showTabOf("lst_Chords");
    window->showTabOf("lstTypes");
    chooseKey(10);
    EXPECT_EQ(window->title(), "G  (Open)");
    EXPECT_TRUE(sameAsModel());
}

TEST_F(ChordEdges, ATypeThatIsGoneIsItsRootAlone) {
    window->clickRow("lstTypes", 4);
    model->types.choose(4);
    model->LoadChordType();
    std::filesystem::remove(folder() / "chordtypes" / model->types.text());
    desk.typeFiles.erase(model->types.text());
    for (const int key : {0, 6, 11}) {
        chooseKey(key);
        EXPECT_TRUE(sameAsModel());
    }
}

TEST_F(ChordEdges, EveryByteOfAChordFileIsShownAsItsCharacterOfTheCodePage) {
    std::string wrong;
    for (int byte = 0; byte < 256; ++byte) {
        if (std::string(" \t\r\n,\"").find(static_cast<char>(byte)) != std::string::npos) continue;
        chordFile("bytes", "12" + std::string(1, static_cast<char>(byte)) + "345");
        window->showTabOf("lstTypes");
        chooseChord(0);
        if (!sameAsModel()) wrong += std::to_string(byte) + " ";
    }
    EXPECT_EQ(wrong, "");
}

// A name keeps to what a file's name may be, also if it comes from elsewhere.
TEST_F(ChordEdges, NamesWithControlCharactersMakeNoFile) {
    for (const std::string& name : {std::string("a\x01z"), std::string("a\tz"), std::string("a\x7Fz")}) {
        window->form.SaveChordType(QString::fromStdString(name), "1000100100000000000000");
        model->SaveChordType(name, "1000100100000000000000");
        EXPECT_TRUE(sameAsModel()) << name;
    }
}

TEST_F(ChordEdges, WhatIsPastedIntoAFretBoxIsCheckedLikeWhatIsTyped) {
    for (const char* text : {"\xC2\xB2", "\xC3\xA9", "\xC2\xBD", "4"}) {
        window->paste("txt_addcrdg", text);
        model->type(3, text);
        EXPECT_TRUE(sameAsModel()) << text;
    }
}

} // namespace tabrova::testing
