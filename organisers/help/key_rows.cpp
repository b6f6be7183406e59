#include "organisers/help/key_rows.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace tabrova {

namespace {

QString plainCaption(QString caption) {
    caption.replace("&&", QChar(0x1F)).remove('&').replace(QChar(0x1F), '&');
    if (caption.endsWith("...")) caption.chop(3);
    return caption.trimmed();
}

QString shownKeys(const QList<QKeySequence>& sequences) {
    QStringList keys;
    for (const QKeySequence& sequence : sequences)
        keys.append(sequence.toString(QKeySequence::NativeText));
    return keys.join(", ");
}

// Its caption is a name of the user's, which may end in brackets.
bool namesDocument(const QAction& item) {
    const QString name = item.objectName();
    return name.startsWith("mnuRecentDocument(") || name.startsWith("mnuExample(");
}

// A caption that names its key itself: "Delete Note (Del)".
KeyRow rowOfCaption(const QString& caption) {
    const qsizetype bracket = caption.lastIndexOf('(');
    if (bracket < 1 || !caption.endsWith(')')) return {};
    return {caption.left(bracket).trimmed(), caption.mid(bracket + 1, caption.size() - bracket - 2)};
}

// The toolbar's own keys: those of the menus stand there.
KeyRow rowOfButton(const QToolButton& button, const QWidget& mainWindow) {
    const QString keys = button.property("key").toString();
    const QKeySequence sequence(keys);
    for (const QAction* item : mainWindow.findChildren<QAction*>())
        if (item->shortcuts().contains(sequence)) return {};
    QString name = button.toolTip();
    name.remove(" (" + keys + ")");
    return {name, keys};
}

class Rows {
  public:
    void heading(const QString& name) { heading_ = name; }
    // A heading without a row is left out.
    void add(const KeyRow& row) {
        if (row.keys.isEmpty() || row.name.isEmpty()) return;
        if (!heading_.isEmpty()) rows_.push_back({heading_, {}});
        heading_.clear();
        rows_.push_back(row);
    }
    void addMenu(const QMenu& menu) {
        for (const QAction* item : menu.actions()) {
            if (namesDocument(*item)) continue;
            if (item->menu()) {
                addMenu(*item->menu());
                continue;
            }
            const QString caption = plainCaption(item->text());
            if (item->shortcuts().isEmpty()) {
                add(rowOfCaption(caption));
            } else {
                add({caption, shownKeys(item->shortcuts())});
            }
        }
    }
    std::vector<KeyRow> taken() { return std::move(rows_); }

  private:
    QString heading_;
    std::vector<KeyRow> rows_;
};

} // namespace

std::vector<KeyRow> keyRows(const QWidget& mainWindow, const LanguageWords& words) {
    Rows rows;
    rows.heading(QString::fromStdString(words.keysOnPage));
    rows.add({QString::fromStdString(words.moveCursor), QString::fromStdString(words.arrowKeys)});
    rows.add({QString::fromStdString(words.writeFret), QString::fromStdString(words.digits)});
    for (const QToolButton* button : mainWindow.findChildren<QToolButton*>())
        rows.add(rowOfButton(*button, mainWindow));
    if (const auto* stop = mainWindow.findChild<QAction*>("stopKeys"))
        rows.add({stop->text(), shownKeys(stop->shortcuts())});
    if (const auto* bar = mainWindow.findChild<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            rows.heading(plainCaption(menu->text()));
            if (menu->menu()) rows.addMenu(*menu->menu());
        }
    }
    return rows.taken();
}

} // namespace tabrova
