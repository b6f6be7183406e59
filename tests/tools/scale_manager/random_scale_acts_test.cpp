// Random acts on the scale manager, each compared with a plain model that was written on its own.
#include "tests/tools/random_window_acts.h"
#include "tests/tools/scale_manager/plain_scale_manager.h"
#include "tools/scale_manager/frmScaleWizard.h"

#include <QMouseEvent>

namespace tabrova::testing {
namespace {

const char* const RandomMarks[] = {"DotL", "DotA", "DotD", "DotG", "DotB", "DotE"};
const char* const RandomLabels[] = {"nt_l", "nt_a", "nt_d", "nt_g", "nt_b", "nt_e"};
const char* const RandomEntries[] = {"lst_LOWE", "lst_A", "lst_D", "lst_G", "lst_B", "lst_E"};

class RandomScaleActs : public RandomWindowActs<frmScaleWizard> {
  protected:
    void open() {
        model = std::make_unique<PlainScaleManager>(desk, files);
        window = std::make_unique<frmScaleWizard>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
    }
    void act() {
        using A = RandomScaleActs;
        doOne<A>(*this, {&A::chooseKey,  &A::chooseKey,  &A::chooseType, &A::chooseType, &A::chooseType,
                         &A::clickLabel, &A::clickLabel, &A::moveOver,   &A::moveOver,   &A::tick,
                         &A::switchView, &A::setEntry,   &A::setEntry,   &A::setEntry,   &A::setName,
                         &A::save,       &A::save,       &A::remove,     &A::makeFile,   &A::makeFile,
                         &A::removeFile, &A::view,       &A::view,       &A::reopen});
    }
    ::testing::AssertionResult sameAsModel() {
        const std::pair<std::string, std::string> both[] = {
            {sentText(), midiText(std::exchange(desk.midi, {}))},
            {askedText(), boxText(desk.boxes)},
            {shown(), wanted()},
            {described(filesIn(folder() / "scales")), described(files)}};
        desk.boxes.clear();
        for (const auto& [real, plain] : both)
            if (real != plain)
                return ::testing::AssertionFailure() << "the window:\n" << real << "the model:\n" << plain;
        return ::testing::AssertionSuccess();
    }

  private:
    std::string shown() {
        std::ostringstream text;
        text << "title " << at<QLabel>("lblTitle").text().toStdString() << "\nkey " << chosenRow("ScKey")
             << "\ntypes " << rowsText("scType") << "\nname "
             << at<QLineEdit>("Txt_flname").text().toStdString() << "\nview "
             << at<QPushButton>("Command3").text().toStdString() << "\nstopper "
             << timerText("tmrscaleStopper") << "\n";
        for (std::size_t string = 0; string < 6; ++string)
            text << shownString(string) << "\n";
        return text.str();
    }
    std::string shownString(std::size_t string) {
        std::ostringstream text;
        for (std::size_t fret = 0; fret < 19; ++fret) {
            const QWidget& mark = at(RandomMarks[string], fret);
            text << mark.x() << (mark.isHidden() ? "- " : "* ");
        }
        for (std::size_t slot = 0; slot < 5; ++slot) {
            const auto& label = at<QLabel>(RandomLabels[string], slot);
            const QColor ink = label.palette().color(QPalette::WindowText);
            text << "[" << label.text().toStdString() << " " << ink.name().toStdString() << "]";
        }
        for (std::size_t slot = 0; slot < 5; ++slot)
            text << "<" << at<QComboBox>(RandomEntries[string], slot).currentText().toStdString() << ">";
        return text.str();
    }
    std::string wanted() const {
        std::ostringstream text;
        text << "title " << model->title << "\nkey " << model->key << "\ntypes " << rowsText(model->types)
             << "\nname " << model->name << "\nview " << (model->leftHanded ? "RH" : "LH") << "\nstopper "
             << (model->stopper ? "on" : "off") << " 2000\n";
        for (const PlainScaleString& string : model->strings) {
            for (int fret = 0; fret < 19; ++fret)
                text << model->markX(fret) << (string.marks[static_cast<std::size_t>(fret)] ? "* " : "- ");
            for (std::size_t slot = 0; slot < 5; ++slot)
                text << "[" << string.labels[slot] << (string.red[slot] ? " #ff0000]" : " #000000]");
            for (const std::string& entry : string.entries)
                text << "<" << entry << ">";
            text << "\n";
        }
        return text.str();
    }

