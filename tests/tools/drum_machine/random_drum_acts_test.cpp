// Random acts on the drum machine, each compared with a plain model that was written on its own.
#include "tests/tools/drum_machine/drum_window_acts.h"

#include <sys/stat.h>

#include <cmath>

namespace tabrova::testing {
namespace {

class RandomDrumActs : public DrumWindowActs {
  protected:
    void act() {
        using A = RandomDrumActs;
        doOne<A>(*this, {&A::pressStep,   &A::pressStep,   &A::pressStep,     &A::draw,        &A::draw,
                         &A::draw,        &A::keys,        &A::keys,          &A::keys,        &A::chooseDrum,
                         &A::chooseDrum,  &A::moveVolume,  &A::moveVolume,    &A::moveSpeed,   &A::moveSpeed,
                         &A::movePattern, &A::movePattern, &A::movePattern,   &A::enterText,   &A::enterText,
                         &A::typeText,    &A::playAll,     &A::Command1,      &A::Command1,    &A::Command1,
                         &A::tickOnce,    &A::tickOnce,    &A::tickOnce,      &A::tickOften,   &A::tickOften,
                         &A::save,        &A::save,        &A::openSong,      &A::openSong,    &A::openSong,
                         &A::openOther,   &A::playSong,    &A::touchDisabled, &A::closeAndOpen});
    }

  private:
    std::size_t anyRow() { return below(16); }
    std::string say(const std::string& what, std::size_t number) {
        return what + " " + std::to_string(number);
    }

    // Only the left button presses; two quick presses are two.
    void pressStep() {
        const std::size_t row = anyRow(), step = below(16);
        told = say(say("press", row), step);
        QWidget* button = buttons[row][step];
        switch (below(8)) {
        case 0:
            QTest::mouseClick(button, Qt::RightButton);
            return;
        case 1:
            QTest::mouseClick(button, Qt::MiddleButton);
            return;
        case 2:
            QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, placeOn({row, step}));
            model->press(row, step);
            break;
        default:
            QTest::mouseClick(button, Qt::LeftButton);
        }
        model->press(row, step);
    }

    using Cell = std::pair<std::size_t, std::size_t>; // row, step
    static int apart(std::size_t from, std::size_t to) {
        return static_cast<int>(to) - static_cast<int>(from);
    }
    // Part `part` of `parts` of the way, to the nearest. Nothing if two are as near.
    static std::optional<std::size_t> onTheWay(std::size_t from, std::size_t to, int part, int parts) {
        const int way = 2 * apart(from, to) * part;
        if (way % (2 * parts) != 0 && way % parts == 0) return std::nullopt;
        return from + static_cast<std::size_t>(std::lround(0.5 * way / parts));
    }
    // The nearest button to the line for each row or column that it crosses, whichever are more, without the
    // first. Nothing if that leaves a choice.
    static std::optional<std::vector<Cell>> lineOf(Cell from, Cell to) {
        const int parts =
            std::max(std::abs(apart(from.first, to.first)), std::abs(apart(from.second, to.second)));
        std::vector<Cell> cells;
        for (int part = 1; part <= parts; ++part) {
            const auto row = onTheWay(from.first, to.first, part, parts);
            const auto step = onTheWay(from.second, to.second, part, parts);
            if (!row || !step) return std::nullopt;
            cells.emplace_back(*row, *step);
        }
        return cells;
    }
    QPoint placeOn(Cell cell) {
        const QWidget& button = *buttons[cell.first][cell.second];
        const auto along = [this](int size) {
            return static_cast<int>(below(static_cast<std::size_t>(size)));
        };
        return button.mapTo(window.get(), QPoint(along(button.width()), along(button.height())));
    }
    // Straight off an edge of the buttons and back again.
    void leaveAndReturn(Cell at, QPoint place) {
        QPoint off = place;
        if (at.first == 0)
            off.setY(5);
        else if (at.first == 15)
            off.setY(window->height() - 5);
        else if (at.second == 0)
            off.setX(5);
        else if (at.second == 15)
            off.setX(window->width() - 5);
        QTest::mouseMove(window->windowHandle(), off);
        ASSERT_TRUE(sameAsModel()) << told << ", off";
        QTest::mouseMove(window->windowHandle(), place);
    }
    void draw() {
        Cell at{anyRow(), below(16)};
        told = say(say("draw from", at.first), at.second);
        QWindow* pane = window->windowHandle();
        QPoint place = placeOn(at);
        QTest::mousePress(pane, Qt::LeftButton, {}, place);
        model->press(at.first, at.second);
        const bool blue = model->blue[at.first][at.second];
        for (std::size_t moves = below(6); moves > 0; --moves) {
            ASSERT_TRUE(sameAsModel()) << told;
            const Cell to{anyRow(), below(16)};
            const auto line = lineOf(at, to);
            if (!line) continue;
            told = say(say(told + " to", to.first), to.second);
            place = placeOn(to);
            QTest::mouseMove(pane, place);
            for (const auto& [row, step] : *line)
                model->draw(row, step, blue);
            at = to;
            if (below(4) == 0) tick();
            if (below(4) == 0) leaveAndReturn(at, place);
        }
        QTest::mouseRelease(pane, Qt::LeftButton, {}, place);
    }

