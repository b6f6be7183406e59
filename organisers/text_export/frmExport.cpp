#include "organisers/text_export/frmExport.h"

#include "core/files/replaced_file.h"
#include "forms/code_page_box.h"
#include "forms/code_page_text.h"
#include "forms/named.h"
#include "organisers/text_export/export_text.h"
#include "platform/box_title.h"
#include "platform/fixed_font.h"
#include "platform/paths.h"
#include "workbench/proposed_name.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tabrova {

namespace {

constexpr char Filter[] = "Text Files|*.txt";
constexpr char Extension[] = "txt";
constexpr char FontFamily[] = "Courier New";
constexpr int PrintedSize = 8; // points
// The text's offsets on paper, in millimetres.
constexpr double PrintedLeft = 17.0;
constexpr double PrintedTop = 14.0;
constexpr int ShownColumns = 100; // characters; sixteen columns of the tablature take 96
constexpr int ShownLines = 28;
// What stands round the box, in pixels.
constexpr int Sides = 44;
constexpr int AboveAndBelow = 112;

} // namespace

frmExport::frmExport(const ToolContext& context, QWidget* parent) : ToolWindow("frmExport", context, parent) {
    setWindowModality(Qt::WindowModal);
    txtfile_ = new CodePageBox("txtfile", this);
    txtfile_->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtfile_->setFont(fixedFont(FontFamily, font().pointSize()));
    txtfile_->hint = [this] { return QString::fromStdString(context_.words.foreignCharacter); };
    Label1_ = labelOf(txtfile_, "Label1", this);
    Label1_->setWordWrap(true);
    txtNewLine_ = named(new QLineEdit(this), "txtNewLine");
    txtNewLine_->setText(" \r\n");
    txtNewLine_->hide();
    Command1_ = named(new QPushButton(this), "Command1");
    Command3_ = named(new QPushButton(this), "Command3");
    Command2_ = named(new QPushButton(this), "Command2");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {Command1_, Command3_, Command2_})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 14);
    column->setSpacing(10);
    column->addWidget(Label1_);
    column->addWidget(txtfile_, 1);
    column->addLayout(buttons);
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { close(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { Command3_Click(); });
    setFirstFocus(txtfile_);
}

void frmExport::Form_Load() {
    LoadLanguage();
    const auto file = services().programFolder / "temp.txt";
    txtfile_->setPlainText(boxText(context_.commands.exports.ExportToFile(file), txtNewLine_->text()));
    const QFontMetricsF metrics(txtfile_->font());
    const int bar = txtfile_->verticalScrollBar()->sizeHint().width();
    txtfile_->setMinimumSize(200, 120);
    resize(static_cast<int>(metrics.horizontalAdvance('0') * ShownColumns) + bar + Sides,
           static_cast<int>(metrics.lineSpacing() * ShownLines) + bar + AboveAndBelow);
}

void frmExport::Command1_Click() {
    const QString name = CommonDialog2_.isEmpty()
                             ? proposedName(context_.commands.documents.CommonDialog1.fileName, Extension)
                             : CommonDialog2_;
    const auto answer = services().files.choose({FileQuestion::Kind::Save, Filter, Extension, name});
    if (!answer) return;
    CommonDialog2_ = *answer;
    if (replaceFile(pathOf(CommonDialog2_), savedText(txtfile_->wholeText())) != Replaced::Whole) return;
    services().boxes.ask(
        {BoxTitle, "File " + CommonDialog2_ + " exported successfully.", BoxIcon::Information});
    close();
}

void frmExport::Command3_Click() {
    services().printer.print({shownName(document().Title), txtfile_->wholeText(), FontFamily, PrintedSize,
                              PrintedLeft, PrintedTop});
}

} // namespace tabrova
