// The main window's panels and menus: how they are made, placed and connected, and what the editor asks of
// them.
#include "core/document/document_operations.h"
#include "editing/key_codes.h"
#include "forms/box_title.h"
#include "forms/code_page_text.h"
#include "forms/text_edges.h"
#include "shell/frmMain.h"
#include "shell/key_mapping.h"
#include "shell/toolbar_commands.h"

#include <QPainter>
#include <QPushButton>
#include <QWindow>

namespace tabrova {

namespace {

QRect qRect(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }

} // namespace

void frmMain::buildPanels() {
    client_ = new QWidget(this);
    client_->setObjectName("clientArea");
    setCentralWidget(client_);
    toolbar_ = new Toolbar(client_);
    strip_ = new SurfaceWidget("picStandardNotation", view_.picStandardNotation, client_);
    page_ = new PageWidget(view_.picDocument, editor_.page(), client_);
    VScroll1_ = new QScrollBar(Qt::Vertical, client_);
    VScroll1_->setObjectName("VScroll1");
    VScroll1_->setRange(1, 1);
    VScroll1_->setFocusPolicy(Qt::NoFocus);
    fretboard_ = new FretboardWidget(view_.picFretboard, client_);
    statusBar_ = new StatusBar(client_);
    lbldebug_ = new QLabel(client_);
    lbldebug_->setObjectName("lbldebug");
    lbldebug_->setTextFormat(Qt::PlainText);
    lbldebug_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    noteSelector_ = new NoteSelector(page_);
    bendPanel_ = new BendPanel(client_);
    repeatPanel_ = new RepeatPanel(client_);
    trackChooser_ = new TrackChooser(client_);
    auto* title = new QLabel("Track: Untitled Track", strip_);
    title->setObjectName("lblNotationTitle");
    // The strip is white paper in every theme.
    title->setStyleSheet("color: #555555; background: transparent");
    title->move(16, 4);
    title->adjustSize();
    editor_.page().noteLineColor = palette().color(QPalette::Highlight).rgb();
    for (QWidget* hidden :
         {static_cast<QWidget*>(lbldebug_), static_cast<QWidget*>(fretboard_), static_cast<QWidget*>(strip_)})
        hidden->hide();
}

void frmMain::connectPanels() {
    connect(VScroll1_, &QScrollBar::valueChanged, this,
            [this](int value) { editor_.VScroll1_Change(value); });
    strip_->paintObjects = [this](QPainter& painter) {
        const PageObjects& objects = editor_.page();
        painter.fillRect(objects.NoteLine.x1, 0, objects.borderWidth, strip_->height(),
                         QColor(objects.noteLineColor));
    };
    noteSelector_->chosen = [this](const Rect& highlight) {
        editor_.chooseFromPalette(highlight);
        focusPage();
    };
    noteSelector_->closed = [this] { closePanel(*noteSelector_); };
    bendPanel_->chosen = [this](int code) { closeBendPanel(code); };
    repeatPanel_->chosen = [this](int value) { closeRepeatPanel(value); };
    toolbar_->pressed = [this](const QString& word) { runToolbarWord(word); };
    toolbar_->available = [this](const QString& word) {
        const ToolbarCommand command = toolbarCommand(word);
        return command.kind != ToolbarCommand::Kind::MenuItem || menu_->action(command.menuItem)->isEnabled();
    };
}

void frmMain::connectPage() {
    PageWidget::Handlers handlers;
    handlers.key = [this](int keyCode, int shift) { editor_.picDocument_KeyDown(keyCode, shift); };
    handlers.mouseDown = [this](int button, int x, int y) {
        editor_.picDocument_MouseDown(mouseButtonOf(button), x, y);
    };
    handlers.doubleClick = [this] {
        if (!document_.isGuitarTrack(document_.CurrentTrack)) showFrmPercussion();
    };
    handlers.scrollBy = [this](int staves) { editor_.VScroll1_Change(editor_.scroll().value + staves); };
    handlers.scrollPageUp = [this] {
        editor_.VScroll1_Change(editor_.scroll().value - document_.VisibleStaves);
    };
    handlers.scrollPageDown = [this] {
        editor_.VScroll1_Change(editor_.scroll().value + document_.VisibleStaves);
    };
    handlers.escape = [this] {
        noteSelector_->hide();
        editor_.picDocument_KeyDown(key::RedrawOnly, 0);
    };
    page_->setHandlers(std::move(handlers));
}

void frmMain::placePanels() {
    toolbar_->setGeometry(0, 0, client_->width(), StripTop);
    page_->setGeometry(qRect(layout_.picDocument));
    strip_->setGeometry(qRect(layout_.picStandardNotation));
    strip_->setVisible(layout_.stripShown);
    VScroll1_->setGeometry(qRect(layout_.VScroll1));
    fretboard_->setGeometry(qRect(layout_.picFretboard));
    fretboard_->setVisible(layout_.fretboardShown);
    statusBar_->setGeometry(qRect(layout_.StatusBar1));
    lbldebug_->setGeometry(qRect(layout_.lbldebug));
    trackChooser_->setGeometry(qRect(layout_.picTrackChooser));
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == client_ && event->type() == QEvent::Resize) Form_Resize();
    if (watched == client_ && event->type() == QEvent::Paint) paintRuler();
    return QMainWindow::eventFilter(watched, event);
}