    // From a step button: the arrow keys move to the next one and stop at the edges.
    void keys() {
        std::size_t row = anyRow(), step = below(16);
        told = say(say("keys at", row), step);
        buttons[row][step]->setFocus();
        for (std::size_t count = 1 + below(8); count > 0; --count) {
            const auto key =
                oneOf<Qt::Key>({Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space,
                                Qt::Key_Space, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return});
            told += " " + QKeySequence(key).toString().toStdString();
            QTest::keyClick(window->focusWidget(), key);
            if (key == Qt::Key_Left && step > 0) --step;
            if (key == Qt::Key_Right && step < 15) ++step;
            if (key == Qt::Key_Up && row > 0) --row;
            if (key == Qt::Key_Down && row < 15) ++row;
            if (key == Qt::Key_Space || key == Qt::Key_Return) model->press(row, step);
            if (key == Qt::Key_PageUp && model->enabled) model->setPattern(model->pattern - 1);
            if (key == Qt::Key_PageDown && model->enabled) model->setPattern(model->pattern + 1);
            ASSERT_EQ(window->focusWidget()->objectName().toStdString(),
                      trackName(row) + "(" + std::to_string(step) + ")")
                << told;
            ASSERT_TRUE(sameAsModel()) << told;
        }
    }

    void chooseDrum() {
        const std::size_t row = anyRow();
        told = say("drum of", row);
        if (!model->enabled) return;
        QComboBox& drums = list(row);
        if (below(3) == 0) {
            QTest::keyClick(&drums, Qt::Key_Down);
            model->lists[row] = std::min(model->lists[row] + 1, 45);
            return;
        }
        const int drum = static_cast<int>(below(46));
        drums.setCurrentIndex(drum);
        emit drums.activated(drum);
        model->lists[row] = drum;
    }
    // To any value, or by a key to the next one or to an end. What the slider is asked for.
    std::optional<int> move(QAbstractSlider& slider, int low, int high) {
        if (!slider.isEnabled()) return std::nullopt;
        const int old = slider.value();
        switch (below(8)) {
        case 0:
            QTest::keyClick(&slider, Qt::Key_Home);
            return low;
        case 1:
            QTest::keyClick(&slider, Qt::Key_End);
            return high;
        case 2:
            QTest::keyClick(&slider, Qt::Key_Right);
            return std::min(old + 1, high);
        case 3:
            QTest::keyClick(&slider, Qt::Key_Left);
            return std::max(old - 1, low);
        default:
            break;
        }
        const int to = low - 5 + static_cast<int>(below(static_cast<std::size_t>(high - low + 11)));
        slider.setValue(to);
        return to;
    }
    void moveVolume() {
        const std::size_t row = anyRow();
        told = say("volume of", row);
        if (const auto to = move(volume(row), 20, 127)) model->setVolume(row, *to);
    }
    void moveSpeed() {
        told = "speed";
        if (below(3) == 0) { // 60,000 by it is a half
            const int speed = oneOf<int>({64, 192, 320, 960});
            at<QAbstractSlider>("sldSpeed").setValue(speed);
            return model->setSpeed(speed);
        }
        if (const auto to = move(at<QAbstractSlider>("sldSpeed"), 20, 1200)) model->setSpeed(*to);
    }
    void movePattern() {
        told = "pattern";
        if (const auto to = move(at<QAbstractSlider>("sldPattern"), 0, 99)) model->setPattern(*to);
        told += say("", static_cast<std::size_t>(model->pattern));
    }

    std::string someText() {
        if (below(3) == 0) return std::to_string(below(100));
        return oneOf<std::string>({"",
                                   " ",
                                   " 5 ",
                                   "2.5",
                                   "3.5",
                                   "-3",
                                   "-0.5",
                                   "150",
                                   "99.4",
                                   "99.5",
                                   "abc",
                                   "1e1",
                                   "1e",
                                   "1E-1",
                                   "99999999999",
                                   "2147483647",
                                   "2147483648",
                                   "-2147483649",
                                   "+7",
                                   "007",
                                   "5x",
                                   "1,5",
                                   "0x10",
                                   "&H5",
                                   "nan",
                                   "inf",
                                   ".",
                                   "5.",
                                   ".5",
                                   "1 2",
                                   "--1",
                                   "\xD9\xA3",
                                   "$5",
                                   "1d1",
                                   "-",
                                   "4.5e1",
                                   "1000000000",
                                   "True",
                                   std::string(40, '9'),
                                   std::string(40, '0') + "8"});
    }
    void enterText() {
        const std::string text = below(6) == 0 ? std::to_string(model->pattern) : someText();
        told = "text " + text;
        enter(at<QLineEdit>("Text1"), text);
        model->setText(text);
    }
    // Key by key over all that stands there; or the last character goes. Return is no press there.
    void typeText() {
        auto& box = at<QLineEdit>("Text1");
        box.setFocus();
        if (below(3) == 0) {
            told = "last character away";
            box.end(false);
            QTest::keyClick(&box, Qt::Key_Backspace);
            std::string rest = model->text;
            while (!rest.empty() && (rest.back() & 0xC0) == 0x80)
                rest.pop_back();
            if (!rest.empty()) rest.pop_back();
            if (rest != model->text) model->setText(rest);
            return;
        }
        const std::string text =
            oneOf<std::string>({"12", "007", "150", "-3", "2.5", "1e1", " 5 ", "42", "9"});
        told = "type " + text;
        box.selectAll();
        std::string typed;
        for (const char character : text) {
            QTest::keyClick(&box, character);
            typed += character;
            model->setText(typed);
            typed = model->text;
        }
        QTest::keyClick(&box, Qt::Key_Return);
    }

