// The lengths of notes, as they are engraved.
#include "shell/icons/icon_drawing.h"

namespace tabrova {

namespace {

using enum Ink;
using enum Stroke;

constexpr IconDrawing drawings[] = {
    {"wholenote", {{{Theme, Fill, "O10 10 6.5 4.6 0 O10 10 2.3 3.6 -28"}}}},
    {"halfnote",
     {{{Theme, Line, "M13.5 13V2.5"},
       {Theme, Fill, "A13.5 0 O10.2 14.6 4.2 2.9 -22 O10.2 14.6 3.3 1.4 -32"}}}},
    {"triplet",
     {{{Theme, Line, "M5.5 14.5V9.5 M11.5 9.5V14.5 M17.5 9.5V14.5"},
       {Theme, Solid, "M5.5 9.5H17.5V10.5H5.5Z"},
       {Theme, Fill,
        "A5.5 0 O3.9 15.8 2.3 1.8 -22 A11.5 0 O9.9 15.8 2.3 1.8 -22 A17.5 0 O15.9 15.8 2.3 1.8 -22"},
       {Accent, Line, "M9.3 2.1H12.9L11 3.8C13.6 3.8 13.4 6.7 11 6.7C10.1 6.7 9.4 6.3 9.1 5.5"}}}},
    {"quarternote", {{{Theme, Line, "M13.5 13V2.5"}, {Theme, Fill, "A13.5 0 O10.2 14.6 4.2 2.9 -22"}}}},
    {"eighthnote",
     {{{Theme, Line, "M10.5 13V2.5"},
       {Theme, Fill, "A10.5 0 O7.2 14.6 4.2 2.9 -22"},
       {Theme, Fill, "A10.5 0 M10.5 2.5C10.8 5.5 17.5 6.5 15 12.5C15.6 9 12.5 7.6 10.5 7.2Z"}}}},
    {"sixteenthnote",
     {{{Theme, Line, "M10.5 13V2.5"},
       {Theme, Fill, "A10.5 0 O7.2 14.6 4.2 2.9 -22"},
       {Theme, Fill, "A10.5 0 M10.5 2.2C10.8 4.5 17 5 15.5 9.5C15.6 7 12.5 6 10.5 5.8Z"},
       {Theme, Fill, "A10.5 0 M10.5 6.5C10.8 8.8 17 9.3 15.5 13.8C15.6 11.3 12.5 10.3 10.5 10.1Z"}}}},
};

} // namespace

std::span<const IconDrawing> noteIcons() { return drawings; }

} // namespace tabrova
