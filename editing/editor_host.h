// What the editor asks of the window around it. The editor decides; the host shows. Texts are UTF-8,
// but the title: bytes of the code page.
#pragma once

#include "tabview/surface.h"

#include <optional>
#include <string>

namespace tabrova {

enum class Panel { Bend, Repeat };

class EditorHost {
  public:
    virtual ~EditorHost() = default;

    // The surface's image, and the objects above it, come to the screen.
    virtual void refreshPage() = 0;
    virtual void refreshStrip() = 0;
    virtual void refreshFretboard() = 0;

    // The scroll bar takes range and value from the editor, without an event of its own.
    virtual void mirrorScrollBar(int maximum, int value) = 0;
    virtual void setTitle(const std::string& title) = 0;
    virtual void setStatistics(const std::string& text) = 0;
    virtual void setTrackPanel(const std::string& text) = 0;
    virtual void UpdateTechniqueButtons(bool guitarTrack) = 0;

    // Height of the window's client area.
    virtual int clientHeight() const = 0;
    // Of the fretboard's inlays, from the window's theme.
    virtual QRgb inlayColor() const = 0;
    // The page in the window's client area.
    virtual Rect pageGeometry() const = 0;
    // Size of a panel; its place is where it stood last.
    virtual Rect panelGeometry(Panel panel) const = 0;
    // Shows the panel there, disables the page and gives the panel the keyboard.
    virtual void openPanel(Panel panel, const Rect& place) = 0;
    virtual Rect noteSelectorGeometry() const = 0;
    // Shows the fret palette at this place of the page, its highlight parked.
    virtual void openNoteSelector(const Rect& place) = 0;
    virtual void focusPage() = 0;

    // The preview's stopper starts afresh; without an interval it keeps its old one.
    virtual void restartSoundStopper(std::optional<int> milliseconds) = 0;
    virtual void unloadFileProperties() = 0;
    // Other tracks stand in the document now.
    virtual void tracksReplaced() = 0;
    // The document's only staff cannot be deleted: may it be cleared instead?
    virtual bool confirmClearingOnlyStaff() = 0;
    virtual bool debugMode() const = 0;
    virtual bool playing() const = 0;
};

} // namespace tabrova
