// `Frame5`, where a chord of the user's own is entered: a box a string, a preview, its name. It checks what
// is typed; what sounds and what is saved are its owner's.
#pragma once

#include "tools/chord_manager/new_chord.h"

#include <QGroupBox>

#include <functional>

class QLineEdit;
class QPushButton;

namespace tabrova {

class ChordDiagram;

class NewChordPanel : public QGroupBox {
  public:
    explicit NewChordPanel(QWidget* parent);

    // A box holds what no fret can be, and has the message told; it is then put back to "0".
    std::function<void(const char* stringName)> badEntry;
    // The marks of the chord entered so far, at each change of a box.
    std::function<void(const std::array<std::size_t, ChordStrings>& marks)> changed;
    std::function<void()> save;

    ChordEntries entries() const;
    QString name() const;
    // What is not played becomes an "x".
    void fillSilentEntries();
    // The name is the default one again, and each box with an "x" is empty.
    void clearSaved();

  private:
    QWidget* buildEntries();
    void txt_addcrd_Change(std::size_t string);
    void CheckFretEntry(std::size_t string);
    void PreviewNewChord();

    ChordDiagram* preview_;
    std::array<QLineEdit*, ChordStrings> entries_;
    QLineEdit* txt_NewChordName_;
    QPushButton* Command2_;
};

} // namespace tabrova
