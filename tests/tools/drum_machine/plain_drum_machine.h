// A plain, slow model of the drum machine's window: what it shows, keeps, sends and writes.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace tabrova::testing {

// "|" ends each name.
inline const std::string PlainDrumNames =
    "Acoustic Bass Drum|Bass Drum 1|Side Stick|Acoustic Snare|Hand Clap|Electric Snare|Low Floor Tom|"
    "Closed High-Hat|High Floor Tom|Pedal High-Hat|Low Tom|Open High-Hat|Low-Mid Tom|High-Mid Tom|"
    "Crash Cymbal 2|High Tom|Ride Cymbal 2|Chinese Cymbal|Ride Bell|Tambourine|Crash Cymbal 1|Cowbell|"
    "Splash Cymbal|Vibraslap|Ride Cymbal 1|High Bongo|Low Bongo|Mute High Conga|Open High Conga|Low Conga|"
    "High Timbale|Low Timbale|High Agogo|Cabasa|Maracas|Short Whistle|Long Whistle|Short Guiro|Long Guiro|"
    "Claves|High Wood Block|Low Wood Block|Mute Cuica|Open Cuica|Mute Triangle|Open Triangle|";

inline std::string plainTrimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

inline std::optional<double> plainNumber(const std::string& text) {
    static const std::regex form("[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?");
    const std::string number = plainTrimmed(text);
    if (!std::regex_match(number, form)) return std::nullopt;
    return std::strtod(number.c_str(), nullptr);
}

// Half goes to the even neighbour.
inline std::optional<int> plainWhole(const std::string& text) {
    const auto number = plainNumber(text);
    if (!number) return std::nullopt;
    const double whole = std::nearbyint(*number);
    if (whole < -2147483648.0 || whole > 2147483647.0) return std::nullopt;
    return static_cast<int>(whole);
}

inline std::optional<bool> plainBoolean(const std::string& text) {
    if (text == "True") return true;
    if (text == "False") return false;
    std::string word = plainTrimmed(text);
    for (char& letter : word)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + 32);
    if (word == "true") return true;
    if (word == "false") return false;
    const auto number = plainNumber(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

// A lone LF ends a line only in a file without any CR LF. The file may be cut within the last line or its
// end.
inline std::vector<std::string> plainLines(const std::string& bytes) {
    const std::string mark = bytes.find("\r\n") == std::string::npos ? "\n" : "\r\n";
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find(mark, at), bytes.size());
        lines.push_back(bytes.substr(at, end - at));
        at = end + mark.size();
    }
    if (!lines.empty() && lines.back().ends_with('\r')) lines.back().pop_back();
    return lines;
}

struct PlainDrumMachine {
    static constexpr std::size_t Rows = 16, Patterns = 100, Positions = 1600;

    PlainDrumMachine() {
        for (std::size_t row = 0; row < Rows; ++row)
            lists[row] = static_cast<int>(row);
        volumes.fill(100);
    }

    static int intervalOf(int stepsAMinute) {
        return static_cast<int>(std::nearbyint(60000.0 / stepsAMinute));
    }
    std::size_t first() const { return static_cast<std::size_t>(pattern) * 16; }

    void press(std::size_t row, std::size_t step) {
        blue[row][step] = !blue[row][step];
        steps[row][first() + step] = blue[row][step];
    }
    // With the mouse button held down.
    void draw(std::size_t row, std::size_t step, bool likeBlue) {
        if (blue[row][step] != likeBlue) press(row, step);
    }
    void showPattern() {
        running = playing = false;
        text = std::to_string(pattern);
        for (std::size_t row = 0; row < Rows; ++row)
            for (std::size_t step = 0; step < 16; ++step)
                blue[row][step] = steps[row][first() + step];
    }
    void setPattern(int to) {
        to = std::clamp(to, 0, 99);
        if (to == pattern) return;
        pattern = to;
        showPattern();
    }
    void setText(const std::string& to) {
        text = to;
        if (const auto number = plainWhole(to)) setPattern(*number);
    }
    void setSpeed(int to) {
        to = std::clamp(to, 20, 1200);
        if (to == speed) return;
        speed = to;
        interval = intervalOf(speed);
    }
    void setVolume(std::size_t row, int to) { volumes[row] = std::clamp(to, 20, 127); }

    void Command1() {
        if (playing) return stop();
        position = playAll ? 0 : first();
        interval = intervalOf(speed);
        running = playing = true;
        enabled = false;
    }
    void stop() {
        running = playing = false;
        enabled = true;
        for (int channel = 0xB0; channel <= 0xB8; ++channel)
            for (const int controller : {120, 123})
                midi.push_back({channel, controller, 0});
    }
    void tick() {
        if (!running) return;
        if (!playAll && position == first() + 16) position = first();
        if (playAll && position == Positions) return stop();
        fillLists();
        for (std::size_t row = 0; row < Rows; ++row)
            if (steps[row][position]) midi.push_back({0x99, lists[row] + 35, volumes[row]});
        ++position;
    }
    void fillLists() {
        for (std::size_t row = 0; row < Rows; ++row)
            if (lists[row] < 0) lists[row] = static_cast<int>(row);
    }

    // The file's bytes. Only when the file could be opened.
    std::string save() {
        fillLists();
        std::string bytes;
        for (const int list : lists)
            bytes += std::to_string(list) + "\r\n";
        for (const int volume : volumes)
            bytes += std::to_string(volume) + "\r\n";
        bytes += std::to_string(speed) + "\r\n";
        for (const auto& row : steps)
            for (const bool step : row)
                bytes += step ? "True\r\n" : "False\r\n";
        return bytes;
    }
    // Ends at the first line that does not read. What was read until then stays, and the buttons are as
    // before.
    void open(const std::string& bytes) {
        const std::vector<std::string> lines = plainLines(bytes);
        std::size_t at = 0;
        const auto whole = [&] { return at < lines.size() ? plainWhole(lines[at++]) : std::nullopt; };
        for (std::size_t row = 0; row < Rows; ++row) {
            const auto list = whole();
            if (!list || *list < -1 || *list > 45) return;
            lists[row] = *list;
        }
        for (std::size_t row = 0; row < Rows; ++row) {
            const auto volume = whole();
            if (!volume) return;
            setVolume(row, *volume);
        }
        const auto perMinute = whole();
        if (!perMinute) return;
        setSpeed(*perMinute);
        for (auto& row : steps)
            for (bool& step : row) {
                const auto set = at < lines.size() ? plainBoolean(lines[at++]) : std::nullopt;
                if (!set) return;
                step = *set;
            }
        showPattern();
    }

    std::array<std::array<bool, Positions>, Rows> steps{};
    std::array<std::array<bool, 16>, Rows> blue{}; // the buttons that are shown so
    std::array<int, Rows> lists{}, volumes{};
    int pattern = 0, speed = 480;
    std::optional<int> interval; // not known before the first play or change of speed
    std::string text = "0";
    bool playAll = false;
    bool running = false; // tmrplayback
    bool playing = false; // the caption is the stop text
    bool enabled = true;  // what playback disables
    std::size_t position = 0;
    std::vector<std::array<int, 3>> midi;
};

} // namespace tabrova::testing
