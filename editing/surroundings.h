// What the editor knows of the window around it, which keeps it up to date, and the texts that it writes for
// the window to show.
#pragma once

#include "tabview/surface.h"

#include <string>

namespace tabrova {

struct PanelSize {
    int width = 0; // pixels
    int height = 0;
};

struct Surroundings {
    int clientWidth = 0; // of the window, below its menu bar
    int clientHeight = 0;
    int scale = 1;                // image pixels a logical pixel, 1 to 4
    QRgb inlayColor = 0xFFB4B4B4; // of the fretboard, by the window's theme
    Rect page;                    // in the window's client area
    PanelSize bendPanel;
    PanelSize repeatPanel;
    PanelSize fretPalette;
    bool debugMode = false; // of the statistics line
};

// UTF-8, but the title: bytes of the code page.
struct ShownTexts {
    std::string title;
    std::string statistics;
    std::string trackPanel;
};

} // namespace tabrova
