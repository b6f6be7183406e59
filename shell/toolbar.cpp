#include "shell/toolbar.h"

#include "shell/icons/toolbar_icons.h"

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
    const char* key;  // that does the same; "" for none
    bool shown = true;
};

constexpr Place Places[] = {
    {"new", "Ctrl+N"},
    {"open", "Ctrl+O"},
    {"save", "Ctrl+S"},
    {"print", "Ctrl+P"},
    {"printpreview", "", false}, // the word has no command: it keeps its place, unseen
    {"properties", ""},
    {"", ""},
    {"playall", "F7"},
    {"playfromhere", "F8"},
    {"stop", "F9"},
    {"tr3", ""},
    {"", ""},
    {"bend", "B"},
    {"hammer", "H"},
    {"slide", "S"},
    {"vibrato", "V"},
    {"whammy", "W"},
    {"dive", "D"},
    {"ghostnote", "G"},
    {"harmonic", "M"},
    {"fade", "F"},
    {"tap", "T"},
    {"slap", "L"},
    {"pop", "O"},
    {"ring", "R"},
    {"dead", "X"},
    {"staccato", "Z"},
    {"jump", "J"},
    {"", ""},
    {"wholenote", ""},
    {"halfnote", ""},
    {"triplet", ""},
    {"quarternote", ""},
    {"eighthnote", ""},
    {"sixteenthnote", ""},
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
            addButton(place.word, place.key);
        }
        if (!place.shown) places_.last()->hide();
    }
    row->addStretch();
}

void Toolbar::addButton(const QString& word, const QString& key) {
    auto* button = new QToolButton(this);
    button->setObjectName("Toolbar1(" + word + ")");
    button->setIcon(toolbarIcon(word));
    button->setIconSize({IconSize, IconSize});
    button->setProperty("key", key);
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
