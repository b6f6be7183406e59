// `Toolbar1`: buttons that are known by a key word, which is not shown to the user.
#pragma once

#include <QWidget>

#include <functional>

namespace tabrova {

class Toolbar : public QWidget {
  public:
    explicit Toolbar(QWidget* parent);

    // The key word of the button that was pressed.
    std::function<void(const QString& word)> pressed;

    // All buttons but "stop", which stays usable during playback.
    void setAllButStopEnabled(bool enabled);
    // What the current track's kind allows.
    void UpdateTechniqueButtons(bool guitarTrack);

  private:
    void addButton(const QString& word, const QIcon& icon, const QString& hint);
};

} // namespace tabrova
