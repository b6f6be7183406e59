#include "tabview/fretboard_layout.h"

#include "tabview/sprites.h"

#include <algorithm>

namespace tabrova {

namespace {

constexpr int FirstFretTop = 15;
constexpr int Margin = 30; // of the height, above and below the frets
constexpr int LastFret = FretsOnNeck - 1;
constexpr int LowestStringLeft = 20;
constexpr int StringPitch = 10;
constexpr int HighestStringLeft = 70;
constexpr int NoFret = -20; // puts a dot far above the surface
constexpr int SmallestLabel = 8;
constexpr int LargestLabel = 11;
constexpr int InlayLeft = 35;
constexpr int InlayRight = 55;
constexpr int InlayGap = 5;
constexpr int InlaidFrets[] = {3, 5, 7, 9, 12, 15, 17, 19, 21, 23, 25, 27, 29};

int roundedQuotient(int dividend, int divisor) {
    return static_cast<int>(roundHalfToEven(static_cast<double>(dividend) / divisor));
}

// Every how many frets have their number, so that numbers of the smallest size keep apart.
int labelStep(int pitch) { return (SmallestLabel + pitch - 1) / pitch; }

bool isLabelled(int number, int pitch) { return number > 0 && pitch > 0 && number % labelStep(pitch) == 0; }

// A number's figures are three quarters of its size high, so that this leaves them a good part of their own
// height between them.
int labelSize(int pitch) {
    constexpr int Gap = 2;
    if (pitch <= 0) return SmallestLabel;
    return std::clamp(labelStep(pitch) * pitch - Gap, SmallestLabel, LargestLabel);
}

// Both edges are filled; on a neck too short for the gaps they change places.
Rect inlayBelow(int y, int pitch) {
    const auto [top, bottom] = std::minmax({y + InlayGap, y + pitch - InlayGap});
    return {InlayLeft, top, InlayRight - InlayLeft + 1, bottom - top + 1};
}

int stringLeft(int string) { return (7 - string) * StringPitch; }

} // namespace

int fretPitch(int surfaceHeight) { return roundedQuotient(surfaceHeight - Margin, LastFret); }

FretboardLayout layoutFretboard(const Document& document, int surfaceHeight) {
    FretboardLayout layout;
    const int pitch = fretPitch(surfaceHeight);
    for (int number = 0; number < FretsOnNeck; ++number) {
        NeckFret& fret = layout.frets[static_cast<std::size_t>(number)];
        fret = {number, pitch * number + FirstFretTop, isLabelled(number, pitch), std::nullopt};
        if (std::ranges::find(InlaidFrets, number + 1) != std::end(InlaidFrets))
            fret.inlay = inlayBelow(fret.y, pitch);
    }
    layout.labelPixels = labelSize(pitch);
    const int runOut = LastFret * layout.frets.back().y;
    for (int string = 0; string < StringsPerTrack; ++string) {
        const auto index = static_cast<std::size_t>(string);
        const int x = stringLeft(string);
        layout.strings[index] = {x, FirstFretTop, x, runOut};
        const auto fret = fretOfText(
            document.note(document.CurrentColumn, Document::firstRowOfTrack(document.CurrentTrack) + string));
        layout.dots[index] = {x, pitch * fret.value_or(NoFret) + FirstFretTop};
    }
    return layout;
}

std::optional<NeckPlace> neckPlaceAt(int x, int y, int pitch) {
    constexpr int ClickTop = 27; // of the place that means fret 1
    constexpr int Reach = 5;     // beside the outer strings
    if (x <= LowestStringLeft - Reach || x >= HighestStringLeft + Reach) return std::nullopt;
    if (y <= 10 || y >= LastFret * pitch + FirstFretTop || pitch == 0) return std::nullopt;
    return NeckPlace{StringsPerTrack - 1 - roundedQuotient(x - LowestStringLeft, StringPitch),
                     roundedQuotient(y - ClickTop, pitch) + 1};
}

QRgb quietInlayColor(QRgb themeColor) {
    constexpr int Darkest = 150;
    constexpr int Lightest = 200;
    const int grey = qGray(themeColor);
    if (grey >= Darkest && grey <= Lightest) return themeColor;
    const int quiet = std::clamp(grey, Darkest, Lightest);
    return qRgb(quiet, quiet, quiet);
}

} // namespace tabrova
