// The two clefs, as outlines in staff spaces drawn by hand.
#pragma once

#include <QPainter>
#include <QPointF>

namespace sheet {

// The place is the left edge of the clef at the middle of the line that it names: the second line
// from below for the treble clef, the second from above for the bass clef. One space is 6 units.
void drawTrebleClef(QPainter& painter, const QPointF& place);
void drawBassClef(QPainter& painter, const QPointF& place);

} // namespace sheet
