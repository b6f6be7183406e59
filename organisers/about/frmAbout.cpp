#include "organisers/about/frmAbout.h"

#include "forms/named.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tabrova {

namespace {

// The Tab key comes to the link at once, where the toolkit would mark nothing before the key comes again.
class LinkLabel : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QLabel::focusInEvent(event);
        const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        if (byTab) QLabel::focusNextPrevChild(true);
    }
};

} // namespace

frmAbout::frmAbout(const ToolContext& context, QWidget* parent) : ToolWindow("frmAbout", context, parent) {
    setWindowModality(Qt::WindowModal);
    sequencer_ = named(new LinkLabel(this), "lblSequencer");
    sequencer_->setTextFormat(Qt::RichText); // a link around the plain text
    sequencer_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    auto* cmdSysInfo = named(new QPushButton(this), "cmdSysInfo");
    auto* cmdOK = named(new QPushButton(this), "cmdOK");
    cmdOK->setDefault(true);
    setFirstFocus(cmdOK);
    connect(sequencer_, &QLabel::linkActivated, this, [this] { openAuthorsPage(); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, [this] { startSystemInformationTool(); });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setVerticalSpacing(10);
    addTexts(*grid);
    grid->addWidget(sequencer_, 3, 0, 1, 3);
    grid->setRowMinimumHeight(4, 12);
    grid->addWidget(cmdSysInfo, 5, 1);
    grid->addWidget(cmdOK, 5, 2);
    grid->setColumnStretch(0, 1);
}

void frmAbout::addTexts(QGridLayout& grid) {
    auto* title = new QLabel("Tabrova", this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    auto* credits = named(new QLabel(this), "lblCredits");
    credits->setWordWrap(true);
    credits->setMinimumWidth(340);
    grid.addWidget(title, 0, 0, 1, 3);
    grid.addWidget(named(new QLabel("Version 3.0", this), "lblVersion"), 1, 0, 1, 3);
    grid.addWidget(credits, 2, 0, 1, 3);
}

void frmAbout::takeMessage(std::string_view, const QString& text) {
    sequencer_->setText("<a href=\"author\">" + text.toHtmlEscaped() + "</a>");
}

void frmAbout::openAuthorsPage() {
    services().addresses.open(
        services().settings.GetSetting("Installation", "AuthorPage", "https://tabrova.invalid/author"));
}

void frmAbout::startSystemInformationTool() {
    if (services().systemInformation.start()) return;
    services().boxes.ask({windowTitle(), "System Information Is Unavailable At This Time", BoxIcon::None});
}

} // namespace tabrova
