#include "shell/frmMain.h"

#include "forms/captions.h"
#include "forms/plain_tool_tips.h"
#include "shell/dropped_document.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QLayout>
#include <QMimeData>

#include <utility>

namespace tabrova {

frmMain::frmMain(Services& services)
    : services_(services), bench_(services, this), menu_(*menuBar()),
      clock_(services.timerService, services.timers, this, [this] { commands_.playback.HiTime1_Timer(); }),
      tools_(context_, *this),
      commands_(bench_, tools_, clock_, menu_), context_{bench_, services_, bench_.words, commands_, tools_},
      panels_(context_, menu_, table_, *this), fileLists_(context_, menu_), program_(context_, menu_) {
    setObjectName("frmMain");
    setWindowTitle("Tabrova - untitled.tr3");
    showBuiltInCaptions(*this);
    connectMenus();
    setAcceptDrops(true);
    clientArea()->installEventFilter(this);
    new PlainToolTips(this);
}

// No window may outlive what it works on.
frmMain::~frmMain() { tools_.deleteAll(); }

void frmMain::connectMenus() {
    commands_.registerRows(table_);
    tools_.registerRows(table_);
    table_.item("mnuExit", [this] { close(); });
    for (const CommandTable::ItemRow& row : table_.items())
        menu_.connectItem(QString::fromStdString(row.item), row.run);
    menu_.setChecked("mnuStandard", true);
    for (std::size_t step = 0; step < ZoomSteps.size(); ++step)
        menu_.action("mnuZoom(" + QString::number(step) + ")")
            ->setText(QString::number(ZoomSteps[step]) + " %");
}

void frmMain::Form_Load(const QString& commandLine, Splash splash) {
    panels_.takeSurroundings();
    fileLists_.show();
    program_.Form_Load(commandLine, splash);
}

// Twice, since the menu bar's height follows from the width.
void frmMain::resizeClient(int width, int height) {
    for (int pass = 0; pass < 2; ++pass) {
        layout()->activate();
        resize(size() + QSize(width, height) - clientArea()->size());
    }
    layout()->activate();
}

void frmMain::endInOrder() {
    if (const auto told = std::exchange(ending, nullptr)) told();
    program_.endInOrder();
}

void frmMain::ApplyLanguagePatch(const QString& name) {
    if (const auto caption = commands_.language.ApplyLanguagePatch(name))
        menu_.action("mnuFile")->setText(*caption);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!commands_.documents.confirmLeaving()) return event->ignore();
    endInOrder();
    event->accept();
    QCoreApplication::exit(0);
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) panels_.takeSurroundings();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (menu_.isEnabled("mnuFile") && !droppedDocument(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

// Whoever dropped it goes on before the question about the document comes.
void frmMain::dropEvent(QDropEvent* event) {
    const QString file = droppedDocument(*event->mimeData());
    if (file.isEmpty() || !menu_.isEnabled("mnuFile")) return;
    event->acceptProposedAction();
    activateWindow();
    QMetaObject::invokeMethod(
        this,
        [this, file] {
            if (menu_.isEnabled("mnuFile")) commands_.documents.openFile(file);
        },
        Qt::QueuedConnection);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == clientArea() && event->type() == QEvent::Resize) {
        panels_.takeSurroundings();
        commands_.views.Form_Resize();
    }
    if (watched == clientArea() && event->type() == QEvent::Paint) panels_.paintRuler();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace tabrova
