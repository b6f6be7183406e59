// Random acts on the metronome, each compared with a plain model that was written on its own.
#include "tests/tools/metronome/plain_metronome.h"
#include "tests/tools/random_window_acts.h"
#include "tools/metronome/frmMetronome.h"

#include <QClipboard>
#include <QSlider>

namespace tabrova::testing {
namespace {

const char* const InFrame[] = {"lst_Metronome_speed", "sld_BPB", "txt_BTp"};

class RandomMetronomeActs : public RandomWindowActs<frmMetronome> {
  protected:
    RandomMetronomeActs() { midi.take(); }
    void open() {
        model = std::make_unique<PlainMetronome>(desk, warning);
        window = std::make_unique<frmMetronome>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
    }
    // Every line has a text of its own.
    void makeLanguage() {
        std::ofstream file(folder() / "lang.trl");
        for (int line = 1; line <= 540; ++line)
            file << "line " << line << "\r\n";
        title = "Tabrova - line 249";
        startText = "line 250";
        stopText = "line 251";
        warning = "line 258";
    }
    void act() {
        using A = RandomMetronomeActs;
        doOne<A>(*this,
                 {&A::pressCommand1, &A::pressCommand1, &A::pressCommand1, &A::tick,       &A::tick,
                  &A::tick,          &A::tick,          &A::ticks,         &A::chooseRate, &A::chooseRate,
                  &A::choosePreset,  &A::movePitch,     &A::movePitch,     &A::moveBeats,  &A::moveBeats,
                  &A::putBars,       &A::putBars,       &A::typeBars,      &A::typeBars,   &A::pasteBars,
                  &A::resize,        &A::reopen});
    }
    ::testing::AssertionResult sameAsModel() {
        const std::pair<std::string, std::string> both[] = {
            {sentText(), midiText(std::exchange(desk.midi, {}))},
            {askedText(), boxText(desk.boxes)},
            {shown(), wanted()}};
        desk.boxes.clear();
        for (const auto& [real, plain] : both)
            if (real != plain)
                return ::testing::AssertionFailure() << "the window:\n" << real << "the model:\n" << plain;
        return ::testing::AssertionSuccess();
    }

    std::string shown() {
        std::ostringstream text;
        const auto& preset = at<QComboBox>("Combo1");
        const auto& pitch = at<QSlider>("sld_ClickPitch");
        const auto& beats = at<QSlider>("sld_BPB");
        text << window->windowTitle().toStdString() << "\nbutton "
             << at<QPushButton>("Command1").text().toStdString() << at("Command1").isEnabled() << "\nrates "
             << rowsText("lst_Metronome_speed") << "\npreset " << preset.currentIndex()
             << preset.currentText().toStdString() << at("Combo1").isEnabled() << "\npitch "
             << pitch.minimum() << " " << pitch.maximum() << " " << pitch.tickInterval() << " "
             << pitch.value() << pitch.isEnabled() << "\nbeats " << beats.minimum() << " " << beats.maximum()
             << " " << beats.value() << "\nbars " << at<QLineEdit>("txt_BTp").text().toStdString()
             << "\nframe " << at("Frame1").isEnabled();
        for (const char* control : InFrame)
            text << at(control).isEnabled();
        text << "\ntimer "
             << (model->interval ? timerText("tmr_Metronome") : timerText("tmr_Metronome").substr(0, 3))
             << "\nmarker " << markerText() << "\n";
        return text.str();
    }
    std::string wanted() const {
        std::ostringstream text;
        text << title << "\nbutton " << (model->running ? stopText : startText) << "1\nrates ";
        for (const std::string& rate : PlainRates)
            text << rate << "|";
        const bool still = !model->running;
        text << " chosen " << model->rateRow << "\npreset " << model->presetRow << model->preset << still
             << "\npitch 30 100 5 " << model->pitch << "1\nbeats 1 4 " << model->beatsPerBar << "\nbars "
             << model->barsText << "\nframe " << still << still << still << still << "\ntimer "
             << (model->running ? "on" : "off")
             << (model->interval ? " " + std::to_string(*model->interval) : "") << "\nmarker "
             << model->marker << "\n";
        return text.str();
    }

    std::unique_ptr<PlainMetronome> model;
    std::string title = "Tabrova - Metronome", startText = "Start", stopText = "Stop";
    std::string warning = "1920 beats a minute is very fast. Not every computer can keep up with it.";

  private:
    // The pictures under which the marker stands, left, width and top.
    std::string markerText() const {
        const auto place = [this](QWidget& widget) {
            return QRect(widget.mapTo(window.get(), QPoint()), widget.size());
        };
        const QRect marker = place(at("line_Metronome"));
        std::string text;
        for (std::size_t beat = 0; beat < 4; ++beat) {
            const QRect picture = place(at("imgMetronome", beat));
            if (picture.topLeft() == marker.topLeft() && picture.width() == marker.width())
                text += std::to_string(beat);
        }
        return at("line_Metronome").isVisible() ? text : "not seen";
    }

