// Documents and playback.
#include "shell/icons/icon_drawing.h"

namespace tabrova {

namespace {

using enum Ink;
using enum Stroke;

constexpr IconDrawing drawings[] = {
    {"new",
     {{{Theme, Line, "M12.5 2.5H5.5Q4.5 2.5 4.5 3.5V16.5Q4.5 17.5 5.5 17.5H15.5Q16.5 17.5 16.5 16.5V6.5Z"},
       {Theme, Solid, "M12.5 2.5V6.5H16.5Z"},
       {Accent, Line, "M10.5 10V15 M8 12.5H13"}}}},
    {"open",
     {{{Theme, Line, "M2.5 15.5V5.5Q2.5 4.5 3.5 4.5H7.5L9.5 6.5H13.5Q14.5 6.5 14.5 7.5V9.5"},
       {Theme, Line, "M3 16.5L5.7 9.5H17.3L14.6 16.5Z"}}}},
    {"save",
     {{{Theme, Line,
        "M3.5 4.5Q3.5 3.5 4.5 3.5H13.5L16.5 6.5V15.5Q16.5 16.5 15.5 16.5H4.5Q3.5 16.5 3.5 15.5Z"
        "M7.5 3.5V7.5H12.5V3.5"},
       {Accent, Line, "M6.5 16.5V11.5H13.5V16.5"}}}},
    {"print",
     {{{Theme, Line,
        "M4.5 14.5H3.5Q2.5 14.5 2.5 13.5V8.5Q2.5 7.5 3.5 7.5H16.5Q17.5 7.5 17.5 8.5V13.5Q17.5 14.5 16.5 "
        "14.5H15.5"
        "M5.5 7.5V2.5H14.5V7.5"},
       {Accent, Line, "M5.5 11.5H14.5V17.5H5.5Z"}}}},
    {"printpreview",
     {{{Theme, Line, "M8.5 17.5H4.5Q3.5 17.5 3.5 16.5V3.5Q3.5 2.5 4.5 2.5H10.5L14.5 6.5"},
       {Theme, Solid, "M10.5 2.5V6.5H14.5Z"},
       {Accent, Line, "O12.5 12.5 3.5 3.5 0 M15 15L17.5 17.5"}}}},
    {"properties",
     {{{Theme, Line,
        "M3.5 3.5H16.5Q17.5 3.5 17.5 4.5V15.5Q17.5 16.5 16.5 16.5H3.5Q2.5 16.5 2.5 15.5V4.5Q2.5 3.5 3.5 "
        "3.5ZM10 8.5H14.5 M10 11.5H14.5"},
       {Accent, Line, "M6.5 10.2V13.2"},
       {Accent, Fill, "A6.5 7.5 O6.5 7 1.2 1.2 0"}}}},
    {"tr3",
     {{{Theme, Line, "M3.5 12.5V15.5Q3.5 16.5 4.5 16.5H16.5Q17.5 16.5 17.5 15.5V12.5"},
       {Accent, Line, "M10.5 2.5V12.5 M6.5 8.5L10.5 12.5L14.5 8.5"}}}},
    {"playall", {{{Theme, Solid, "M6.5 4.5L15.5 10L6.5 15.5Z"}}}},
    {"playfromhere", {{{Accent, Line, "M4.5 3.5V16.5"}, {Theme, Solid, "M8.5 5L16.5 10L8.5 15Z"}}}},
    {"stop", {{{Theme, Solid, "M5.5 5.5H14.5V14.5H5.5Z"}}}},
};

} // namespace

std::span<const IconDrawing> documentIcons() { return drawings; }

} // namespace tabrova
