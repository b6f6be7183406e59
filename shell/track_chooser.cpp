#include "shell/track_chooser.h"

#include "forms/code_page_text.h"
#include "forms/named.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace tabrova {

TrackChooser::TrackChooser(QWidget* parent) : QFrame(parent) {
    setObjectName("picTrackChooser");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    TrackNames_ = new ListBox("TrackNames", this, ListBox::KeyClick::AtEnter);
    TrackNames_->Click = [this] { chosen(TrackNames_->chosenRow()); };
    AddTrack_ = named(new QPushButton(this), "AddTrack");
    Command1_ = named(new QPushButton(this), "Command1");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(AddTrack_);
    buttons->addStretch();
    buttons->addWidget(Command1_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 4, 6, 6);
    column->setSpacing(4);
    column->addWidget(labelOf(TrackNames_, "lblToolTip2(2)", this));
    column->addWidget(TrackNames_, 1);
    column->addLayout(buttons);
    connect(AddTrack_, &QPushButton::clicked, this, [this] { addTrack(); });
    connect(Command1_, &QPushButton::clicked, this, [this] { closed(); });
    hide();
}

void TrackChooser::showTracks(const Document& document) {
    const int count = static_cast<int>(document.TrackNames.size());
    while (TrackNames_->count() > count)
        delete TrackNames_->takeItem(TrackNames_->count() - 1);
    for (int row = 0; row < count; ++row) {
        const QString name = shownName(document.TrackNames[static_cast<std::size_t>(row)]);
        if (row == TrackNames_->count()) {
            TrackNames_->addItem(name);
        } else if (TrackNames_->item(row)->text() != name) {
            TrackNames_->item(row)->setText(name);
        }
    }
}

void TrackChooser::showSelected(int row) {
    TrackNames_->setCurrentRow(row >= 0 && row < TrackNames_->count() ? row : -1);
    if (QListWidgetItem* item = TrackNames_->currentItem()) TrackNames_->scrollToItem(item);
}

void TrackChooser::open() {
    show();
    raise();
    TrackNames_->setFocus();
}

// Other keys end here: what lies below the list must not see them.
void TrackChooser::keyPressEvent(QKeyEvent* event) {
    const bool entered = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) return closed();
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (entered && button && !event->isAutoRepeat()) button->click();
}

bool TrackChooser::focusNextPrevChild(bool next) {
    if (!isVisible()) return QFrame::focusNextPrevChild(next);
    QWidget* const order[] = {TrackNames_, AddTrack_, Command1_};
    const auto focused = std::ranges::find(order, focusWidget());
    const std::ptrdiff_t count = std::ssize(order);
    const std::ptrdiff_t at = focused == std::end(order) ? 0 : focused - std::begin(order);
    order[(at + (next ? 1 : count - 1)) % count]->setFocus(next ? Qt::TabFocusReason
                                                                : Qt::BacktabFocusReason);
    return true;
}

} // namespace tabrova
