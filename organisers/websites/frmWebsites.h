// `frmWebsites`, the website manager: bookmarks with a line of description, each a small file, and the way to
// them in the system's browser.
#pragma once

#include "workbench/tool_window.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tabrova {

class FolderList;

class frmWebsites : public ToolWindow {
  public:
    frmWebsites(const ToolContext& context, QWidget* parent);

    void Form_Load() override;

  private:
    void addEntries(QGridLayout& grid);
    void addNewEntry(QGridLayout& grid);
    void connectControls();

    // Shows the selected entry. False if there is none or it cannot be read.
    bool showSelected();
    void saveEntry();
    void goToSite();
    void deleteEntry();
    // Of the selected entry.
    std::filesystem::path SiteFile() const;
    std::filesystem::path folder() const { return programFolder() / "sites"; }

    FolderList* sitesList_;
    QLineEdit* SiteLoader_;
    QLabel* lblDesc_;
    QLineEdit* siteURL_;
    QLineEdit* siteName_;
    QLineEdit* txtDesc_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
};

} // namespace tabrova
