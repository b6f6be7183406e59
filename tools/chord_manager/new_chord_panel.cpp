#include "tools/chord_manager/new_chord_panel.h"

#include "forms/code_page_text.h"
#include "forms/named.h"
#include "tools/chord_manager/chord_diagram.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabrova {

namespace {

constexpr char DefaultName[] = "(new chord)";
constexpr int LongestName = 15;
constexpr DiagramLayout PreviewLayout = {34, 26, 34, 32, 18};
constexpr int EntryWidth = 30;
constexpr int LetterGap = 2;
constexpr std::array StringLetters = {"E", "A", "D", "G", "B", "E"};

// One character, which is always chosen: the next key replaces it, wherever the focus came from.
class FretBox : public QLineEdit {
  public:
    explicit FretBox(QWidget* parent) : QLineEdit("0", parent) {
        setMaxLength(1);
        setAlignment(Qt::AlignCenter);
        setFixedWidth(EntryWidth);
        connect(this, &QLineEdit::textEdited, this, [this] { selectAll(); });
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        selectAll();
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        selectAll();
    }
};

} // namespace

NewChordPanel::NewChordPanel(QWidget* parent) : QGroupBox(parent) {
    setObjectName("Frame5");
    ChordDiagram::MarkNames names;
    for (std::size_t string = 0; string < ChordStrings; ++string)
        names[string] = ChordStringTable[string].previewMarks;
    preview_ = new ChordDiagram(PreviewLayout, names, SilentMark + 1, this);
    txt_NewChordName_ = named(new QLineEdit(DefaultName, this), "txt_NewChordName");
    txt_NewChordName_->setMaxLength(LongestName);
    Command2_ = named(new QPushButton(this), "Command2");
    connect(Command2_, &QPushButton::clicked, this, [this] {
        if (save) save();
    });
    auto* hint = named(new QLabel(this), "Label8");
    hint->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(hint);
    column->addWidget(preview_, 0, Qt::AlignHCenter);
    column->addWidget(buildEntries(), 0, Qt::AlignHCenter);
    column->addStretch(1);
    column->addWidget(labelOf(txt_NewChordName_, "Label9", this));
    column->addWidget(txt_NewChordName_);
    column->addWidget(Command2_);
    PreviewNewChord();
}

// Each box stands under its string of the preview.
QWidget* NewChordPanel::buildEntries() {
    auto* strings = new QWidget(this);
    int height = 0;
    for (std::size_t string = 0; string < ChordStrings; ++string) {
        auto* letter =
            named(new QLabel(StringLetters[string], strings), QString("Tuning_Chord(%1)").arg(string));
        letter->setAlignment(Qt::AlignCenter);
        auto* entry = named(new FretBox(strings), ChordStringTable[string].entry);
        entry->setAccessibleName(ChordStringTable[string].name);
        const int left = PreviewLayout.stringX(string) - EntryWidth / 2;
        letter->setGeometry(left, 0, EntryWidth, letter->sizeHint().height());
        entry->setGeometry(left, letter->height() + LetterGap, EntryWidth, entry->sizeHint().height());
        height = entry->geometry().bottom() + 1;
        connect(entry, &QLineEdit::textChanged, this, [this, string] { txt_addcrd_Change(string); });
        entries_[string] = entry;
    }
    strings->setFixedSize(preview_->width(), height);
    return strings;
}

ChordEntries NewChordPanel::entries() const {
    ChordEntries texts;
    for (std::size_t string = 0; string < ChordStrings; ++string)
        texts[string] = toCodePage(entries_[string]->text());
    return texts;
}

QString NewChordPanel::name() const { return txt_NewChordName_->text(); }

void NewChordPanel::fillSilentEntries() {
    for (QLineEdit* entry : entries_)
        if (isSilentEntry(toCodePage(entry->text()))) entry->setText("x");
}

void NewChordPanel::clearSaved() {
    txt_NewChordName_->setText(DefaultName);
    for (QLineEdit* entry : entries_)
        if (entry->text() == "x") entry->clear();
}

void NewChordPanel::txt_addcrd_Change(std::size_t string) {
    CheckFretEntry(string);
    PreviewNewChord();
}

// Putting "0" back is a change of its own.
void NewChordPanel::CheckFretEntry(std::size_t string) {
    if (!isBadEntry(toCodePage(entries_[string]->text()))) return;
    if (badEntry) badEntry(ChordStringTable[string].name);
    entries_[string]->setText("0");
    entries_[string]->selectAll();
}

void NewChordPanel::PreviewNewChord() {
    std::array<std::size_t, ChordStrings> marks;
    const ChordEntries texts = entries();
    for (std::size_t string = 0; string < ChordStrings; ++string)
        marks[string] = previewMark(texts[string]);
    preview_->showOneMark(marks);
    if (changed) changed(marks);
}

} // namespace tabrova
