#include "organisers/file_properties/frmFileProperties.h"

#include "forms/captions.h"
#include "forms/code_page_text.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "organisers/file_properties/notes_box.h"
#include "organisers/file_properties/notes_text.h"
#include "workbench/place_line.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <algorithm>

namespace tabrova {

namespace {

constexpr int SlowestSpeed = 20; // columns a minute
constexpr int FastestSpeed = 2000;
constexpr int LargeSpeedStep = 5;
constexpr int LongestName = 30; // characters

// The document's line ends are CR LF.
QString textOfNotes(std::string_view notes) { return fromCodePage(notes).replace("\r\n", "\n"); }

std::string bytesOfNotes(const QString& text) { return toCodePage(QString(text).replace("\n", "\r\n")); }

// A name that a file brought along is not cut.
void showName(QLineEdit& box, const QString& name) {
    box.setMaxLength(static_cast<int>(std::max<qsizetype>(LongestName, name.size())));
    box.setText(name);
    box.setCursorPosition(0);
}

QString quartersText(int columnsAMinute) {
    return QStringLiteral("\u2669 = ") + quarterNotes(columnsAMinute);
}

} // namespace

frmFileProperties::frmFileProperties(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmFileProperties", context, parent) {
    setWindowModality(Qt::WindowModal);
    const auto foreignHint = [this] { return QString::fromStdString(context_.words.foreignCharacter); };
    // In the order of the Tab key.
    txtTitle_ = named(new QLineEdit(this), "txtTitle");
    txtAuthor_ = named(new QLineEdit(this), "txtAuthor");
    sldSpeed_ = named(new QSlider(Qt::Horizontal, this), "sldSpeed");
    nameAfter(sldSpeed_, "Label3");
    sldSpeed_->setRange(SlowestSpeed, FastestSpeed);
    sldSpeed_->setSingleStep(1);
    sldSpeed_->setPageStep(LargeSpeedStep);
    spnSpeed_ = named(new QSpinBox(this), "spnSpeed");
    spnSpeed_->setRange(SlowestSpeed, FastestSpeed);
    spnSpeed_->setKeyboardTracking(false);
    chkSpeedBoost_ = named(new QCheckBox(this), "chkSpeedBoost");
    txtNotes_ = new NotesBox(this);
    txtNotes_->hint = foreignHint;
    chkReverb_ = named(new QCheckBox(this), "chkReverb");
    Command1_ = named(new QPushButton(this), "Command1");
    Command1_->setDefault(true);
    for (QLineEdit* box : {txtTitle_, txtAuthor_})
        restrictToCodePage(*box, foreignHint);
    build();
    setFirstFocus(sldSpeed_);
    connect(sldSpeed_, &QSlider::valueChanged, spnSpeed_, &QSpinBox::setValue);
    connect(spnSpeed_, &QSpinBox::valueChanged, sldSpeed_, &QSlider::setValue);
    connect(spnSpeed_, &QSpinBox::valueChanged, this, [this] { showQuarters(); });
    connect(chkSpeedBoost_, &QCheckBox::toggled, this, [this](bool checked) {
        context_.bench.player.speedBoost = checked;
        showQuarters();
    });
    showQuarters();
    connect(Command1_, &QPushButton::clicked, this, [this] { close(); });
}

void frmFileProperties::build() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 14);
    grid->setVerticalSpacing(8);
    grid->addWidget(new Logo(this), 0, 0, 1, 5);
    grid->addWidget(labelOf(txtTitle_, "Label1", this), 1, 0);
    grid->addWidget(txtTitle_, 1, 1, 1, 4);
    grid->addWidget(labelOf(txtAuthor_, "Label2", this), 2, 0);
    grid->addWidget(txtAuthor_, 2, 1, 1, 4);
    grid->addWidget(labelOf(spnSpeed_, "Label3", this), 3, 0);
    grid->addWidget(sldSpeed_, 3, 1);
    grid->addWidget(spnSpeed_, 3, 2);
    grid->addWidget(named(new QLabel(this), "Label4"), 3, 3);
    lblQuarters_ = named(new QLabel(this), "lblQuarters");
    lblQuarters_->setMinimumWidth(fontMetrics().horizontalAdvance(quartersText(2 * FastestSpeed)));
    grid->addWidget(lblQuarters_, 3, 4);
    grid->addWidget(chkSpeedBoost_, 4, 1, 1, 4);
    grid->addWidget(labelOf(txtNotes_, "Label5", this), 5, 0, Qt::AlignTop);
    grid->addWidget(txtNotes_, 5, 1, 1, 4);
    grid->addWidget(chkReverb_, 6, 1, 1, 4);
    grid->setRowMinimumHeight(7, 6);
    grid->addWidget(Command1_, 8, 0, 1, 5, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    grid->setHorizontalSpacing(10);
    sldSpeed_->setMinimumWidth(150);
}

// As it is played: twice as fast with the boost.
void frmFileProperties::showQuarters() {
    lblQuarters_->setText(quartersText(spnSpeed_->value() * (chkSpeedBoost_->isChecked() ? 2 : 1)));
}

void frmFileProperties::Form_Load() {
    LoadLanguage();
    const DocumentProperties properties = context_.commands.properties.properties();
    showName(*txtTitle_, shownName(properties.Title));
    showName(*txtAuthor_, shownName(properties.Author));
    sldSpeed_->setValue(properties.Tempo);
    spnSpeed_->setValue(sldSpeed_->value());
    chkSpeedBoost_->setChecked(properties.DoubleTime);
    context_.bench.player.speedBoost = properties.DoubleTime;
    const std::string_view shown = shownNotes(properties.Notes);
    notesRest_ = properties.Notes.substr(shown.size());
    txtNotes_->showNotes(textOfNotes(shown));
    chkReverb_->setChecked(properties.PreventReverberations);
    title_ = txtTitle_->text();
    author_ = txtAuthor_->text();
    notes_ = txtNotes_->toPlainText();
    resize(sizeHint().expandedTo({430, 380}));
}

void frmFileProperties::Form_Opened(const ToolOpener::Opening&) { LoadLanguage(); }

void frmFileProperties::Form_Unload() {
    DocumentProperties properties = context_.commands.properties.properties();
    if (txtTitle_->text() != title_) properties.Title = toCodePage(txtTitle_->text());
    if (txtAuthor_->text() != author_) properties.Author = toCodePage(txtAuthor_->text());
    properties.Tempo = static_cast<std::int16_t>(sldSpeed_->value());
    properties.DoubleTime = chkSpeedBoost_->isChecked();
    if (txtNotes_->toPlainText() != notes_)
        properties.Notes = bytesOfNotes(txtNotes_->toPlainText()) + notesRest_;
    properties.PreventReverberations = chkReverb_->isChecked();
    context_.commands.properties.setProperties(properties);
}

void frmFileProperties::done(int result) {
    ToolWindow::done(result);
    editor().refreshdrawing();
}

} // namespace tabrova
