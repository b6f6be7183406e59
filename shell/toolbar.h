// `Toolbar1`: 35 numbered places for buttons that are known by a key word, which is not shown to the user.
// Separators count as places.
#pragma once

#include <QWidget>

#include <functional>

class QToolButton;

namespace tabrova {

class Toolbar : public QWidget {
  public:
    explicit Toolbar(QWidget* parent);

    // The key word of the button that was pressed.
    std::function<void(const QString& word)> pressed;
    // Whether the command behind a word can be used at all.
    std::function<bool(const QString& word)> available;

    // All buttons but Stop, at place 10, which stays usable during playback.
    void setAllButStopEnabled(bool enabled);
    // The techniques, places 13 to 28: all on a guitar track, the ghost note alone on a percussion track.
    void UpdateTechniqueButtons(bool guitarTrack);

  private:
    void addButton(const QString& word, const QString& key);
    void addSeparator();

    QList<QToolButton*> places_; // from place 1 on; null for a separator
};

} // namespace tabrova
