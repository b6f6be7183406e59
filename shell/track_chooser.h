// `picTrackChooser`: the list of the tracks, which drops into view at the bottom left of the window, with the
// buttons that add a track and close it.
#pragma once

#include "core/document/document.h"
#include "platform/list_box.h"

#include <QFrame>

class QPushButton;

namespace tabrova {

class TrackChooser : public QFrame {
  public:
    explicit TrackChooser(QWidget* parent);

    // The document's names in order; rows that hold the right name already are left alone.
    void showTracks(const Document& document);
    // Selects without a click; a row that is not there selects none.
    void showSelected(int row);
    void open();

    std::function<void(int row)> chosen;
    std::function<void()> addTrack;
    std::function<void()> closed;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    // The Tab key stays inside.
    bool focusNextPrevChild(bool next) override;

  private:
    ListBox* TrackNames_;
    QPushButton* AddTrack_;
    QPushButton* Command1_;
};

} // namespace tabrova
