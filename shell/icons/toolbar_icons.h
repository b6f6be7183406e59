// The pictures of the toolbar's buttons: one family, drawn in strokes at any size and in the theme's colors.
#pragma once

#include <QIcon>

#include <array>
#include <string_view>

namespace tabrova {

// The key words that have a picture: documents, playback, techniques, lengths of notes.
inline constexpr std::array<std::string_view, 32> toolbarIconWords = {
    "new",     "open",         "save",       "print",         "printpreview", "properties", "tr3",
    "playall", "playfromhere", "stop",       "bend",          "hammer",       "slide",      "vibrato",
    "whammy",  "dive",         "ghostnote",  "harmonic",      "fade",         "tap",        "slap",
    "pop",     "ring",         "dead",       "staccato",      "jump",         "wholenote",  "halfnote",
    "triplet", "quarternote",  "eighthnote", "sixteenthnote",
};

// The icon of a toolbar button by its key word; a null icon for a word that has none.
// Its colors are looked up at each painting, so a change of the theme needs no new icon.
QIcon toolbarIcon(const QString& word);

} // namespace tabrova
