// Hints as the plain texts that they are: the toolkit would take a word with a tag in it, which any language
// file may hold, for a page that it has to lay out, with pictures that it has to load.
#pragma once

#include <QObject>
#include <QString>

class QPoint;
class QWidget;

namespace tabrova {

// What the toolkit shows as this text, letter by letter.
QString asPlainHint(const QString& text);

void showPlainHint(const QPoint& globalPosition, const QString& text, QWidget* widget);

// While it lives every widget's tool tip is shown so.
class PlainToolTips : public QObject {
  public:
    explicit PlainToolTips(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tabrova