// The ruler stands in the window itself: between strip and page, or above the page when the strip is hidden.
void frmMain::paintRuler() {
    QPainter painter(client_);
    const auto draw = [&](int top) {
        constexpr int TickHeight = 6;
        for (const RulerTick& tick : view_.ruler()) {
            const QColor color = tick.onBeat ? QColor(Qt::black) : palette().color(QPalette::Dark);
            painter.fillRect(tick.x, top, 1, TickHeight, color);
            painter.fillRect(tick.whiteX, top, 1, TickHeight, Qt::white);
        }
    };
    draw(194);
    if (!layout_.stripShown) draw(24);
}

void frmMain::refreshPage() { page_->update(); }

void frmMain::refreshStrip() {
    strip_->update();
    client_->update(0, StripTop, client_->width(), PageTopWithStrip - StripTop);
}

void frmMain::refreshFretboard() {
    if (layout_.fretboardShown) fretboard_->update();
    // The cursor's lines follow every move.
    page_->update();
    if (layout_.stripShown) strip_->update();
}

void frmMain::mirrorScrollBar(int maximum, int value) {
    const QSignalBlocker quiet(VScroll1_);
    VScroll1_->setMaximum(maximum);
    VScroll1_->setPageStep(std::max<int>(document_.VisibleStaves, 1));
    VScroll1_->setValue(value);
}

void frmMain::setTitle(const std::string& title) { setTitleOf(*this, shownName(title)); }

void frmMain::setStatistics(const std::string& text) { lbldebug_->setText(QString::fromStdString(text)); }

void frmMain::setTrackPanel(const std::string& text) {
    statusBar_->setTrackPanel(QString::fromStdString(text));
}

void frmMain::UpdateTechniqueButtons(bool guitarTrack) {
    // During playback all of them stay off.
    if (!playing()) toolbar_->UpdateTechniqueButtons(guitarTrack);
}

// The page is held closed by playback and by an open panel.
void frmMain::enablePage() {
    page_->setEnabled(!playing() && bendPanel_->isHidden() && repeatPanel_->isHidden());
}

Rect frmMain::pageGeometry() const { return layout_.picDocument; }

Rect frmMain::panelGeometry(Panel panel) const {
    const QWidget* widget = panel == Panel::Bend ? static_cast<QWidget*>(bendPanel_) : repeatPanel_;
    return {widget->x(), widget->y(), widget->width(), widget->height()};
}

void frmMain::openPanel(Panel panel, const Rect& place) {
    QWidget* widget = panel == Panel::Bend ? static_cast<QWidget*>(bendPanel_) : repeatPanel_;
    // One panel at a time: it has no way out but Enter.
    bendPanel_->hide();
    repeatPanel_->hide();
    widget->move(place.left, place.top);
    widget->show();
    widget->raise();
    page_->setEnabled(false);
    QWidget* keyboard = panel == Panel::Bend ? static_cast<QWidget*>(bendPanel_) : &repeatPanel_->scroller();
    keyboard->setFocus();
}

Rect frmMain::noteSelectorGeometry() const {
    return {noteSelector_->x(), noteSelector_->y(), noteSelector_->width(), noteSelector_->height()};
}

void frmMain::openNoteSelector(const Rect& place) { noteSelector_->openAt(place); }

void frmMain::focusPage() { page_->setFocus(); }

// A panel that closes by its button sends a key that does nothing but redraw.
void frmMain::closePanel(QWidget& panel) {
    panel.hide();
    editor_.picDocument_KeyDown(key::RedrawOnly, 0);
}

void frmMain::closeBendPanel(int code) {
    if (playing()) return;
    bendPanel_->hide();
    enablePage();
    editor_.StoreTechnique(code);
    focusPage();
    editor_.refreshdrawing();
}

void frmMain::closeRepeatPanel(int value) {
    if (playing()) return;
    repeatPanel_->hide();
    enablePage();
    editor_.DrawAndStoreNote(code::ClosedRepeatBase + value);
    focusPage();
    refreshPage();
}

void frmMain::restartSoundStopper(std::optional<int> milliseconds) {
    tmrsndStopper_->setEnabled(false);
    if (milliseconds) tmrsndStopper_->setInterval(*milliseconds);
    tmrsndStopper_->setEnabled(true);
}

bool frmMain::confirmClearingOnlyStaff() {
    const BoxAnswer answer = services_.boxes.ask({BoxTitle,
                                                  QString::fromStdString(words_.clearOnlyStaffQuestion),
                                                  BoxIcon::Information,
                                                  {BoxAnswer::Yes, BoxAnswer::No}});
    return answer == BoxAnswer::Yes;
}

void frmMain::setCursorColor(QRgb color) {
    PageObjects& objects = editor_.page();
    objects.color = color;
    objects.noteLineColor = color;
    editor_.refreshdrawing();
}

void frmMain::setCursorBorderWidth(int pixels) {
    editor_.page().borderWidth = pixels;
    page_->update();
    strip_->update();
}

bool frmMain::tabOneColor() const { return view_.picDocument.background() == WhitePaper; }

void frmMain::setTabOneColor(bool oneColor) {
    view_.picDocument.setBackground(oneColor ? WhitePaper : PaperColor);
    editor_.refreshdrawing();
}

void frmMain::showStatistics(bool shown) { lbldebug_->setVisible(shown); }

void frmMain::setDebugMode(bool on) {
    debugMode_ = on;
    editor_.refreshdrawing();
}

} // namespace tabrova
