#include "core/shell/frmAbout.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tabrova {

frmAbout::frmAbout(Services& services, QWidget* parent) : QDialog(parent), services_(services) {
    setObjectName("frmAbout");
    setWindowTitle("About Tabrova");
    auto* title = new QLabel("Tabrova", this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    auto* version = new QLabel("Version 3.0", this);
    version->setObjectName("lblVersion");
    auto* credits = new QLabel("A workbench for guitarists: tablature, notation and sound.\n"
                               "Written by the Tabrova developers, who play guitar too.",
                               this);
    credits->setObjectName("lblCredits");
    auto* sequencer = new QLabel("<a href=\"author\">MIDI sequencer by the Tabrova developers</a>", this);
    sequencer->setObjectName("lblSequencer");
    sequencer->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(sequencer, &QLabel::linkActivated, this, [this] {
        services_.addresses.open(
            services_.settings.GetSetting("Installation", "AuthorPage", "https://tabrova.invalid/author"));
    });
    auto* cmdSysInfo = new QPushButton("&System Info...", this);
    cmdSysInfo->setObjectName("cmdSysInfo");
    cmdSysInfo->setAutoDefault(false);
    auto* cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
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
}

void frmAbout::startSystemInformationTool() {
    if (startSystemInformation()) return;
    services_.boxes.ask({windowTitle(), "System Information Is Unavailable At This Time", BoxIcon::None});
}

} // namespace tabrova
