// A list of the entries of one folder, in alphabetical order without regard to case. It follows the folder:
// what other windows or programs make, rename or remove there shows by itself, and so does a folder that is
// not there yet, or goes and comes again.
#pragma once

#include "core/files/folder_entries.h"
#include "platform/list_box.h"

#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>

#include <filesystem>
#include <string>

namespace tabrova {

class FolderList : public ListBox {
  public:
    // Shows nothing yet.
    FolderList(const QString& name, EntryKind kind, QWidget* parent, KeyClick keyClick = KeyClick::AtMove);

    // Shows this folder from now on, or of it what ends so.
    void showFolder(const std::filesystem::path& folder, const std::string& ending = {});
    // Only entries whose names fit from now on, without regard to case, "*" and "?" being wildcards. It is
    // "*" at first.
    void setPattern(const QString& pattern);
    // At once, for what the program itself has just changed there. The chosen row stays chosen by its name
    // and the rows stay where they are on the screen, as far as they are still there.
    void readAgain();

    // The name of the chosen entry; empty if none is.
    std::filesystem::path chosenName() const;
    // Raises no Click. A name that is not there leaves none chosen.
    void chooseName(const std::filesystem::path& name);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    struct Kept;

    QStringList sortedNames() const;
    void showNames(const QStringList& names);
    Kept kept() const;
    void restore(const Kept& kept);
    void readBatch();
    void watch();
    QStringList watchedPlaces() const;

    EntryKind kind_;
    std::filesystem::path folder_;
    std::string ending_;
    QString pattern_ = "*";
    QStringList names_; // by row
    QFileSystemWatcher watcher_;
    QTimer batch_;
    QTimer poll_;
};

} // namespace tabrova
