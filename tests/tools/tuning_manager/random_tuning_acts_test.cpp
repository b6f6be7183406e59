// Random acts on the tuning manager, each compared with a plain model that was written on its own.
#include "tests/tools/random_window_acts.h"
#include "tests/tools/tuning_manager/plain_tuning_manager.h"
#include "tools/tuning_manager/frmTuningManager.h"

#include <QAbstractButton>

namespace tabrova::testing {
namespace {

const char* const RandomLists[] = {"TuningL", "TuningA", "TuningD", "TuningG", "TuningB", "TuningE"};
const char* const RandomButtons[] = {"Image3", "Image1", "Image2", "Image4", "Image5", "Image6"};

class RandomTuningActs : public RandomWindowActs<frmTuningManager> {
  protected:
    RandomTuningActs() {
        ResizeGrids(document(), 64, 18);
        document().TrackCount = 3;
        document().GuitarTrackFlags = {True16, True16, True16};
        document().TrackNames = {"a", "b", "c"};
        document().TrackVolumes = {"127", "100", "90"};
        document().TrackInstruments = {"24", "25", "26"};
        document().TuningTable.assign(18, 13);
        table.assign(18, 13);
        midi.take();
    }
    void open() {
        model = std::make_unique<PlainTuningManager>(desk, files);
        window = std::make_unique<frmTuningManager>(context, nullptr);
        window->Form_Load();
        window->show();
        window->closed = [this] { ++closings; };
        QApplication::processEvents();
    }
    void act() {
        using A = RandomTuningActs;
        doOne<A>(*this, {&A::choosePreset, &A::changeList,  &A::changeList,  &A::pressString, &A::pressString,
                         &A::pressString,  &A::pressAll,    &A::pressAll,    &A::tickTuner,   &A::tickTuner,
                         &A::tickTuneAll,  &A::tickTuneAll, &A::tickTuneAll, &A::tickTuneAll, &A::tickTuneAll,
                         &A::load,         &A::load,        &A::setName,     &A::save,        &A::remove,
                         &A::makeFile,     &A::makeFile,    &A::removeFile,  &A::view,        &A::assign});
    }
    ::testing::AssertionResult sameAsModel() {
        const std::pair<std::string, std::string> both[] = {
            {sentText(), midiText(std::exchange(desk.midi, {}))},
            {askedText(), boxText(desk.boxes)},
            {shown(), wanted()},
            {described(filesIn(folder() / "Tunings")), described(files)}};
        desk.boxes.clear();
        for (const auto& [real, plain] : both)
            if (real != plain)
                return ::testing::AssertionFailure() << "the window:\n" << real << "the model:\n" << plain;
        if (!std::ranges::equal(document().TuningTable, table))
            return ::testing::AssertionFailure() << "the tracks' tunings differ";
        return ::testing::AssertionSuccess();
    }

  private:
    std::string shown() {
        std::ostringstream text;
        const auto& preset = at<QComboBox>("Combo1");
        text << "preset " << preset.currentText().toStdString() << " " << preset.currentIndex()
             << "\ntunings " << rowsText("lstTunings") << "\nname "
             << at<QLineEdit>("txtNAME").text().toStdString() << "\ntimers " << timerText("tmrTuner") << " "
             << timerText("tmrTuneAll") << "\nall " << at<QAbstractButton>("Picture1").isChecked()
             << at("Picture1").isEnabled() << "\n";
        for (std::size_t string = 0; string < 6; ++string) {
            const auto& list = at<QComboBox>(RandomLists[string]);
            const auto& button = at<QAbstractButton>(RandomButtons[string]);
            text << list.currentIndex() << list.currentText().toStdString() << " pressed "
                 << button.isChecked() << " enabled " << button.isEnabled() << "\n";
        }
        return text.str();
    }
    std::string wanted() const {
        std::ostringstream text;
        text << "preset " << model->combo << " " << model->comboRow << "\ntunings "
             << rowsText(model->tunings) << "\nname " << model->name << "\ntimers "
             << (model->tuner ? "on" : "off") << " 1000 " << (model->tuneAll ? "on" : "off") << " 290\nall "
             << model->allPressed << "1\n";
        for (std::size_t string = 0; string < 6; ++string) {
            const int item = model->items[string];
            text << item << PlainTuningManager::itemText(string, item) << " pressed "
                 << model->pressed[string] << " enabled " << model->stringsEnabled << "\n";
        }
        return text.str();
    }

