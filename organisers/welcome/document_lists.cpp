#include "organisers/welcome/document_lists.h"

#include "forms/named.h"
#include "workbench/examples.h"

#include <QHBoxLayout>
#include <QMouseEvent>

namespace tabrova {

namespace {

constexpr int Recent = 0;
constexpr int Examples = 1;
constexpr int Margin = 12;

} // namespace

DocumentLists::DocumentLists(const ToolContext& context, QWidget* parent) : QWidget(parent) {
    setObjectName("picDocuments");
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Margin, Margin / 2, Margin, Margin);
    row->setSpacing(Margin);
    lists_[Recent] = addList(Recent, "lstRecent", QString::fromStdString(context.words.recentDocuments));
    lists_[Examples] = addList(Examples, "lstExamples", QString::fromStdString(context.words.examples));
    for (const QString& file : context.commands.documents.recent.files())
        addRow(Recent, listedName(file), file);
    for (const ExampleDocument& example : exampleDocuments(context.services.programFolder))
        addRow(Examples, example.name, example.file);
    // An empty one leaves its room to the other.
    for (const ListBox* box : lists_)
        box->parentWidget()->setVisible(box->count() > 0);
}

ListBox* DocumentLists::addList(int list, const QString& name, const QString& title) {
    auto* half = new QWidget(this);
    auto* box = new ListBox(name, half, ListBox::KeyClick::AtEnter);
    box->setTextElideMode(Qt::ElideMiddle);
    box->setAccessibleName(title);
    auto* label = labelOf(box, "lbl" + name.mid(3), half);
    label->setTextFormat(Qt::PlainText);
    label->setText(title);
    auto* column = new QVBoxLayout(half);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(label);
    column->addWidget(box, 1);
    static_cast<QHBoxLayout*>(layout())->addWidget(half, 1);
    box->Click = [this, list, box] {
        const QString file = files_[static_cast<std::size_t>(list)].value(box->chosenRow());
        if (!file.isEmpty() && chosen) chosen(file);
    };
    return box;
}

void DocumentLists::addRow(int list, const QString& name, const QString& file) {
    const auto at = static_cast<std::size_t>(list);
    lists_[at]->addItem(name);
    lists_[at]->item(lists_[at]->count() - 1)->setToolTip(file);
    files_[at].append(file);
}

void DocumentLists::mousePressEvent(QMouseEvent* event) { event->accept(); }

} // namespace tabrova
