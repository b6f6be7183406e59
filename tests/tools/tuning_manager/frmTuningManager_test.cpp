// The tuning manager's window: presets and lists, files, the buttons' borders, and a track's new tuning.
#include "tests/workbench/tool_bench.h"
#include "tools/tuning_manager/frmTuningManager.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <fstream>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

class TuningWindow : public ToolBench {
  protected:
    void open() {
        form = std::make_unique<frmTuningManager>(context, nullptr);
        form->Form_Load();
        form->show();
        form->closed = [this] { ++closings; };
        QApplication::processEvents();
        midi.take();
    }
    template <class Control = QWidget>
    Control& control(const QString& name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    void press(const char* button) { QTest::mouseClick(&control(button), Qt::LeftButton); }
    void choose(const QString& box, int row) {
        auto& combo = control<QComboBox>(box);
        combo.setCurrentIndex(row);
        emit combo.activated(row);
    }
    void clickTuning(const QString& name) {
        auto& rows = control<QListWidget>("lstTunings");
        const auto found = rows.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(found.first()).center());
    }
    std::vector<int> items() {
        std::vector<int> rows;
        for (const TuningStringRow& row : TuningStringTable)
            rows.push_back(control<QComboBox>(row.list).currentIndex());
        return rows;
    }
    QString preset() { return control<QComboBox>("Combo1").currentText(); }
    bool isPressed(const char* button) { return control<QAbstractButton>(button).isChecked(); }
    std::vector<int> tunings() {
        return {bench.document.TuningTable.begin(), bench.document.TuningTable.end()};
    }
    void file(const std::string& name, const std::string& bytes) {
        fs::create_directories(folder() / "Tunings");
        std::ofstream(folder() / "Tunings" / name, std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& name) {
        std::ifstream input(folder() / "Tunings" / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), {}};
    }

    std::unique_ptr<frmTuningManager> form;
    int closings = 0;
};

using Items = std::vector<int>;

TEST_F(TuningWindow, OpensAtTheStandardTuning) {
    open();
    EXPECT_EQ(form->windowTitle(), "Tabrova - Tuning Manager");
    EXPECT_EQ(items(), Items(6, 12));
    EXPECT_EQ(control<QComboBox>("TuningL").currentText(), "E");
    EXPECT_EQ(control<QComboBox>("TuningL").count(), 25);
    EXPECT_EQ(control<QComboBox>("Combo1").count(), 21);
    EXPECT_EQ(preset(), "Standard Tuning (Concert)");
    EXPECT_EQ(control<QLineEdit>("txtNAME").text(), "(New Tuning)");
    EXPECT_TRUE(fs::is_directory(folder() / "Tunings"));
    for (const char* button : {"Image1", "Image6", "Picture1"})
        EXPECT_FALSE(isPressed(button));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(TuningWindow, APresetSetsTheListsAndStaysNamed) {
    open();
    for (int row = 0; row < 21; ++row) {
        choose("Combo1", row);
        const TuningPreset& chosen = tuningPresets()[static_cast<std::size_t>(row)];
        EXPECT_EQ(items(), Items(chosen.items.begin(), chosen.items.end())) << chosen.caption;
        EXPECT_EQ(preset(), chosen.caption);
        EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), row);
    }
}

TEST_F(TuningWindow, AListThatIsChangedMakesTheTuningACustomOne) {
    open();
    choose("TuningB", 10);
    EXPECT_EQ(items(), (Items{12, 12, 12, 12, 10, 12}));
    EXPECT_EQ(preset(), "(custom tuning)");
    EXPECT_EQ(control<QComboBox>("Combo1").currentIndex(), -1);
    EXPECT_EQ(control<QComboBox>("Combo1").findText("(custom tuning)"), -1);
    choose("Combo1", 0);
    EXPECT_EQ(items(), Items(6, 12));
    EXPECT_EQ(preset(), "Standard Tuning (Concert)");
}

TEST_F(TuningWindow, AClickOnThePresetsTextOpensTheirListAndChoosesNothing) {
    open();
    choose("TuningB", 10);
    auto& presets = control<QComboBox>("Combo1");
    QTest::mousePress(presets.lineEdit(), Qt::LeftButton);
    EXPECT_FALSE(presets.view()->isVisible());
    QTest::mouseRelease(presets.lineEdit(), Qt::LeftButton);
    EXPECT_TRUE(presets.view()->isVisible());
    presets.hidePopup();
    EXPECT_EQ(preset(), "(custom tuning)");
    QTest::keyClick(presets.lineEdit(), Qt::Key_X);
    EXPECT_EQ(preset(), "(custom tuning)"); // nothing can be typed
}

TEST_F(TuningWindow, ThePressedButtonHasItsBorderAndAllOfThemTheirTurn) {
    open();
    const char* images[] = {"Image3", "Image1", "Image2", "Image4", "Image5", "Image6"};
    for (const char* image : images) {
        press(image);
        for (const char* other : images)
            EXPECT_EQ(isPressed(other), std::string(other) == image) << other;
        press(image);
        EXPECT_FALSE(isPressed(image));
    }
    press("Picture1");
    EXPECT_TRUE(isPressed("Picture1"));
    EXPECT_FALSE(control("Image1").isEnabled());
    press("Picture1");
    EXPECT_FALSE(isPressed("Picture1"));
    EXPECT_TRUE(control("Image1").isEnabled());
}

