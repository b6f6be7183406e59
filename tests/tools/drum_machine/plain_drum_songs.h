// Song files for random tests: good ones in all the ways that numbers and booleans can be written, and broken
// ones.
#pragma once

#include "tests/tools/drum_machine/plain_drum_machine.h"

#include <random>

namespace tabrova::testing {

class PlainDrumSongs {
  public:
    static constexpr std::size_t Lines = 25633, FirstVolume = 16, Speed = 32, FirstStep = 33;

    explicit PlainDrumSongs(std::mt19937& from) : chance(from) {}

    std::vector<std::string> song() {
        std::vector<std::string> lines;
        while (lines.size() < FirstVolume)
            lines.push_back(below(6) == 0 ? "-1" : std::to_string(below(46)));
        while (lines.size() < Speed)
            lines.push_back(std::to_string(20 + below(108)));
        lines.push_back(std::to_string(20 + below(1181)));
        const std::size_t sparse = oneOf<std::size_t>({1, 2, 2, 4, 16, 1000});
        while (lines.size() < Lines)
            lines.push_back(below(sparse) == 0 ? "True" : "False");
        return lines;
    }
    std::string good() { return joined(song()); }
    // Some lines read well, but are not as they would be saved.
    std::string odd() {
        auto lines = song();
        for (std::size_t count = 1 + below(40); count > 0; --count) {
            const std::size_t line = someLine();
            lines[line] = oneOf(line < FirstVolume ? OddLists : line < FirstStep ? OddNumbers : OddBooleans);
        }
        return joined(lines);
    }
    std::string damaged() {
        auto lines = song();
        const std::size_t line = someLine();
        lines[line] = oneOf(line < FirstVolume ? BadLists : line < FirstStep ? BadNumbers : BadBooleans);
        return joined(lines);
    }
    // Cut within a line, behind one, or between its two end marks.
    std::string cut() {
        auto lines = song();
        const std::size_t line = someLine();
        const std::string rest = lines[line] + "\r\n";
        lines.resize(line);
        return joined(lines) + rest.substr(0, below(rest.size() + 1));
    }
    // The last line may end or not.
    std::string cutAtTheEnd() {
        std::string bytes = good();
        bytes.resize(bytes.size() - below(10));
        return bytes;
    }
    std::string tooLong() {
        return good() + oneOf<std::string>({"\r\n", "abc", "False\r\n", std::string(70000, 'x'), binary(50)});
    }
    // All its lines end in LF, or some of them, which breaks it.
    std::string withPlainEnds() {
        const bool all = below(2) == 0;
        std::string bytes;
        for (const std::string& line : song())
            bytes += line + (all || below(2) == 0 ? "\n" : "\r\n");
        return bytes;
    }
    std::string rubbish() { return below(3) == 0 ? "" : binary(1 + below(5000)); }

    std::string any() {
        static const std::vector<std::string (PlainDrumSongs::*)()> kinds = {
            &PlainDrumSongs::good,    &PlainDrumSongs::odd,         &PlainDrumSongs::damaged,
            &PlainDrumSongs::damaged, &PlainDrumSongs::cut,         &PlainDrumSongs::cut,
            &PlainDrumSongs::tooLong, &PlainDrumSongs::cutAtTheEnd, &PlainDrumSongs::withPlainEnds,
            &PlainDrumSongs::rubbish};
        return (this->*oneOf(kinds))();
    }

  private:
    static inline const std::vector<std::string>
        OddLists = {" 5 ", "\t5",  "2.5", "3.5",  "1e1", "+7",  "-0.4", "-0.5", "45.4",
                    "044", "4.E1", "5.",  ".5e1", "-1",  "-1.", "-1.4", "  45", "44.5"},
        BadLists = {"46",  "-2",  "-1.5", "45.5", "99999999999", "",   " ", "abc", "1 2",   "0x10", "&H5",
                    "5,7", "1e3", "nan",  "inf",  "1.2.3",       "e5", "+", "--1", "\"5\"", "5x",   "True"},
        OddNumbers = {"0",          "300",         " 64 ", "64.5",   "65.5", "-5",    "2e2",
                      "19",         "20",          "127",  "128",    "5000", "480.5", "481.5",
                      "2147483647", "-2147483648", "+99",  "1200.5", "1e-9", "19.5"},
        BadNumbers = {"2147483648", "-2147483649", "1e10", "1e999", "",  "  ", "abc", "100 100", "64,",
                      "$64",        "1d2",         "0x40", "False", "-", ".",  "1e",  "64%"},
        OddBooleans = {"true", "TRUE", " False ", "0",   "-1", "1",       "2.5",   "0.4", "\tTrue",
                       "tRuE", "-0",   "0.0",     "1e1", "+0", "false  ", "FALSE", ".0",  "-.5"},
        BadBooleans = {"yes",        "",    " ",  "Tru",    "Truee",     "T rue",
                       "T",          "F",   "on", "#TRUE#", "\"True\"",  "None",
                       "True,False", "0x1", "-",  "1 0",    "FalseTrue", "0False"};

    std::size_t below(std::size_t end) { return chance() % end; }
    template <class Value>
    Value oneOf(const std::vector<Value>& values) {
        return values[below(values.size())];
    }
    // Of each section as often.
    std::size_t someLine() {
        switch (below(6)) {
        case 0:
            return below(FirstVolume);
        case 1:
            return FirstVolume + below(16);
        case 2:
            return Speed;
        case 3:
            return FirstStep + below(40);
        case 4:
            return Lines - 1 - below(3);
        default:
            return FirstStep + below(Lines - FirstStep);
        }
    }
    static std::string joined(const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        return bytes;
    }
    std::string binary(std::size_t size) {
        std::string bytes;
        while (bytes.size() < size)
            if (const auto byte = static_cast<char>(below(256)); byte != '\r') bytes += byte;
        return bytes;
    }

    std::mt19937& chance;
};

} // namespace tabrova::testing