    void choose(const QString& name, int row) {
        auto& list = at<QComboBox>(name);
        list.setCurrentIndex(row);
        emit list.activated(row);
    }
    void choosePreset() {
        const auto row = static_cast<int>(below(PlainPresets.size()));
        told = "preset " + std::to_string(row);
        choose("Combo1", row);
        model->choosePreset(row);
    }
    void changeList() {
        const std::size_t string = below(6);
        int item = below(6) == 0 ? model->items[string] : static_cast<int>(below(25));
        const bool byKey = below(3) == 0;
        if (byKey) item = std::min(model->items[string] + 1, 24);
        told = "list " + std::to_string(string) + " to " + std::to_string(item);
        if (byKey && item == model->items[string]) return;
        byKey ? QTest::keyClick(&at(RandomLists[string]), Qt::Key_Down) : choose(RandomLists[string], item);
        model->change(string, item);
    }
    void pressString() {
        const std::size_t string = below(6);
        told = "string " + std::to_string(string);
        press(RandomButtons[string]);
        if (model->stringsEnabled) model->soundButton(string);
    }
    void pressAll() {
        told = "all strings";
        press("Picture1");
        model->pressAll();
    }
    void tickTuner() {
        told = "tick of one";
        EXPECT_EQ(timers.timers()["tmrTuner"]->fire(), model->tuner);
        model->tickTuner();
    }
    void tickTuneAll() {
        told = "ticks of all";
        for (std::size_t ticks = 1 + below(14); ticks > 0; --ticks) {
            EXPECT_EQ(timers.timers()["tmrTuneAll"]->fire(), model->tuneAll);
            model->tickTuneAll();
        }
    }
    void load() {
        const auto row = chooseRow("lstTunings", model->tunings.rows.size(), model->tunings.row());
        told = "load";
        if (!row) return;
        model->tunings.choose(*row);
        told += " " + model->tunings.text();
        model->load();
    }
    void setName() {
        const std::string name =
            oneOf<std::string>({"Mine", "My DADGAD", "(New Tuning)", "G\xC3\xB6", "x,y", "a:b", "0", "A&B",
                                "", ".", "..", "a/b", "a\\b", "Dir", "../evil"});
        told = "name " + name;
        enter(at<QLineEdit>("txtNAME"), name);
        model->name = name;
    }
    void save() {
        told = "save";
        press("Command1");
        model->SaveTuning();
    }
    void remove() {
        desk.answersYes = below(2) == 0;
        told = (desk.answersYes ? "delete " : "do not delete ") + model->tunings.text();
        if (model->tunings.chosen) boxes.queueAnswer(desk.answersYes ? BoxAnswer::Yes : BoxAnswer::No);
        press("Command2");
        model->deleteTuning();
    }
    void makeFile() {
        std::string letters;
        while (letters.size() < 6)
            letters += static_cast<char>('A' + below(25));
        const std::string bytes = oneOf<std::string>(
            {letters, letters + "\r\n", letters + letters, letters.substr(0, 3), letters.substr(0, 2) + ",MM",
             "\"AB,C\"DE", "  " + letters, "aZ?@[B", "", "\r\nABC", ",ABC", "12M45M", binary(6), "MMMMMM\n"});
        const std::string name = oneOf<std::string>({"hand", "Mine", "7", "x,y"});
        told = "file " + name + " with " + bytes;
        write("Tunings", name, bytes);
    }
    void removeFile() {
        told = "remove behind its back";
        removeSomeFile("Tunings");
    }
    void view() {
        told = "into view";
        comeIntoView("lstTunings");
        model->tunings.readAgain(files);
    }
    // To any track, and the window closes; or it is closed without that.
    void assign() {
        const auto track = static_cast<std::int16_t>(1 + below(3));
        document().CurrentTrack = track;
        const bool assigned = below(4) != 0;
        told = assigned ? "assign to " + std::to_string(track) : "close";
        if (assigned) {
            if (below(2) == 0) choose("TuningA", 1), model->change(1, 1);
            closings = 0;
            press("Command3");
            model->AssignTuning(table, track);
            EXPECT_EQ(closings, 1);
        }
        model->close();
        window->Form_Unload();
        window.reset();
        open();
    }

    std::unique_ptr<PlainTuningManager> model;
    std::vector<int> table; // of all tracks
    int closings = 0;
};

TEST_P(RandomTuningActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    std::filesystem::create_directories(folder() / "Tunings" / "Dir");
    desk.blocked = {"Dir"};
    open();
    ASSERT_TRUE(sameAsModel());
    std::string acts;
    for (int count = 0; count < 2000; ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTuningActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
