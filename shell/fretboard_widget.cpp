#include "shell/fretboard_widget.h"

#include "forms/captions.h"
#include "shell/key_mapping.h"

#include <QMouseEvent>

namespace tabrova {

FretboardWidget::FretboardWidget(Surface& surface, QWidget* parent)
    : SurfaceWidget("picFretboard", surface, parent) {
    nameAfter(this, "mnuVirtualFretboard");
}

void FretboardWidget::mousePressEvent(QMouseEvent* event) {
    const QPoint place = pixelAt(*event);
    mouseDown(mouseButtonOf(event->button()), place.x(), place.y());
}

// Its first press has come as a press of its own; the second one is no press any more.
void FretboardWidget::mouseDoubleClickEvent(QMouseEvent*) { doubleClick(); }

} // namespace tabrova
