// `frmChordWizard`, the chord manager: a calculator of chords from keys and types, a bank of the user's own
// chords, and what both show, sound and write into the document.
#pragma once

#include "tools/chord_manager/chord_sound.h"
#include "workbench/tool_window.h"

#include <map>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QTabWidget;

namespace tabrova {

class ChordDiagram;
class ChordStaff;
class ConstructionPanel;
class FolderList;
class ListBox;
class NewChordPanel;
class PictureButton;
class StrumStrip;

class frmChordWizard : public ToolWindow, private ActObserver {
  public:
    frmChordWizard(const ToolContext& context, QWidget* parent);
    ~frmChordWizard() override;

    void Form_Load() override;
    void Form_Unload() override;

    // Makes or replaces the type's file; tells the user if that fails.
    void SaveChordType(const QString& name, std::string_view pattern);

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    // How the controls are made and placed.
    QWidget* buildCalculatorTab();
    QWidget* buildBankTab();
    QWidget* buildOptionsTab();
    QWidget* buildChordSide();
    QLayout* buildTypeButtons(QWidget* parent);
    QLayout* buildStyle(QWidget* parent);
    QLabel* buildTitle(QWidget* parent);
    QLayout* buildViewChoice(QWidget* parent);
    QLayout* buildView(QWidget* parent);
    QWidget* buildKeyBoxes(QWidget* parent);
    QWidget* buildAdder(QWidget* parent);
    void connectCalculator();
    void connectBank();
    void connectAdder();
    void connectKeys();

    // The calculator.
    void lstKeys_Click();
    void LoadChordType();
    void ComputeChord(const ChordValues& values);
    void PickChordFrets();
    void deleteType();
    void showDisplay();
    QString typeName() const;
    CalculatorStyle style() const;

    // The bank.
    void LoadUserChord();
    void SaveUserChord();
    void storeUserChord();
    void deleteChord();
    void showBadEntry(const char* stringName);

    // What sounds and what goes to the document.
    void PlayChordNow();
    void AddChordToDocument();
    void RemoveChordFromDocument();
    void percussionTrack();
    void moveCursor(int keyCode);
    void actEnded(std::string_view act, const Changes& changes) override;

    void tell(const QString& text, BoxIcon icon);
    std::filesystem::path chordFolder() const { return programFolder() / "chords"; }
    std::filesystem::path typeFolder() const { return programFolder() / "chordtypes"; }
    // Of the chosen entries.
    std::filesystem::path ChordFile() const;
    std::filesystem::path ChordTypeFile() const;

    ChordDisplay display_;
    ChordSound sound_;
    QString CurrentKeyName;
    std::map<std::string, QString, std::less<>> words_; // by the message's name

    QTabWidget* SSTab1_;
    ListBox* lstKeys_;
    FolderList* lstTypes_;
    QPushButton* Command1_;
    QPushButton* Command3_;
    ConstructionPanel* construction_;
    QComboBox* Combo1_;
    FolderList* lst_Chords_;
    QLineEdit* txt_Find_;
    QPushButton* cmd_Delete_;
    NewChordPanel* Frame5_;
    QSlider* nbnSlider_;
    QCheckBox* chkPlayNow_;
    QCheckBox* chkNotebyNote_;
    QCheckBox* chkTranspose_;
    QLabel* lblTitle_;
    PictureButton* cmdPlay_;
    ChordDiagram* diagram_;
    std::array<QCheckBox*, ChordNotes> chkKey_;
    QComboBox* lstView_;
    ChordStaff* staff_;
    QWidget* picAdder_;
    std::array<PictureButton*, 6> adderButtons_; // Image5 to Image10
    StrumStrip* Image3_;
};

} // namespace tabrova
