// Carries the fretboard's layout out on its surface.
#pragma once

#include "tabview/fretboard_layout.h"

namespace tabrova {

struct FretboardColors {
    QRgb dot; // inside its black ring
    QRgb inlay;
};

// On a cleared surface. Needs the toolkit's application object, for the labels' font.
void paintFretboard(Surface& surface, const FretboardLayout& layout, const FretboardColors& colors);

} // namespace tabrova
