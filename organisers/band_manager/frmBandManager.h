// `frmBandManager`, the band manager: an address book for one band, kept in the settings, and a log of gigs,
// each a small file. Texts of the settings come back as they were, whatever their length; as captions and
// titles only their beginnings are shown.
#pragma once

#include "organisers/band_manager/band_record.h"
#include "workbench/tool_window.h"

#include <array>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSlider;
class QStackedWidget;
class QTabWidget;

namespace tabrova {

class FolderList;

class frmBandManager : public ToolWindow {
  public:
    frmBandManager(const ToolContext& context, QWidget* parent);

    void Form_Load() override;
    void Form_Unload() override;
    void LoadLanguage() override;

  protected:
    void takeMessage(std::string_view name, const QString& text) override;

  private:
    QWidget* buildOptions();
    QWidget* buildMembers();
    QWidget* buildMemberPage(int member);
    QWidget* buildGigs();
    QWidget* buildGigAddition();
    QWidget* buildBandDetails();
    void connectControls();

    void showPanel(int option);
    void readBand();
    void showMembers(int members);
    void nameTab(int member);
    void mailTo(int member);

    void ResetGigDate();
    void AddGig();
    void deleteGig();
    void showGig();
    // Of the chosen gig.
    std::filesystem::path GigFile() const;
    std::filesystem::path folder() const { return programFolder() / "gigs"; }

    QLineEdit* box(int member, MemberField field) const {
        return boxes_[static_cast<std::size_t>(member)][static_cast<std::size_t>(field)];
    }

    QString badGig_, member_, strnonespecified_;

    std::array<QPushButton*, 3> mnuOption_;
    QStackedWidget* panels_; // in the order of the options

    QSlider* sldMembers_;
    QLabel* lblMembers_;
    QTabWidget* tbMembers_;
    std::array<std::array<QLineEdit*, MemberFieldCount>, MostMembers> boxes_;
    std::array<QPushButton*, MostMembers> sndEmail_;

    FolderList* File1_;
    QPushButton* Command1_;
    QLineEdit* txtmonth_;
    QLineEdit* txtday_;
    QLineEdit* txtyear_;
    QLineEdit* txtname_;
    QLineEdit* txtmemo_;
    QPushButton* Command6_;

    QLineEdit* txtBandName_;
    QPlainTextEdit* txtBandDetails_;
};

} // namespace tabrova
