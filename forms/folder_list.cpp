#include "forms/folder_list.h"

#include "forms/name_pattern.h"
#include "platform/paths.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace tabrova {

namespace fs = std::filesystem;

namespace {

constexpr int BatchMilliseconds = 100; // in which changes are gathered
constexpr int PollMilliseconds = 1000;

bool comesBefore(const QString& first, const QString& second) {
    const int order = first.compare(second, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : first < second;
}

// The row of the name, or of the one that follows where it would stand.
int rowAtOrBehind(const QStringList& names, const QString& name) {
    return static_cast<int>(std::lower_bound(names.begin(), names.end(), name, comesBefore) - names.begin());
}

int rowOf(const QStringList& names, const QString& name) {
    const int row = rowAtOrBehind(names, name);
    return row < names.size() && names[row] == name ? row : -1;
}

} // namespace

// What the user sees and has chosen, by names.
struct FolderList::Kept {
    QString chosen;
    QString current; // has the keyboard, and perhaps only that
    QString top;     // of the rows on the screen; empty for the first of all
};

FolderList::FolderList(const QString& name, EntryKind kind, QWidget* parent, KeyClick keyClick)
    : ListBox(name, parent, keyClick), kind_(kind) {
    batch_.setSingleShot(true);
    batch_.setInterval(BatchMilliseconds);
    poll_.setInterval(PollMilliseconds);
    // A timer that runs is not started again: an endless row of changes must not put off the reading.
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!batch_.isActive()) batch_.start();
    });
    connect(&batch_, &QTimer::timeout, this, [this] { readBatch(); });
    connect(&poll_, &QTimer::timeout, this, [this] { readBatch(); });
}

void FolderList::showFolder(const fs::path& folder, const std::string& ending) {
    std::error_code failed;
    fs::path place = folder.empty() ? folder : fs::absolute(folder, failed);
    if (!place.has_filename()) place = place.parent_path(); // a separator at its end
    if (place != folder_) showNames({});
    folder_ = place;
    ending_ = ending;
    readAgain();
}

void FolderList::setPattern(const QString& pattern) {
    pattern_ = pattern;
    readAgain();
}

// Watched first, so that nothing can change in between.
void FolderList::readAgain() {
    watch();
    const QStringList names = sortedNames();
    if (names != names_) showNames(names);
}

// Rows do not change under a button of the mouse that is held down on one.
void FolderList::readBatch() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return batch_.start();
    readAgain();
}

void FolderList::showEvent(QShowEvent* event) {
    ListBox::showEvent(event);
    readAgain();
}

QStringList FolderList::sortedNames() const {
    QStringList names;
    for (const fs::path& name : listEntries(folder_, kind_, ending_)) {
        const QString text = textOf(name);
        if (fitsPattern(text, pattern_)) names.append(text);
    }
    std::sort(names.begin(), names.end(), comesBefore);
    return names;
}

void FolderList::showNames(const QStringList& names) {
    const QSignalBlocker quiet(this);
    const Kept before = kept();
    names_ = names;
    clear();
    addItems(names);
    restore(before);
}

FolderList::Kept FolderList::kept() const {
    Kept kept;
    if (chosenRow() >= 0) kept.chosen = names_[chosenRow()];
    if (currentRow() >= 0) kept.current = names_[currentRow()];
    const QModelIndex top = indexAt(viewport()->rect().topLeft() + QPoint(1, 1));
    const bool scrolled = verticalScrollBar()->value() > verticalScrollBar()->minimum();
    if (scrolled && top.isValid()) kept.top = names_[top.row()];
    return kept;
}

// A row that is gone leaves the keyboard to the one that follows it, with nothing chosen.
void FolderList::restore(const Kept& kept) {
    if (names_.isEmpty()) return;
    setAutoScroll(false);
    const int last = count() - 1;
    const int chosen = rowOf(names_, kept.chosen);
    const int current = chosen >= 0 ? chosen : std::min(rowAtOrBehind(names_, kept.current), last);
    if (!kept.current.isEmpty())
        selectionModel()->setCurrentIndex(model()->index(current, 0),
                                          chosen >= 0 ? QItemSelectionModel::ClearAndSelect
                                                      : QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
    if (!kept.top.isEmpty())
        scrollToItem(item(std::min(rowAtOrBehind(names_, kept.top), last)), PositionAtTop);
}

fs::path FolderList::chosenName() const { return chosenRow() < 0 ? fs::path() : pathOf(names_[chosenRow()]); }

void FolderList::chooseName(const fs::path& name) {
    const QSignalBlocker quiet(this);
    setCurrentRow(rowOf(names_, textOf(name)));
}

// A folder that has gone and come again is another one with the same name, so all is watched anew. What the
// toolkit cannot watch - the system may have no more watches, or the name is no text - is read now and then.
void FolderList::watch() {
    QStringList places;
    QStringList failed;
    do {
        places = watchedPlaces();
        if (!watcher_.directories().isEmpty()) watcher_.removePaths(watcher_.directories());
        failed = places.isEmpty() ? QStringList() : watcher_.addPaths(places);
    } while (places != watchedPlaces());
    if (failed.isEmpty()) return poll_.stop();
    if (!poll_.isActive()) poll_.start();
}

// The folder and the one that it lies in; while that is not there, the nearest one above that is.
QStringList FolderList::watchedPlaces() const {
    std::error_code unknown;
    QStringList places;
    if (fs::is_directory(folder_, unknown)) places.append(textOf(folder_));
    for (fs::path place = folder_; place.has_relative_path();) {
        place = place.parent_path();
        if (!fs::is_directory(place, unknown)) continue;
        places.append(textOf(place));
        break;
    }
    return places;
}

} // namespace tabrova
