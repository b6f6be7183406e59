#include "tools/scale_manager/new_scale_panel.h"

#include "forms/named.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace tabrova {

namespace {

constexpr char DefaultName[] = "(new scale)";
constexpr int LongestName = 20;
constexpr char NoNoteEntry[] = "-";
constexpr std::array StringLetters = {"E", "A", "D", "G", "B", "E"};
constexpr std::array SpokenStrings = {"Low E", "A", "D", "G", "B", "High E"};
constexpr int Gap = 12;

// What it shows is chosen whenever the box takes the focus or is clicked: the next key replaces it.
class SlotBox : public QComboBox {
  public:
    explicit SlotBox(QWidget* parent) : QComboBox(parent) {
        addItems({"0", "1", "2", "3", "4", "5", NoNoteEntry});
        setEditable(true);
        setInsertPolicy(NoInsert);
        setCompleter(nullptr);
        setMinimumContentsLength(1);
        lineEdit()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease)
            QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
        return QComboBox::eventFilter(watched, event);
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QComboBox::focusInEvent(event);
        lineEdit()->selectAll();
    }
};

} // namespace

NewScalePanel::NewScalePanel(QWidget* parent) : QWidget(parent) {
    Txt_flname_ = named(new QLineEdit(DefaultName, this), "Txt_flname");
    Txt_flname_->setMaxLength(LongestName);
    Command1_ = named(new QPushButton(this), "Command1");
    connect(Command1_, &QPushButton::clicked, this, [this] {
        if (save) save();
    });
    auto* hint = named(new QLabel(this), "Label2");
    hint->setWordWrap(true);
    auto* naming = new QVBoxLayout;
    naming->addWidget(hint);
    naming->addStretch(1);
    naming->addWidget(Txt_flname_);
    naming->addWidget(Command1_);
    auto* sides = new QHBoxLayout(this);
    sides->setContentsMargins(0, 0, 0, 0);
    sides->setSpacing(Gap);
    sides->addWidget(buildBoxes());
    sides->addLayout(naming, 1);
    ResetScaleEntry();
}

// The highest string on top, as in the tablature.
QWidget* NewScalePanel::buildBoxes() {
    auto* boxes = new QWidget(this);
    auto* grid = new QGridLayout(boxes);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    for (std::size_t string = 0; string < ScaleStrings; ++string) {
        const int row = static_cast<int>(ScaleStrings - 1 - string);
        grid->addWidget(new QLabel(StringLetters[string], boxes), row, 0);
        for (std::size_t slot = 0; slot < ScaleSlots; ++slot) {
            auto* box =
                named(new SlotBox(boxes), QString("%1(%2)").arg(ScaleStringTable[string].entries).arg(slot));
            box->setAccessibleName(QString("%1 %2").arg(SpokenStrings[string]).arg(slot + 1));
            grid->addWidget(box, row, static_cast<int>(slot) + 1);
            boxes_[string][slot] = box;
        }
    }
    return boxes;
}

ScaleEntries NewScalePanel::entries() const {
    ScaleEntries texts;
    for (std::size_t string = 0; string < ScaleStrings; ++string)
        for (std::size_t slot = 0; slot < ScaleSlots; ++slot)
            texts[string][slot] = boxes_[string][slot]->currentText().toStdString();
    return texts;
}

QString NewScalePanel::name() const { return Txt_flname_->text(); }

void NewScalePanel::ResetScaleEntry() {
    for (const auto& string : boxes_)
        for (QComboBox* box : string)
            box->setCurrentText(NoNoteEntry);
    Txt_flname_->setText(DefaultName);
}

} // namespace tabrova
