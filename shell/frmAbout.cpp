#include "shell/frmAbout.h"

#include "forms/captions.h"
#include "forms/named.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tabrova {

frmAbout::frmAbout(Services& services, QWidget* parent) : QDialog(parent), services_(services) {
    setObjectName("frmAbout");
    auto* title = new QLabel("Tabrova", this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    auto* version = new QLabel("Version 3.0", this);
    version->setObjectName("lblVersion");
    auto* credits = named(new QLabel(this), "lblCredits");
    credits->setWordWrap(true);
    credits->setMinimumWidth(340);
    auto* sequencer = named(new QLabel(this), "lblSequencer");
    sequencer->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(sequencer, &QLabel::linkActivated, this, [this] {
        services_.addresses.open(
            services_.settings.GetSetting("Installation", "AuthorPage", "https://tabrova.invalid/author"));
    });
    auto* cmdSysInfo = named(new QPushButton(this), "cmdSysInfo");
    cmdSysInfo->setAutoDefault(false);
    auto* cmdOK = named(new QPushButton(this), "cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, [this] { startSystemInformationTool(); });

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setVerticalSpacing(10);
    grid->addWidget(title, 0, 0, 1, 3);
    grid->addWidget(version, 1, 0, 1, 3);
    grid->addWidget(credits, 2, 0, 1, 3);
    grid->addWidget(sequencer, 3, 0, 1, 3);
    grid->setRowMinimumHeight(4, 12);
    grid->addWidget(cmdSysInfo, 5, 1);
    grid->addWidget(cmdOK, 5, 2);
    grid->setColumnStretch(0, 1);
    cmdOK->setFocus();
    loadLanguage(*this, services_.programFolder, [sequencer](std::string_view, const QString& text) {
        sequencer->setText("<a href=\"author\">" + text.toHtmlEscaped() + "</a>");
    });
}

void frmAbout::startSystemInformationTool() {
    if (services_.systemInformation.start()) return;
    services_.boxes.ask({windowTitle(), "System Information Is Unavailable At This Time", BoxIcon::None});
}

} // namespace tabrova
