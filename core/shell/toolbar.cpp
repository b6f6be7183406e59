#include "core/shell/toolbar.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace tabrova {

Toolbar::Toolbar(QWidget* parent) : QWidget(parent) {
    setObjectName("Toolbar1");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 1, 4, 1);
    row->setSpacing(1);
    addButton("new", style()->standardIcon(QStyle::SP_FileIcon), tr("New (Ctrl+N)"));
    addButton("open", style()->standardIcon(QStyle::SP_DirOpenIcon), tr("Open (Ctrl+O)"));
    addButton("save", style()->standardIcon(QStyle::SP_DialogSaveButton), tr("Save (Ctrl+S)"));
    addButton("playall", style()->standardIcon(QStyle::SP_MediaPlay), tr("Play (F7)"));
    addButton("playfromhere", style()->standardIcon(QStyle::SP_MediaSkipForward), tr("Play From Here (F8)"));
    addButton("stop", style()->standardIcon(QStyle::SP_MediaStop), tr("Stop (F9)"));
    row->addStretch();
}

void Toolbar::addButton(const QString& word, const QIcon& icon, const QString& hint) {
    auto* button = new QToolButton(this);
    button->setObjectName("Toolbar1(" + word + ")");
    button->setIcon(icon);
    button->setIconSize({16, 16});
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(22, 22);
    layout()->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, word] {
        pressed(word);
        update();
    });
}

void Toolbar::setAllButStopEnabled(bool enabled) {
    for (QToolButton* button : findChildren<QToolButton*>())
        if (button->objectName() != "Toolbar1(stop)") button->setEnabled(enabled);
}

void Toolbar::UpdateTechniqueButtons(bool) {}

} // namespace tabrova
