// A plain, slow model of the metronome's window: what it shows, sends, asks and refuses.
#pragma once

#include "tests/tools/chord_manager/plain_desk.h"

#include <cmath>
#include <optional>
#include <regex>

namespace tabrova::testing {

inline const std::vector<std::string> PlainRates = {
    "30 BPM",  "40 BPM",  "50 BPM",  "60 BPM",  "70 BPM",  "80 BPM",  "90 BPM",  "100 BPM",
    "110 BPM", "120 BPM", "130 BPM", "140 BPM", "150 BPM", "160 BPM", "170 BPM", "180 BPM",
    "190 BPM", "200 BPM", "210 BPM", "220 BPM", "240 BPM", "480 BPM", "960 BPM", "1920 BPM"};

// The ten of each number of beats. The texts have the rates' own texts in brackets.
inline const std::vector<std::pair<std::string, std::string>> PlainTempi = {
    {"Grave", "30 BPM"},   {"Lento", "50 BPM"},       {"Largo", "60 BPM"},    {"Adagio", "70 BPM"},
    {"Andante", "80 BPM"}, {"Moderato", "110 BPM"},   {"Allegro", "140 BPM"}, {"Vivace", "160 BPM"},
    {"Presto", "190 BPM"}, {"Prestissimo", "240 BPM"}};

inline std::string plainBeat(std::size_t row) {
    const auto& [word, rate] = PlainTempi[row % 10];
    return std::to_string(row / 10 + 1) + "/4 " + word + " (" + rate + ")";
}

// A number of 16 bits, halves to the even neighbour; none for any other text.
inline std::optional<int> plainBars(const std::string& text) {
    static const std::regex number(" *[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)? *");
    if (!std::regex_match(text, number)) return std::nullopt;
    const double value = std::nearbyint(std::strtod(text.c_str(), nullptr));
    if (!(value >= -32768 && value <= 32767)) return std::nullopt;
    return static_cast<int>(value);
}

struct PlainMetronome {
    PlainMetronome(PlainDesk& onDesk, const std::string& warns) : desk(onDesk), warning(warns) {
        desk.ProgramChange(14, 115);
    }

    int clickRate() const { return std::stoi(PlainRates[rateRow]); }
    void NoteOff(int note) { desk.midi.push_back({0x90 + 14, note, 0}); }

    void chooseRate(std::size_t row) {
        if (running) return;
        rateRow = row;
        if (PlainRates[row] == "1920 BPM") desk.tell(warning, "any");
    }
    void choosePreset(std::size_t row) {
        if (running) return;
        presetRow = static_cast<int>(row);
        preset = plainBeat(row);
        for (rateRow = 0; PlainRates[rateRow] != PlainTempi[row % 10].second; ++rateRow) {
        }
        pitch = 64;
        beatsPerBar = static_cast<int>(row / 10) + 1;
        setBars("50");
    }
    // The box's whole text becomes this one.
    void setBars(const std::string& text) {
        const auto number = plainBars(text);
        barsText = number ? text : "8";
        bars = number.value_or(8);
        barsSelected = !number;
    }
    // Behind the text, or in its place if all of it is selected.
    void typeBars(char character) { setBars((barsSelected ? "" : barsText) + character); }

    void pressCommand1() { running ? stop() : start(); }
    void start() {
        setInterval();
        beat = bar = 1;
        running = true;
    }
    void setInterval() { interval = static_cast<int>(std::nearbyint(60000.0 / clickRate())); }
    void stop() {
        running = false;
        marker = 0;
        desk.AllNotesOff();
    }
    void tick() {
        if (!running) return;
        setInterval();
        NoteOff(pitch);
        if (beat == beatsPerBar + 1) {
            if (bar == bars) return stop();
            beat = 1;
            ++bar;
        }
        desk.NoteOn(14, pitch);
        marker = beat - 1;
        ++beat;
    }

    PlainDesk& desk;
    std::string warning;
    std::size_t rateRow = 9;
    int pitch = 60, beatsPerBar = 4, bars = 8, presetRow = -1;
    std::string barsText = "8", preset = "<none specified>";
    bool barsSelected = false; // where it matters: since the last text
    bool running = false;
    std::optional<int> interval; // any before the first start
    int beat = 0, bar = 0, marker = 0;
};

} // namespace tabrova::testing
