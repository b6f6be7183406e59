// How a form's controls are placed, as one line of text a control: what a picture of the form would show,
// without the theme's own pixels.
#pragma once

#include <QGridLayout>
#include <QLayout>
#include <QStringList>
#include <QWidget>

namespace tabrova::testing {

inline QString describedItem(QLayoutItem& item) {
    if (item.widget()) {
        const QWidget& widget = *item.widget();
        return widget.objectName().isEmpty() ? "unnamed" : widget.objectName();
    }
    if (item.spacerItem()) return QString("space %1").arg(item.sizeHint().expandedTo({0, 0}).height());
    return "layout";
}

inline QString margins(const QLayout& layout) {
    const QMargins m = layout.contentsMargins();
    return QString("%1 %2 %3 %4").arg(m.left()).arg(m.top()).arg(m.right()).arg(m.bottom());
}

// A column: a control or a space and its stretch.
inline QStringList described(const QBoxLayout& layout) {
    QStringList lines;
    for (int place = 0; place < layout.count(); ++place)
        lines.append(
            QString("%1 stretch %2").arg(describedItem(*layout.itemAt(place))).arg(layout.stretch(place)));
    return lines;
}

// A grid: "name row,column rows x columns alignment", and the rows and columns that stretch or have a least
// size.
inline QStringList described(const QGridLayout& layout) {
    QStringList lines;
    for (int place = 0; place < layout.count(); ++place) {
        int row = 0, column = 0, rows = 0, columns = 0;
        layout.getItemPosition(place, &row, &column, &rows, &columns);
        QLayoutItem& item = *layout.itemAt(place);
        QString line = QString("%1 %2,%3").arg(describedItem(item)).arg(row).arg(column);
        if (rows != 1 || columns != 1) line += QString(" %1x%2").arg(rows).arg(columns);
        if (item.alignment()) line += QString(" aligned %1").arg(int(item.alignment()));
        lines.append(line);
    }
    for (int row = 0; row < layout.rowCount(); ++row)
        if (layout.rowStretch(row))
            lines.append(QString("row %1 stretch %2").arg(row).arg(layout.rowStretch(row)));
    for (int column = 0; column < layout.columnCount(); ++column)
        if (layout.columnStretch(column))
            lines.append(QString("column %1 stretch %2").arg(column).arg(layout.columnStretch(column)));
    return lines;
}

// A layout with all that lies in it, inner ones below their place and set in by two blanks.
inline QStringList describedTree(QLayout& layout) {
    QStringList lines = {"margins " + margins(layout) + QString(" spacing %1").arg(layout.spacing())};
    if (auto* box = qobject_cast<QBoxLayout*>(&layout)) lines += described(*box);
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        lines += described(*grid);
        lines.append(QString("gaps %1 %2").arg(grid->horizontalSpacing()).arg(grid->verticalSpacing()));
        for (int column = 0; column < grid->columnCount(); ++column)
            if (grid->columnMinimumWidth(column))
                lines.append(QString("column %1 least %2").arg(column).arg(grid->columnMinimumWidth(column)));
    }
    for (int place = 0; place < layout.count(); ++place) {
        QLayoutItem& item = *layout.itemAt(place);
        QLayout* inner = item.layout() ? item.layout() : item.widget() ? item.widget()->layout() : nullptr;
        if (!inner) continue;
        lines.append(describedItem(item) + ":");
        for (const QString& line : describedTree(*inner))
            lines.append("  " + line);
    }
    return lines;
}

inline std::string text(const QStringList& lines) { return lines.join('\n').toStdString() + "\n"; }

} // namespace tabrova::testing
