#include "core/shell/track_chooser.h"

#include "forms/code_page_text.h"
#include "forms/named.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabrova {

TrackChooser::TrackChooser(QWidget* parent) : QFrame(parent) {
    setObjectName("picTrackChooser");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    TrackNames_ = new ListBox("TrackNames", this);
    TrackNames_->Click = [this] { chosen(TrackNames_->chosenRow()); };
    auto* AddTrack = named(new QPushButton(this), "AddTrack");
    auto* Command1 = named(new QPushButton(this), "Command1");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(AddTrack);
    buttons->addStretch();
    buttons->addWidget(Command1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 4, 6, 6);
    column->setSpacing(4);
    column->addWidget(labelOf(TrackNames_, "lblToolTip2(2)", this));
    column->addWidget(TrackNames_, 1);
    column->addLayout(buttons);
    connect(AddTrack, &QPushButton::clicked, this, [this] { addTrack(); });
    connect(Command1, &QPushButton::clicked, this, [this] { closed(); });
    hide();
}

void TrackChooser::showTracks(const Document& document) {
    const int count = static_cast<int>(document.TrackNames.size());
    while (TrackNames_->count() > count)
        delete TrackNames_->takeItem(TrackNames_->count() - 1);
    for (int row = 0; row < count; ++row) {
        const QString name = fromCodePage(document.TrackNames[static_cast<std::size_t>(row)]);
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

void TrackChooser::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return closed();
    QFrame::keyPressEvent(event);
}

} // namespace tabrova