    void chooseKey() {
        const auto row = chooseRow("ScKey", 12, model->key);
        told = "key";
        if (!row) return;
        model->key = static_cast<int>(*row);
        told += " " + PlainScaleManager::keyName(model->key);
        model->ShowScale();
    }
    void chooseType() {
        const auto row = chooseRow("scType", model->types.rows.size(), model->types.row());
        told = "type";
        if (!row) return;
        model->types.choose(*row);
        told += " " + model->types.text();
        model->ShowScale();
    }
    void clickLabel() {
        const std::size_t string = below(6), slot = below(5);
        told = "click on note " + std::to_string(string) + "," + std::to_string(slot);
        QTest::mouseClick(&at(RandomLabels[string], slot), Qt::LeftButton);
        model->clickLabel(string, slot);
    }
    void moveOver() {
        const std::size_t string = below(6), slot = below(5);
        const bool panel = below(4) == 0;
        told = panel ? "over the panel" : "over note " + std::to_string(string) + "," + std::to_string(slot);
        QWidget& under = panel ? at("Picture2") : at(RandomLabels[string], slot);
        const QPointF place(2, 2);
        QMouseEvent event(QEvent::MouseMove, place, under.mapToGlobal(place), Qt::NoButton, {}, {});
        QApplication::sendEvent(&under, &event);
        panel ? model->blacken() : void(model->strings[string].red[slot] = true);
    }
    void tick() {
        told = "stopper";
        EXPECT_EQ(timers.timers()["tmrscaleStopper"]->fire(), model->stopper);
        model->tickStopper();
    }
    void switchView() {
        told = "view";
        press("Command3");
        model->leftHanded = !model->leftHanded;
    }
    void putEntry(std::size_t string, std::size_t slot, const std::string& text) {
        told += " " + std::string(RandomEntries[string]) + " " + text;
        auto& box = at<QComboBox>(RandomEntries[string], slot);
        const int item = box.findText(QString::fromStdString(text), Qt::MatchExactly);
        item >= 0 && below(2) == 0 ? box.setCurrentIndex(item) : enter(*box.lineEdit(), text);
        model->strings[string].entries[slot] = text;
    }
    void setEntry() {
        told = "entry";
        std::string text = oneOf<std::string>({"0", "1", "2", "3", "4", "5", "-"});
        if (below(8) == 0)
            text = oneOf<std::string>(
                {"6", "7", "8", "9", "x", "", " ", "12", "05", "-1", "--", ".", "+", ",", "\xC2\xB2", "3 "});
        putEntry(below(6), below(5), text);
    }
    void setName() {
        const std::string name = oneOf<std::string>(
            {"Mine", "Mine (blues)", "Major", "Dorian", "(new scale)", "G\xC3\xB6", "x,y", "a:b", "0", "A&B",
             "", ".", "..", "a/b", "a\\b", "Dir", "../evil", "ABCDEFGHIJKLMNOPQRSTUVW"});
        told = "name " + name;
        enter(at<QLineEdit>("Txt_flname"), name);
        model->name = name.substr(0, 20);
    }
    void save() {
        told = "save";
        const bool mend = below(3) != 0;
        for (std::size_t string = 0; mend && string < 6; ++string)
            for (std::size_t slot = 0; slot < 5; ++slot)
                if (!PlainScaleManager::entryServes(model->strings[string].entries[slot]))
                    putEntry(string, slot, "2");
        press("Command1");
        model->SaveNewScale();
    }
    void remove() {
        told = "delete " + model->types.text();
        press("Command2");
        model->deleteScale();
    }
    void makeFile() {
        std::string digits;
        while (digits.size() < 40)
            digits += static_cast<char>('0' + below(10));
        const std::string bytes = oneOf<std::string>(
            {digits, digits.substr(0, 30) + "\r\n", digits.substr(0, 7), digits.substr(0, 12) + ",345",
             "\"01,23\",4", "  " + digits.substr(9), "0a1b2c x-+5", "", "\r\n0123", ",0123", "\n", binary(30),
             digits.substr(0, 30) + "\n", "012345\r012"});
        const std::string name = oneOf<std::string>({"hand", "Mine", "Major", "7", "x,y"});
        told = "file " + name + " with " + bytes;
        write("scales", name, bytes);
    }
    void removeFile() {
        told = "remove behind its back";
        removeSomeFile("scales");
    }
    void view() {
        told = "into view";
        comeIntoView("scType");
        model->types.readAgain(files);
    }
    void reopen() {
        if (below(3) != 0) return view();
        told = "reopen";
        window->Form_Unload();
        window.reset();
        open();
    }

    std::unique_ptr<PlainScaleManager> model;
};

TEST_P(RandomScaleActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    std::filesystem::create_directories(folder() / "scales" / "Dir");
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

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScaleActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
