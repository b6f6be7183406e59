// One act of the user, such as a key or a menu item, from its begin to its end: whoever shows the document,
// or wants to know what was done to it, is told once, at the end. Acts inside an act belong to it. Where
// nobody listens an act costs a counter.
#pragma once

#include "tabview/surface.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tabrova {

enum class Panel { Bend, Repeat };

struct PanelOpening {
    Panel panel;
    Rect place; // in the window's client area

    bool operator==(const PanelOpening&) const = default;
};

// What is to be shown afresh, and what the window is to do. The state itself stands in the document, the
// editor and the texts.
struct Changes {
    int redraws = 0;          // how often the page was made anew from the document
    bool page = false;        // the page's image, or the look of the objects above it
    bool strip = false;       // the notation strip's
    bool cursor = false;      // its place, and with it the notes on the fretboard
    bool scrollBar = false;   // range or value
    bool title = false;       // of the window
    bool statistics = false;  // the line of them
    bool trackPanel = false;  // of the status bar
    bool techniques = false;  // which technique buttons the current track takes
    bool tracks = false;      // the track lists
    bool trackChosen = false; // another track is the current one, perhaps
    bool tuning = false;      // of the current track
    bool instrument = false;  // of the current track, as its properties name it
    bool language = false;
    bool recent = false;  // the list of recent documents
    bool playing = false; // playback has started or was stopped, perhaps again
    bool layout = false;  // places of the window's panels
    bool trackListOpens = false;
    bool pageTakesKeyboard = false;
    std::optional<PanelOpening> panel;
    std::optional<Rect> fretPalette; // opens there, in the page

    bool operator==(const Changes&) const = default;
};

class ActObserver {
  public:
    virtual ~ActObserver() = default;
    // Before its first change.
    virtual void actBegins(std::string_view) {}
    virtual void actEnded(std::string_view act, const Changes& changes) = 0;
};

class Acts {
  public:
    // An observer takes itself out before it goes.
    void add(ActObserver& observer) { observers_.push_back(&observer); }
    void remove(ActObserver& observer);

    // Of the act under way.
    Changes& changes() { return changes_; }

  private:
    friend class Act;
    friend class ActInterlude;
    void begin(std::string_view name);
    void end();
    template <class Tell>
    void tell(Tell tellOne);

    std::vector<ActObserver*> observers_; // nullptr for one that went while the others were told
    int telling_ = 0;
    std::string_view name_;
    Changes changes_;
    int depth_ = 0;
};

// An act as long as it lives. The name is that of the command; it must outlive the act.
class Act {
  public:
    Act(Acts& acts, std::string_view name) : acts_(acts) { acts_.begin(name); }
    ~Act() { acts_.end(); }
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;

  private:
    Acts& acts_;
};

// While it lives the act under way waits, as for the user's answer: what happens meanwhile is told by itself.
class ActInterlude {
  public:
    explicit ActInterlude(Acts& acts);
    ~ActInterlude();
    ActInterlude(const ActInterlude&) = delete;
    ActInterlude& operator=(const ActInterlude&) = delete;

  private:
    Acts& acts_;
    std::string_view name_;
    Changes changes_;
    int depth_;
};

} // namespace tabrova
