// `picNoteSelector`, the fret palette: three rows of ten cells that a right click on the page opens.
#pragma once

#include "editing/editor.h"

#include <QFrame>

class QLabel;
class QPainter;

namespace tabrova {

class NoteSelector : public QFrame {
  public:
    explicit NoteSelector(QWidget* parent);

    // The palette closes by its button.
    std::function<void()> closed;

    // Shows the palette there, its highlight parked outside the cells.
    void openAt(const Rect& place);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void DrawNoteSelector(QPainter& surface) const;

    Rect shpNoteSelector_;
};

} // namespace tabrova