TEST_F(TuningWindow, ATuningIsSavedAndLoadedAsSixLetters) {
    open();
    choose("Combo1", 7);
    control<QLineEdit>("txtNAME").setText("My DADGAD");
    press("Command1");
    EXPECT_EQ(bytesOf("My DADGAD"), "KMMMKK\r\n");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "The tuning 'My DADGAD' has been saved.");
    EXPECT_EQ(asked.first().box.icon, BoxIcon::Information);
    choose("Combo1", 0);
    clickTuning("My DADGAD");
    EXPECT_EQ(items(), (Items{10, 12, 12, 12, 10, 10}));
    EXPECT_EQ(preset(), "(custom tuning)");
}

TEST_F(TuningWindow, TheStandardTuningFromAFileIsACustomOne) {
    file("Plain", "MMMMMM\r\n");
    open();
    clickTuning("Plain");
    EXPECT_EQ(items(), Items(6, 12));
    EXPECT_EQ(preset(), "(custom tuning)");
}

TEST_F(TuningWindow, FilesAreReadAsFarAsTheyGo) {
    file("Short", "AB");
    file("Odd", "aZY?M,A");
    file("Long", "AAAAAAAAAA");
    open();
    clickTuning("Short");
    EXPECT_EQ(items(), (Items{0, 1, 12, 12, 12, 12}));
    clickTuning("Odd");
    EXPECT_EQ(items(), (Items{0, 1, 24, 12, 12, 12}));
    clickTuning("Long");
    EXPECT_EQ(items(), Items(6, 0));
    EXPECT_TRUE(boxes.take().isEmpty());
}

TEST_F(TuningWindow, AFileThatCannotBeReadIsToldAndChangesNothing) {
    file("Gone", "AAAAAA");
    file("Empty", "");
    open();
    fs::rename(folder() / "Tunings", folder() / "elsewhere");
    clickTuning("Gone");
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked.first().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.first().box.text, "The tuning 'Gone' cannot be loaded.");
    EXPECT_EQ(items(), Items(6, 12));
    EXPECT_EQ(preset(), "Standard Tuning (Concert)");
}

TEST_F(TuningWindow, ABadNameSavesNothingWithoutAWord) {
    open();
    for (const char* name : {"", ".", "..", "a/b", "a\\b", "../evil"}) {
        control<QLineEdit>("txtNAME").setText(name);
        press("Command1");
    }
    EXPECT_TRUE(boxes.take().isEmpty());
    EXPECT_TRUE(fs::is_empty(folder() / "Tunings"));
    EXPECT_FALSE(fs::exists(folder() / "evil"));
}

TEST_F(TuningWindow, ATuningIsDeletedAfterAQuestion) {
    file("Mine", "MMMMMM");
    open();
    press("Command2");
    EXPECT_TRUE(boxes.take().isEmpty());
    clickTuning("Mine");
    boxes.queueAnswer(BoxAnswer::No);
    press("Command2");
    EXPECT_TRUE(fs::exists(folder() / "Tunings/Mine"));
    boxes.queueAnswer(BoxAnswer::Yes);
    press("Command2");
    EXPECT_FALSE(fs::exists(folder() / "Tunings/Mine"));
    const auto asked = boxes.take();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked.last().box.title, "Tabrova for Windows");
    EXPECT_EQ(asked.last().box.text, "Do you want to delete the tuning 'Mine' ?");
    EXPECT_EQ(asked.last().box.icon, BoxIcon::Exclamation);
}

// The row of the low E comes last in the track's block.
TEST_F(TuningWindow, GivesTheTuningToTheTrackAndCloses) {
    open();
    choose("Combo1", 1);
    press("Command3");
    EXPECT_EQ(tunings(), (Items{13, 13, 13, 13, 13, 11}));
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(watcher.last.tuning);
}

TEST_F(TuningWindow, TheAStringIsGivenItsOwnPositions) {
    const std::pair<int, int> rows[] = {{0, 1},   {1, 13},  {2, 2},   {3, 4},
                                        {11, 12}, {12, 13}, {13, 14}, {24, 25}};
    for (const auto& [item, position] : rows) {
        open();
        choose("TuningA", item);
        press("Command3");
        EXPECT_EQ(tunings(), (Items{13, 13, 13, 13, position, 13})) << item;
    }
}

TEST_F(TuningWindow, ClosingSilences) {
    open();
    press("Image1");
    press("Picture1");
    midi.take();
    form->Form_Unload();
    EXPECT_EQ(midi.take().size(), 18u);
    EXPECT_FALSE(timers.timers()["tmrTuner"]->timerEnabled());
    EXPECT_FALSE(timers.timers()["tmrTuneAll"]->timerEnabled());
}

} // namespace
} // namespace tabrova::testing
