#include "core/shell/toolbar.h"

#include "core/shell/icons/toolbar_icons.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

namespace tabrova {

namespace {

constexpr int StopPlace = 10;
constexpr int FirstTechniquePlace = 13;
constexpr int LastTechniquePlace = 28;
constexpr int GhostNotePlace = 19;
constexpr int IconSize = 18;
constexpr int ButtonSize = 22;

struct Place {
    const char* word; // "" for a separator
    const char* hint;
    bool shown = true;
};

constexpr Place Places[] = {
    {"new", "New (Ctrl+N)"},
    {"open", "Open (Ctrl+O)"},
    {"save", "Save (Ctrl+S)"},
    {"print", "Print (Ctrl+P)"},
    {"printpreview", "Print Preview", false}, // the word has no command: it keeps its place, unseen
    {"properties", "Properties"},
    {"", ""},
    {"playall", "Play (F7)"},
    {"playfromhere", "Play From Here (F8)"},
    {"stop", "Stop (F9)"},
    {"tr3", "Check for New Version"},
    {"", ""},
    {"bend", "Bend (B)"},
    {"hammer", "Hammer-on or Pull-off (H)"},
    {"slide", "Slide (S)"},
    {"vibrato", "Vibrato (V)"},
    {"whammy", "Whammy Bar (W)"},
    {"dive", "Dive (D)"},
    {"ghostnote", "Ghost Note (G)"},
    {"harmonic", "Harmonic (M)"},
    {"fade", "Fade In (F)"},
    {"tap", "Tap (T)"},
    {"slap", "Slap (L)"},
    {"pop", "Pop (O)"},
    {"ring", "Let Ring (R)"},
    {"dead", "Dead Note (X)"},
    {"staccato", "Staccato (Z)"},
    {"jump", "Jump (J)"},
    {"", ""},
    {"wholenote", "Whole Note: 16 Columns"},
    {"halfnote", "Half Note: 8 Columns"},
    {"triplet", "Triplet: 3 Columns"},
    {"quarternote", "Quarter Note: 4 Columns"},
    {"eighthnote", "Eighth Note: 2 Columns"},
    {"sixteenthnote", "Sixteenth Note: 1 Column"},
};

} // namespace

Toolbar::Toolbar(QWidget* parent) : QWidget(parent) {
    setObjectName("Toolbar1");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 1, 4, 1);
    row->setSpacing(1);
    for (const Place& place : Places) {
        if (*place.word == '\0') {
            addSeparator();
        } else {
            addButton(place.word, place.hint);
        }
        if (!place.shown) places_.last()->hide();
    }
    row->addStretch();
}

void Toolbar::addButton(const QString& word, const QString& hint) {
    auto* button = new QToolButton(this);
    button->setObjectName("Toolbar1(" + word + ")");
    button->setIcon(toolbarIcon(word));
    button->setIconSize({IconSize, IconSize});
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(ButtonSize, ButtonSize);
    layout()->addWidget(button);
    places_.append(button);
    connect(button, &QToolButton::clicked, this, [this, word] {
        pressed(word);
        update();
    });
}

void Toolbar::addSeparator() {
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    line->setFixedSize(7, ButtonSize - 4);
    layout()->addWidget(line);
    places_.append(nullptr);
}

void Toolbar::setAllButStopEnabled(bool enabled) {
    for (int place = 1; place <= places_.size(); ++place) {
        QToolButton* button = places_[place - 1];
        if (!button || place == StopPlace) continue;
        button->setEnabled(enabled && available(Places[place - 1].word));
    }
}

void Toolbar::UpdateTechniqueButtons(bool guitarTrack) {
    for (int place = FirstTechniquePlace; place <= LastTechniquePlace; ++place)
        places_[place - 1]->setEnabled(guitarTrack || place == GhostNotePlace);
}

} // namespace tabrova