    void playAll() {
        told = "play all";
        if (!model->enabled) return;
        QTest::keyClick(&at("chkPlayAll"), Qt::Key_Space);
        model->playAll = !model->playAll;
    }
    void Command1() {
        told = "play or stop";
        press("Command1");
        model->Command1();
    }
    void tickOnce() {
        told = "tick";
        tick();
    }
    void tickOften() {
        const std::size_t ticks = oneOf<std::size_t>({16, 17, 40, 300, 1599, 1600, 1601, 1 + below(1700)});
        told = say("ticks:", ticks);
        for (std::size_t count = 0; count < ticks; ++count)
            tick();
    }

    // A pipe or a device takes nothing, but can be opened, unlike a folder or a place that is not there.
    void save() {
        std::optional<std::string> name =
            oneOf<std::string>({"a.txt", "b.txt", "G\xC3\xB6.txt", "no ending", "link"});
        const bool elsewhere = below(2) == 0;
        if (elsewhere)
            name =
                oneOf<std::optional<std::string>>({std::nullopt, "Dir", "", "no folder/a.txt",
                                                   "Dir/../b.txt/a.txt", "pipe", "/dev/null", "/dev/full"});
        told = "save to " + name.value_or("nothing");
        if (model->enabled) queue(name, "save ");
        press("Command2");
        if (!model->enabled || !name) return;
        if (!elsewhere) {
            files[*name] = model->save();
            if (*name == "link") files["target.txt"] = files["link"];
        } else if (*name == "pipe" || name->starts_with("/dev/")) {
            model->fillLists();
        }
        ASSERT_TRUE(sameFiles()) << told;
    }
    void openSong() {
        const std::string bytes = songs.any();
        write("", "song.txt", bytes);
        told = "open a song of " + std::to_string(bytes.size()) + " bytes";
        openFile("song.txt");
    }
    void openOther() {
        std::optional<std::string> name = oneOf<std::optional<std::string>>(
            {std::nullopt, "Dir", "", "not there.txt", "pipe", "/dev/null", "/dev/zero", "song.txt/x"});
        if (below(2) == 0)
            name = std::next(files.begin(), static_cast<std::ptrdiff_t>(below(files.size())))->first;
        told = "open " + name.value_or("nothing");
        openFile(name);
    }
    // A song that is heard: opened, and played some way.
    void playSong() {
        write("", "song.txt", songs.good());
        openFile("song.txt");
        Command1();
        tickOften();
        told = "play a song, " + told;
    }
    // What playback has disabled takes no press and no key.
    void touchDisabled() {
        if (model->enabled) return;
        told = "touch what is disabled";
        for (const char* name : {"Command2", "Command3", "chkPlayAll"}) {
            press(name);
            QTest::keyClick(&at(name), Qt::Key_Space);
        }
        for (const char* name : {"sldPattern", "lstInstrument(3)", "sldVolume(3)"})
            QTest::keyClick(&at(name), below(2) == 0 ? Qt::Key_Home : Qt::Key_End);
    }
    // The song is gone without a question or a sound, and the timers with it.
    void closeAndOpen() {
        told = "close and open";
        if (below(3) == 0) window->close();
        if (below(3) == 0) QTest::keyClick(window.get(), Qt::Key_Escape);
        window->Form_Unload();
        window.reset();
        EXPECT_FALSE(timers.timers().contains("tmrplayback"));
        open();
    }
};

TEST_P(RandomDrumActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    std::filesystem::create_directories(folder() / "Dir");
    ASSERT_EQ(mkfifo((folder() / "pipe").c_str(), 0600), 0);
    for (const char* name : {"target.txt", "b.txt"})
        write("", name, songs.good());
    std::filesystem::create_symlink("target.txt", folder() / "link");
    files["link"] = files["target.txt"];
    writeLanguage(std::vector<std::size_t>{0, 220, 213}[GetParam() % 3]);
    open();
    ASSERT_TRUE(sameAsModel());
    ASSERT_TRUE(sameFiles());
    std::string acts;
    for (int count = 0; count < 2000; ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        ASSERT_FALSE(HasFailure()) << "after " << count << " acts, the last first: " << acts;
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDrumActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