    void pressCommand1() {
        told = model->running ? "stop" : "start";
        if (below(3) == 0)
            QTest::keyClick(&at("Command1"), below(2) == 0 ? Qt::Key_Space : Qt::Key_Return);
        else
            press("Command1");
        model->pressCommand1();
    }
    void tick() {
        told = "tick";
        EXPECT_EQ(timers.timers()["tmr_Metronome"]->fire(), model->running);
        model->tick();
    }
    // One after the other, each compared.
    void ticks() {
        std::size_t count = 1 + below(40);
        for (; count > 1; --count) {
            tick();
            ASSERT_TRUE(sameAsModel()) << "in a row of ticks";
        }
        tick();
        told = "ticks";
    }
    void chooseRate() {
        const std::size_t count = PlainRates.size();
        const auto oldRow = static_cast<int>(model->rateRow);
        told = "rate";
        if (below(4) == 0) return clickRate(count - 1);
        if (below(4) == 0) return clickRate(model->rateRow);
        if (model->running) return clickRate(below(count));
        const auto row = chooseRow("lst_Metronome_speed", count, oldRow);
        if (!row) return;
        told += " " + PlainRates[*row];
        model->chooseRate(*row);
    }
    void clickRate(std::size_t row) {
        told += " " + PlainRates[row] + " by the mouse";
        auto& list = at<QListWidget>("lst_Metronome_speed");
        QListWidgetItem* item = list.item(static_cast<int>(row));
        list.scrollToItem(item);
        const auto held = oneOf<Qt::KeyboardModifiers>({{}, {}, Qt::ControlModifier, Qt::ShiftModifier});
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, list.visualItemRect(item).center());
        if (held) told += " with a key held down";
        model->chooseRate(row);
    }
    void choosePreset() {
        auto& list = at<QComboBox>("Combo1");
        if (model->running || below(3) == 0) {
            told = "next preset";
            QTest::keyClick(&list, Qt::Key_Down);
            if (model->presetRow < 39) model->choosePreset(static_cast<std::size_t>(model->presetRow + 1));
            return;
        }
        const std::size_t row = below(40);
        told = "preset " + plainBeat(row);
        list.setCurrentIndex(static_cast<int>(row));
        emit list.activated(static_cast<int>(row));
        model->choosePreset(row);
    }
    void slide(const char* name, int& value, int least, int most, bool live) {
        auto& slider = at<QSlider>(name);
        if (below(2) == 0 || !live) {
            const auto by = oneOf<std::pair<Qt::Key, int>>(
                {{Qt::Key_Right, 1}, {Qt::Key_Left, -1}, {Qt::Key_Home, -100}, {Qt::Key_End, 100}});
            QTest::keyClick(&slider, by.first);
            if (live) value = std::clamp(value + by.second, least, most);
        } else {
            const int past = least - 3 + static_cast<int>(below(static_cast<std::size_t>(most - least + 7)));
            slider.setValue(past);
            value = std::clamp(past, least, most);
        }
        told = std::string(name) + " to " + std::to_string(value);
    }
    void movePitch() { slide("sld_ClickPitch", model->pitch, 30, 100, true); }
    void moveBeats() { slide("sld_BPB", model->beatsPerBar, 1, 4, !model->running); }
    std::string someBars() {
        return oneOf<std::string>({"",      "1",     "2",      "3",           " 5 ",   "2.5",    "3.5",
                                   "-3",    "0",     "abc",    "4",           "1",     "1e1",    "32767",
                                   "32768", "8",     "08",     "+2",          "40000", ".5",     "1.5",
                                   "1.",    "12abc", "-32768", "-0",          " ",     "-40000", "32767.4",
                                   "1 2",   "2 ",    "e1",     "99999999999", "1e400", "1e-400"});
    }
    void expectSelection() {
        EXPECT_EQ(at<QLineEdit>("txt_BTp").selectedText().toStdString(),
                  model->barsSelected ? model->barsText : "");
    }
    // All at once, whatever way it comes.
    void putBars() {
        if (model->running) return typeBars();
        const std::string text = someBars();
        told = "bars '" + text + "'";
        enter(at<QLineEdit>("txt_BTp"), text);
        model->setBars(text);
        expectSelection();
    }
    void pasteBars() {
        const std::string text = someBars();
        if (text.empty()) return;
        told = "paste bars '" + text + "'";
        QApplication::clipboard()->setText(QString::fromStdString(text));
        QTest::keyClick(&at("txt_BTp"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&at("txt_BTp"), Qt::Key_V, Qt::ControlModifier);
        if (model->running) return;
        model->setBars(text);
        expectSelection();
    }
    // Key by key over what stands there, or after that was deleted.
    void typeBars() {
        const std::string text = someBars();
        told = "type bars '" + text + "'";
        auto& box = at<QLineEdit>("txt_BTp");
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        const bool deleted = below(4) == 0;
        if (deleted) QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, QString::fromStdString(text));
        if (model->running) return;
        model->barsSelected = true;
        if (deleted) model->setBars("");
        for (const char character : text)
            model->typeBars(character);
        expectSelection();
    }
    void resize() {
        const QSize size(300 + static_cast<int>(below(600)), 200 + static_cast<int>(below(500)));
        told = "resize to " + std::to_string(size.width()) + " by " + std::to_string(size.height());
        window->resize(size);
        QApplication::processEvents();
    }
    // The click that still sounds is left to the next silence.
    void reopen() {
        if (below(3) != 0) return tick();
        told = model->running ? "close while it runs" : "close";
        window->Form_Unload();
        window.reset();
        EXPECT_FALSE(timers.timers().contains("tmr_Metronome"));
        EXPECT_EQ(sentText(), midiText(desk.midi));
        desk.midi.clear();
        open();
    }
};

TEST_P(RandomMetronomeActs, LeaveTheWindowLikeThePlainModel) {
    chance.seed(GetParam());
    if (GetParam() == 3) makeLanguage();
    open();
    ASSERT_TRUE(sameAsModel());
    std::string acts;
    for (int count = 0; count < 2000; ++count) {
        act();
        acts = told + "; " + acts.substr(0, 300);
        ASSERT_FALSE(HasFailure()) << acts;
        ASSERT_TRUE(sameAsModel()) << "after " << count << " acts, the last first: " << acts;
    }
    EXPECT_EQ(ends, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomMetronomeActs, ::testing::Range(1u, 4u));

} // namespace
} // namespace tabrova::testing
