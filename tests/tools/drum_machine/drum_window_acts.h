// The drum machine's window and its plain model side by side, and what both show, send, ask and write as
// text.
#pragma once

#include "tests/tools/drum_machine/plain_drum_songs.h"
#include "tests/tools/random_window_acts.h"
#include "tools/drum_machine/frmDrumMachine.h"

#include <QAbstractButton>
#include <QAbstractSlider>

namespace tabrova::testing {

class DrumWindowActs : public RandomWindowActs<frmDrumMachine> {
  protected:
    void open() {
        model = std::make_unique<PlainDrumMachine>();
        window = std::make_unique<frmDrumMachine>(context, nullptr);
        window->Form_Load();
        window->show();
        QApplication::processEvents();
        for (std::size_t row = 0; row < 16; ++row)
            for (std::size_t step = 0; step < 16; ++step)
                buttons[row][step] = &at<QAbstractButton>(trackName(row).c_str(), step);
        for (std::size_t row = 0; row < 16; ++row)
            EXPECT_EQ(namesIn(list(row)), PlainDrumNames) << row;
    }
    // A language file of so many lines; none if there are none. What it lacks has the built-in text.
    void writeLanguage(std::size_t lines) {
        static const std::map<std::size_t, std::size_t> places = {{210, 0}, {213, 1}, {214, 2},
                                                                  {215, 3}, {216, 4}, {217, 5}};
        std::string bytes;
        for (std::size_t line = 1; line <= lines; ++line) {
            bytes += "Zeile " + std::to_string(line) + "\r\n";
            if (places.contains(line)) captions[places.at(line)] = "Zeile " + std::to_string(line);
        }
        if (lines > 0) write("", "lang.trl", bytes);
    }
    static std::string trackName(std::size_t row) {
        const bool small = row == 9 || (row >= 11 && row <= 15);
        return (small ? "cmdtrack" : "cmdTrack") + std::to_string(row);
    }
    QComboBox& list(std::size_t row) const { return at<QComboBox>("lstInstrument", row); }
    QAbstractSlider& volume(std::size_t row) const { return at<QAbstractSlider>("sldVolume", row); }
    ListedTimer& tmrplayback() const { return *timers.timers()["tmrplayback"]; }

    ::testing::AssertionResult sameAsModel() {
        const std::pair<std::string, std::string> both[] = {
            {sentText(), midiText(std::exchange(model->midi, {}))},
            {askedText(), ""},
            {chosenFiles(), std::exchange(wantedFiles, {})},
            {shown(), wanted()}};
        for (const auto& [real, plain] : both)
            if (real != plain) return ::testing::AssertionFailure() << otherLines(real, plain);
        return ::testing::AssertionSuccess();
    }
    ::testing::AssertionResult sameFiles() {
        PlainFolder real = filesIn(folder());
        for (const auto& [name, bytes] : files)
            if (!real.contains(name) || real[name] != bytes)
                return ::testing::AssertionFailure() << "the file " << name << firstOther(real[name], bytes);
        if (real.size() != files.size()) return ::testing::AssertionFailure() << "there are more files";
        return ::testing::AssertionSuccess();
    }

    // Where the file choosers' answers lie. A name that begins with "/" stands as it is.
    std::string pathOf(const std::string& name) const {
        return name.empty() || name.starts_with('/') ? name : (folder() / name).string();
    }
    void openFile(const std::optional<std::string>& name) {
        if (model->enabled) queue(name, "open ");
        press("Command3");
        if (model->enabled && name && files.contains(*name)) model->open(files[*name]);
    }
    void queue(const std::optional<std::string>& name, const std::string& kind) {
        std::optional<QString> path;
        if (name) path = QString::fromStdString(pathOf(*name));
        RecordingServices::files.queueAnswer(path);
        wantedFiles += kind;
    }
    void tick() {
        EXPECT_EQ(tmrplayback().fire(), model->running);
        model->tick();
    }

    std::unique_ptr<PlainDrumMachine> model;
    std::array<std::array<QAbstractButton*, 16>, 16> buttons{};
    PlainDrumSongs songs{chance};

