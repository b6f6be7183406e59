#include "shell/main_panels.h"

#include "forms/captions.h"
#include "forms/named.h"
#include "organisers/options/frmOptions.h"
#include "shell/rects.h"

#include <QPainter>
#include <QtMath>

namespace tabrova {

namespace {

PanelSize panelSize(const QSize& size) { return {size.width(), size.height()}; }

} // namespace

MainPanels::MainPanels(const ToolContext& context, MainMenu& menu, const CommandTable& table,
                       QMainWindow& window)
    : context_(context), bench_(context.bench), editor_(context.bench.editor), menu_(menu), table_(table),
      window_(window) {
    build();
    pageTop_ = context.commands.views.layout().picDocument.top;
    connectPage();
    connectPanels();
    connectToolbar();
    takeSurroundings();
    bench_.acts.add(*this);
}

MainPanels::~MainPanels() {
    context_.services.synthesizer.onChange(this, nullptr);
    bench_.acts.remove(*this);
}

void MainPanels::build() {
    client_ = named(new QWidget(&window_), "clientArea");
    window_.setCentralWidget(client_);
    toolbar_ = new Toolbar(client_);
    strip_ = new SurfaceWidget("picStandardNotation", bench_.view.picStandardNotation, client_);
    page_ = new PageWidget(bench_.view.picDocument, editor_.page(), client_);
    VScroll1_ = named(new QScrollBar(Qt::Vertical, client_), "VScroll1");
    nameAfter(strip_, "mnuViewNotation");
    nameAfter(VScroll1_, "mnuStaff");
    VScroll1_->setRange(1, 1);
    VScroll1_->setFocusPolicy(Qt::NoFocus);
    fretboard_ = new FretboardWidget(bench_.view.picFretboard, client_);
    statusBar_ = new StatusBar(client_);
    lbldebug_ = named(new QLabel(client_), "lbldebug");
    lbldebug_->setTextFormat(Qt::PlainText);
    lbldebug_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    noteSelector_ = new NoteSelector(page_);
    bendPanel_ = new BendPanel(client_);
    repeatPanel_ = new RepeatPanel(client_);
    trackChooser_ = new TrackChooser(client_);
    stripTitle_ = named(new QLabel("Track: Untitled Track", strip_), "lblNotationTitle");
    // The strip is white paper in every theme, and its line ends below the words.
    stripTitle_->setStyleSheet("color: #555555; background: white");
    stopKeys_ = named(new QAction(&window_), "stopKeys");
    stopKeys_->setShortcuts({Qt::Key_Escape, Qt::Key_Space});
    stopKeys_->setAutoRepeat(false);
    stopKeys_->setEnabled(false);
    window_.addAction(stopKeys_);
    QObject::connect(stopKeys_, &QAction::triggered, client_,
                     [this] { menu_.action("mnuPlaybackStop")->trigger(); });
    editor_.setNoteLineColor(window_.palette().color(QPalette::Highlight).rgb());
    for (QWidget* hidden :
         {static_cast<QWidget*>(lbldebug_), static_cast<QWidget*>(fretboard_), static_cast<QWidget*>(strip_)})
        hidden->hide();
}

void MainPanels::connectPage() {
    page_->keyDown = [this](int keyCode, int shift) { editor_.picDocument_KeyDown(keyCode, shift); };
    page_->mouseDown = [this](MouseButton button, int x, int y) {
        editor_.picDocument_MouseDown(button, x, y);
    };
    // The list of drums, on a percussion track.
    page_->doubleClick = [this] {
        const Document& document = bench_.document;
        if (!document.isGuitarTrack(document.CurrentTrack)) context_.tools.open("frmPercussion");
    };
    page_->scrolled = [this](int staves) { editor_.VScroll1_Change(editor_.scroll().value + staves); };
    page_->wentTo = [this](const QString& item) { menu_.action(item)->trigger(); };
    page_->zoomed = [this](int steps) { context_.commands.views.stepZoom(steps); };
    page_->escaped = [this] { closePanel(*noteSelector_); };
    fretboard_->mouseDown = [this](MouseButton button, int x, int y) {
        editor_.picFretboard_MouseDown(button, x, y);
    };
    fretboard_->doubleClick = [this] { menu_.action("mnuChordManager")->trigger(); };
    strip_->objects = [this]() -> std::vector<FloatingRect> {
        const PageObjects& objects = editor_.page();
        return {{{objects.NoteLine.x1, 0, objects.borderWidth, StripHeight}, objects.noteLineColor}};
    };
}

void MainPanels::connectPanels() {
    QObject::connect(VScroll1_, &QScrollBar::valueChanged, client_,
                     [this](int value) { editor_.VScroll1_Change(value); });
    noteSelector_->chosen = [this](const Rect& highlight) { editor_.chooseFromPalette(highlight); };
    noteSelector_->closed = [this] { closePanel(*noteSelector_); };
    bendPanel_->chosen = [this](int code) {
        if (bench_.player.playing) return;
        bendPanel_->hide();
        enablePage();
        editor_.takeBend(code);
    };
    repeatPanel_->chosen = [this](int value) {
        if (bench_.player.playing) return;
        repeatPanel_->hide();
        enablePage();
        editor_.takeRepeat(value);
    };
    trackChooser_->chosen = [this](int row) { bench_.tracks.TrackNames_Click(row); };
    trackChooser_->addTrack = [this] { bench_.tracks.AddTrack(); };
    trackChooser_->closed = [this] {
        closePanel(*trackChooser_);
        page_->setFocus();
    };
    statusBar_->trackPanelClicked = [this] { bench_.tracks.mnuChoose(); };
    statusBar_->optionsPanelClicked = [this] {
        context_.tools.open("frmOptions", {nullptr, OptionsTab::Appearance});
    };
    // To where the sound is mended, or the speed is set.
    statusBar_->placePanelClicked = [this] {
        const SynthesizerState sound = context_.services.synthesizer.state();
        if (sound.running && !sound.trouble.isEmpty())
            return context_.tools.open("frmOptions", {nullptr, OptionsTab::Sound});
        context_.tools.open("frmFileProperties");
    };
    statusBar_->left = [this] { page_->setFocus(); };
    context_.services.synthesizer.onChange(this, [this] { showPlace(); });
}

void MainPanels::connectToolbar() {
    toolbar_->pressed = [this](const QString& word) {
        const CommandTable::WordRow* row = table_.wordRow(word.toStdString());
        if (!row) return;
        row->run ? row->run() : menu_.action(QString::fromStdString(row->item))->trigger();
    };
    toolbar_->available = [this](const QString& word) { return available(word); };
}

bool MainPanels::available(const QString& word) const {
    const CommandTable::WordRow* row = table_.wordRow(word.toStdString());
    return !row || row->run || menu_.isEnabled(QString::fromStdString(row->item));
}

// A panel that closes by its button sends a key that does nothing but redraw.
void MainPanels::closePanel(QWidget& panel) {
    panel.hide();
    editor_.panelClosed();
}

void MainPanels::takeSurroundings() {
    Surroundings& around = bench_.surroundings;
    context_.commands.views.takeClientArea(client_->width(), client_->height(), window_.devicePixelRatioF());
    around.inlayColor = quietInlayColor(window_.palette().color(QPalette::Mid).rgb());
    around.bendPanel = panelSize(bendPanel_->unzoomedSize());
    around.repeatPanel = panelSize(repeatPanel_->unzoomedSize());
    around.fretPalette = panelSize(noteSelector_->unzoomedSize());
}

void MainPanels::placePanels() {
    const ViewCommands& views = context_.commands.views;
    const WindowLayout& layout = views.layout();
    const auto placed = [&views](const Rect& place) { return qRect(views.inWindow(place)); };
    zoomPanels();
    toolbar_->setGeometry(0, 0, client_->width(), StripTop);
    page_->setGeometry(placed(layout.picDocument));
    strip_->setGeometry(placed(layout.picStandardNotation));
    strip_->setVisible(layout.stripShown);
    VScroll1_->setGeometry(placed(layout.VScroll1));
    fretboard_->setGeometry(placed(layout.picFretboard));
    fretboard_->setVisible(layout.fretboardShown);
    const int barTop = client_->height() - StatusBarHeight;
    statusBar_->setGeometry(0, barTop, client_->width(), StatusBarHeight);
    lbldebug_->setGeometry(layout.lbldebug.left + placed(layout.picDocument).width() -
                               layout.picDocument.width,
                           barTop + 1, layout.lbldebug.width, layout.lbldebug.height);
    const bool statistics = views.statisticsShown();
    lbldebug_->setVisible(statistics);
    statusBar_->setRoomAtRight(statistics ? client_->width() - lbldebug_->x() : 0);
    placeTrackChooser();
    // An open panel stays beside the cursor.
    for (const Panel panel : {Panel::Bend, Panel::Repeat}) {
        Rect& place = panelPlace(panel);
        place.top += layout.picDocument.top - pageTop_;
        panelWidget(panel)->move(placed(place).topLeft());
    }
    pageTop_ = layout.picDocument.top;
}

void MainPanels::zoomPanels() {
    constexpr QPoint TitlePlace = {16, 4};
    const int percent = context_.commands.views.zoom();
    const double factor = static_cast<double>(percent) / UnzoomedPercent;
    for (SurfaceWidget* surface :
         {strip_, static_cast<SurfaceWidget*>(page_), static_cast<SurfaceWidget*>(fretboard_)})
        surface->setZoom(factor);
    bendPanel_->setZoom(percent);
    repeatPanel_->setZoom(percent);
    noteSelector_->setZoom(percent);
    const QFont font = zoomedFont(client_->font(), percent);
    trackChooser_->setFont(font);
    stripTitle_->setFont(font);
    stripTitle_->move(TitlePlace * factor);
    stripTitle_->adjustSize();
}

// Its lower edge keeps its distance from the window's.
void MainPanels::placeTrackChooser() {
    const ViewCommands& views = context_.commands.views;
    const QRect list = qRect(views.inWindow(views.layout().picTrackChooser));
    const Rect& unzoomed = views.layout().picTrackChooser;
    const int gap = bench_.surroundings.clientHeight - unzoomed.bottom();
    const int bottom = client_->height() - gap;
    const int height = std::min(list.height(), bottom);
    trackChooser_->setGeometry(list.left(), bottom - height, list.width(), height);
}

QWidget* MainPanels::panelWidget(Panel panel) const {
    return panel == Panel::Bend ? static_cast<QWidget*>(bendPanel_) : repeatPanel_;
}

// Light in every theme: black and white ticks stand on it.
void MainPanels::paintRulerGround(QPainter& painter) const {
    constexpr int DarkestGround = 128; // of 255
    constexpr QColor Ground(0xD8, 0xD8, 0xD8);
    if (window_.palette().color(QPalette::Window).lightness() >= DarkestGround) return;
    const int bottom = page_->y();
    const int top = strip_->isVisibleTo(client_) ? strip_->geometry().bottom() + 1 : StripTop;
    painter.fillRect(0, top, client_->width(), bottom - top, Ground);
}

void MainPanels::paintRuler() {
    constexpr int TickHeight = 6;
    constexpr int TopBelowStrip = 194;
    constexpr int TopAbovePage = 24;
    constexpr int DarkestDark = 0x60;
    const ViewCommands& views = context_.commands.views;
    QPainter painter(client_);
    paintRulerGround(painter);
    const QColor dark = window_.palette().color(QPalette::Dark);
    const int width = qRound(static_cast<double>(views.zoom()) / UnzoomedPercent); // of every tick the same
    const QColor offBeat = dark.lightness() < DarkestDark ? QColor(0x80, 0x80, 0x80) : dark;
    const auto draw = [&](int top) {
        const auto line = [&](int x, const QColor& color) {
            const QRect place = qRect(views.inWindow({x, top, 1, TickHeight}));
            painter.fillRect(place.x(), place.y(), width, place.height(), color);
        };
        for (const RulerTick& tick : bench_.view.ruler()) {
            line(tick.x, tick.onBeat ? QColor(Qt::black) : offBeat);
            line(tick.whiteX, Qt::white);
        }
    };
    draw(TopBelowStrip);
    if (!views.layout().stripShown) draw(TopAbovePage);
}

} // namespace tabrova
