#include "shell/properties/frmFileProperties.h"

#include "forms/captions.h"
#include "forms/code_page_text.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "shell/properties/notes_box.h"
#include "shell/properties/notes_text.h"

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
QString textOfNotes(std::string_view notes) { return fromCodePage(std::string(notes)).replace("\r\n", "\n"); }

std::string bytesOfNotes(const QString& text) { return toCodePage(QString(text).replace("\n", "\r\n")); }

// A name that a file brought along is not cut.
void showName(QLineEdit& box, const QString& name) {
    box.setMaxLength(static_cast<int>(std::max<qsizetype>(LongestName, name.size())));
    box.setText(name);
    box.setCursorPosition(0);
}

} // namespace

frmFileProperties::frmFileProperties(PropertiesHost& host, const std::filesystem::path& programFolder,
                                     QWidget* parent)
    : QDialog(parent), host_(host), programFolder_(programFolder) {
    setObjectName("frmFileProperties");
    setWindowModality(Qt::WindowModal);
    const auto foreignHint = [this] { return QString::fromStdString(host_.words().foreignCharacter); };
    // In the order of the Tab key.
    txtTitle_ = named(new QLineEdit(this), "txtTitle");
    txtAuthor_ = named(new QLineEdit(this), "txtAuthor");
    sldSpeed_ = named(new QSlider(Qt::Horizontal, this), "sldSpeed");
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
    connect(sldSpeed_, &QSlider::valueChanged, spnSpeed_, &QSpinBox::setValue);
    connect(spnSpeed_, &QSpinBox::valueChanged, sldSpeed_, &QSlider::setValue);
    connect(Command1_, &QPushButton::clicked, this, [this] { close(); });
}

void frmFileProperties::build() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 14);
    grid->setVerticalSpacing(8);
    grid->addWidget(new Logo(this), 0, 0, 1, 4);
    grid->addWidget(labelOf(txtTitle_, "Label1", this), 1, 0);
    grid->addWidget(txtTitle_, 1, 1, 1, 3);
    grid->addWidget(labelOf(txtAuthor_, "Label2", this), 2, 0);
    grid->addWidget(txtAuthor_, 2, 1, 1, 3);
    grid->addWidget(labelOf(spnSpeed_, "Label3", this), 3, 0);
    grid->addWidget(sldSpeed_, 3, 1);
    grid->addWidget(spnSpeed_, 3, 2);
    grid->addWidget(named(new QLabel(this), "Label4"), 3, 3);
    grid->addWidget(chkSpeedBoost_, 4, 1, 1, 3);
    grid->addWidget(labelOf(txtNotes_, "Label5", this), 5, 0, Qt::AlignTop);
    grid->addWidget(txtNotes_, 5, 1, 1, 3);
    grid->addWidget(chkReverb_, 6, 1, 1, 3);
    grid->setRowMinimumHeight(7, 6);
    grid->addWidget(Command1_, 8, 0, 1, 4, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    grid->setHorizontalSpacing(10);
    sldSpeed_->setMinimumWidth(150);
}

void frmFileProperties::Form_Load() {
    LoadLanguage();
    const Document& document = host_.document();
    showName(*txtTitle_, shownName(document.Title));
    showName(*txtAuthor_, shownName(document.Author));
    sldSpeed_->setValue(document.Tempo);
    spnSpeed_->setValue(sldSpeed_->value());
    chkSpeedBoost_->setChecked(document.DoubleTime != False16);
    const std::string_view shown = shownNotes(document.Notes);
    notesRest_ = document.Notes.substr(shown.size());
    txtNotes_->showNotes(textOfNotes(shown));
    chkReverb_->setChecked(document.PreventReverberations != 0);
    title_ = txtTitle_->text();
    author_ = txtAuthor_->text();
    notes_ = txtNotes_->toPlainText();
    resize(sizeHint().expandedTo({430, 380}));
}

void frmFileProperties::LoadLanguage() { loadLanguage(*this, programFolder_); }

void frmFileProperties::Form_Unload() {
    Document& document = host_.document();
    if (txtTitle_->text() != title_) document.Title = toCodePage(txtTitle_->text());
    if (txtAuthor_->text() != author_) document.Author = toCodePage(txtAuthor_->text());
    document.Tempo = static_cast<std::int16_t>(sldSpeed_->value());
    document.DoubleTime = boolean16(chkSpeedBoost_->isChecked());
    if (txtNotes_->toPlainText() != notes_)
        document.Notes = bytesOfNotes(txtNotes_->toPlainText()) + notesRest_;
    document.PreventReverberations = chkReverb_->isChecked() ? 1 : 0;
}

bool frmFileProperties::speedBoost() const { return chkSpeedBoost_->isChecked(); }

void frmFileProperties::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    sldSpeed_->setFocus();
}

void frmFileProperties::done(int result) {
    QDialog::done(result);
    host_.fileProperties_Closed();
}

} // namespace tabrova