  private:
    static std::string namesIn(const QComboBox& list) {
        std::string names;
        for (int row = 0; row < list.count(); ++row)
            names += list.itemText(row).toStdString() + "|";
        return names;
    }
    static std::string otherLines(const std::string& real, const std::string& plain) {
        std::istringstream ofReal(real), ofPlain(plain);
        std::string text, left, right;
        for (int line = 0; ofReal || ofPlain; ++line) {
            if (!std::getline(ofReal, left)) left = "(none)";
            if (!std::getline(ofPlain, right)) right = "(none)";
            if (left != right)
                text += "line " + std::to_string(line) + ": " + left + "\n   instead of " + right + "\n";
        }
        return text;
    }
    static std::string firstOther(const std::string& real, const std::string& plain) {
        const auto first = std::ranges::mismatch(real, plain).in1 - real.begin();
        const auto at = static_cast<std::size_t>(std::max<std::ptrdiff_t>(first - 20, 0));
        return " differs at byte " + std::to_string(first) + " of " + std::to_string(real.size()) + ": \"" +
               real.substr(std::min(at, real.size()), 40) + "\" instead of \"" +
               plain.substr(std::min(at, plain.size()), 40) + "\"";
    }
    std::string chosenFiles() {
        std::string text;
        for (const auto& asked : RecordingServices::files.take())
            text += asked.question.kind == FileQuestion::Kind::Open ? "open " : "save ";
        return text;
    }
    std::string sliderText(const QString& name) const {
        const auto& slider = at<QAbstractSlider>(name);
        std::ostringstream text;
        text << name.toStdString() << " " << slider.value() << " of " << slider.minimum() << " to "
             << slider.maximum() << " " << slider.isEnabled() << "\n";
        return text.str();
    }
    static std::string sliderText(const std::string& name, int value, const char* range, bool enabled) {
        return name + " " + std::to_string(value) + " of " + range + " " + (enabled ? "1" : "0") + "\n";
    }
    std::string buttonText(const char* name) const {
        const auto& button = at<QAbstractButton>(name);
        return button.text().remove('&').toStdString() + " " + (button.isEnabled() ? "1" : "0") + "\n";
    }
    std::string shown() {
        std::ostringstream text;
        text << window->windowTitle().toStdString() << "\n";
        for (const char* name : {"Command1", "Command2", "Command3", "chkPlayAll"})
            text << buttonText(name);
        text << "all " << at<QAbstractButton>("chkPlayAll").isChecked() << " text "
             << at<QLineEdit>("Text1").text().toStdString() << " " << at("Text1").isEnabled() << "\n"
             << sliderText("sldPattern") << sliderText("sldSpeed") << "tmrplayback "
             << tmrplayback().timerEnabled();
        if (model->interval) text << " " << tmrplayback().timerInterval();
        text << "\ntmrplaysong " << timers.timers()["tmrplaysong"]->timerEnabled() << "\n";
        for (std::size_t row = 0; row < 16; ++row) {
            text << list(row).currentIndex() << " " << list(row).currentText().toStdString() << " "
                 << list(row).isEnabled() << "; " << sliderText(QString("sldVolume(%1)").arg(row));
            for (const QAbstractButton* button : buttons[row])
                text << colourOf(*button);
            text << "\n";
        }
        return text.str();
    }
    static char colourOf(const QWidget& button) {
        const QColor colour = button.palette().color(button.backgroundRole());
        if (!button.isEnabled()) return '!';
        return colour == QColor(0x12, 0x37, 0x8F) ? '#' : colour == QColor(Qt::white) ? '.' : '?';
    }
    std::string wanted() const {
        const char* const on = model->enabled ? " 1\n" : " 0\n";
        std::ostringstream text;
        text << "Tabrova - " << captions[0] << "\n"
             << captions[model->playing ? 5 : 4] << " 1\n"
             << captions[2] << on << captions[3] << on << captions[1] << on << "all " << model->playAll
             << " text " << model->text << " 1\n"
             << sliderText("sldPattern", model->pattern, "0 to 99", model->enabled)
             << sliderText("sldSpeed", model->speed, "20 to 1200", true) << "tmrplayback " << model->running;
        if (model->interval) text << " " << *model->interval;
        text << "\ntmrplaysong 0\n";
        for (std::size_t row = 0; row < 16; ++row) {
            text << model->lists[row] << " " << plainDrumName(model->lists[row]) << " " << model->enabled
                 << "; "
                 << sliderText("sldVolume(" + std::to_string(row) + ")", model->volumes[row], "20 to 127",
                               model->enabled);
            for (const bool blue : model->blue[row])
                text << (blue ? '#' : '.');
            text << "\n";
        }
        return text.str();
    }
    static std::string plainDrumName(int list) {
        std::istringstream names(PlainDrumNames);
        std::string name;
        for (; list >= 0; --list)
            std::getline(names, name, '|');
        return name;
    }

  protected:
    std::array<std::string, 6> captions = {
        "Drum Machine", "Play entire song", "Save this Song", "Open a Song", "Play", "Stop"};
    std::string wantedFiles; // the file choosers that the act shows
};

} // namespace tabrova::testing
