// Playing techniques: the notes in the theme's ink, what happens to them in the accent.
#include "shell/icons/icon_drawing.h"

namespace tabrova {

namespace {

using enum Ink;
using enum Stroke;

constexpr IconDrawing drawings[] = {
    {"bend",
     {{{Theme, Fill, "O5 14.8 3 2.2 -22"},
       {Accent, Line, "M9.5 14.5C13 14.5 14.5 12 14.5 9V6"},
       {Accent, Solid, "M12.2 6.2L14.5 3L16.8 6.2Z"}}}},
    {"hammer",
     {{{Accent, Line, "M3.5 7.5C6 2 14 2 16.5 7.5"},
       {Theme, Line, "M6.5 9.5V17 M13.5 9.5V17 M6.5 13.5H13.5"}}}},
    {"slide", {{{Theme, Fill, "O4.8 15.2 3 2.2 -22 O15.2 4.8 3 2.2 -22"}, {Accent, Line, "M8 12L12 8"}}}},
    {"vibrato",
     {{{Theme, Fill, "O10 14.8 3 2.2 -22"},
       {Accent, Line,
        "M2.5 8.5C4 8.5 4 4.5 5.5 4.5C7 4.5 7 8.5 8.5 8.5C10 8.5 10 4.5 11.5 4.5C13 4.5 13 8.5 14.5 8.5"
        "C16 8.5 16 4.5 17.5 4.5"}}}},
    {"whammy",
     {{{Theme, Line, "M2.5 10.5H4 M16 10.5H17.5"},
       {Accent, Line, "M4 10.5L5.5 4L8.5 17L11.5 4L14.5 17L16 10.5"}}}},
    {"dive",
     {{{Theme, Fill, "O5 5.2 3 2.2 -22"},
       {Accent, Line, "M9.5 5.5C13 5.5 14.5 8 14.5 11V14"},
       {Accent, Solid, "M12.2 13.8L14.5 17L16.8 13.8Z"}}}},
    {"ghostnote",
     {{{Theme, Fill, "O10 10 3.2 2.4 -22"}, {Accent, Line, "M5 4Q0 10 5 16 M15 4Q20 10 15 16"}}}},
    {"harmonic",
     {{{Theme, Line, "M10 6L14 10L10 14L6 10Z"}, {Accent, Line, "M5 4L2.5 10L5 16 M15 4L17.5 10L15 16"}}}},
    {"fade", {{{Theme, Fill, "O10 15.5 3 2.2 -22"}, {Accent, Line, "M17.5 2.5L2.5 6.5L17.5 10.5"}}}},
    {"tap", {{{Accent, Line, "M6.5 2.5H13.5 M10 2.5V10.5"}, {Theme, Fill, "A10 0 O10 15.8 3 2.2 -22"}}}},
    {"slap",
     {{{Accent, Line,
        "M13 4.4C12.5 3.2 11.5 2.5 10 2.5C8.2 2.5 7 3.4 7 4.7C7 7.5 13 5.8 13 8.6C13 10 11.8 10.9 10 10.9"
        "C8.3 10.9 7.2 10.2 6.8 9"},
       {Theme, Fill, "O10 15.8 3 2.2 -22"}}}},
    {"pop",
     {{{Accent, Line, "M7.5 10.5V2.5H10.5C14 2.5 14 7.5 10.5 7.5H7.5"},
       {Theme, Fill, "O10 15.8 3 2.2 -22"}}}},
    {"ring",
     {{{Theme, Fill, "A8.5 0 O6.1 11.2 3 2.2 -22"},
       {Theme, Line, "M8.5 10.5V2.5"},
       {Accent, Line, "M7 15.5C9.5 18 14.5 17 17.5 13"}}}},
    {"dead",
     {{{Theme, Line, "M12.5 10.5V2.5"}, {Accent, Line, "A12.5 0 M5.5 10.5L12.5 17.5 M12.5 10.5L5.5 17.5"}}}},
    {"staccato",
     {{{Theme, Fill, "A12.5 0 O9.6 9.8 3.6 2.5 -22"},
       {Theme, Line, "M12.5 9V2.5"},
       {Accent, Fill, "A12.5 0 O9.6 16 1.8 1.8 0"}}}},
    {"jump",
     {{{Theme, Line, "M2.5 16.5H6.5 M13.5 16.5H17.5"},
       {Accent, Line, "M4.5 11.5C4.5 2 14.5 2 14.5 9"},
       {Accent, Solid, "M12.2 9.3L14.5 12.5L16.8 9.3Z"}}}},
};

} // namespace

std::span<const IconDrawing> techniqueIcons() { return drawings; }

} // namespace tabrova
