#include "tools/chord_manager/frmChordTypeCreator.h"

#include "forms/named.h"
#include "tools/chord_manager/frmChordWizard.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace tabrova {

namespace {

constexpr char DefaultName[] = "New Type";
constexpr int RowsOfBoxes = ChordIntervals / 2; // in two columns, each an octave or so

} // namespace

frmChordTypeCreator::frmChordTypeCreator(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmChordTypeCreator", context, parent) {
    setModal(true);
    txtName_ = named(new QLineEdit(DefaultName, this), "txtName");
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(24);
    for (int interval = 0; interval < static_cast<int>(ChordIntervals); ++interval) {
        auto* box = named(new QCheckBox(this), QString("cCheck(%1)").arg(interval));
        boxes->addWidget(box, interval % RowsOfBoxes, interval / RowsOfBoxes);
        cCheck_[static_cast<std::size_t>(interval)] = box;
    }
    Command1_ = named(new QPushButton(this), "Command1");
    Command2_ = named(new QPushButton(this), "Command2");
    Command1_->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(Command1_);
    buttons->addWidget(Command2_);
    auto* column = new QVBoxLayout(this);
    column->addWidget(labelOf(txtName_, "Label1", this));
    column->addWidget(txtName_);
    column->addSpacing(6);
    column->addLayout(boxes);
    column->addSpacing(6);
    column->addStretch(1);
    column->addLayout(buttons);
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { close(); });
}

void frmChordTypeCreator::Form_Opened(const ToolOpener::Opening& opening) {
    if (opening.above) opener_ = opening.above->window();
}

// Neither an empty name nor one that is there already is looked for.
void frmChordTypeCreator::Command1_Click() {
    if (auto* wizard = dynamic_cast<frmChordWizard*>(opener_.data()))
        wizard->SaveChordType(txtName_->text(), pattern());
    close();
}

std::string frmChordTypeCreator::pattern() const {
    std::string pattern;
    for (const QCheckBox* box : cCheck_) {
        if (box->checkState() == Qt::Checked) pattern += '1';
        if (box->checkState() == Qt::Unchecked) pattern += '0';
    }
    return pattern;
}

} // namespace tabrova
