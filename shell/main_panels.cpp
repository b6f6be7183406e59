#include "shell/main_panels.h"

#include "forms/named.h"
#include "organisers/options/frmOptions.h"

#include <QPainter>
#include <QtMath>

namespace tabrova {

namespace {

QRect qRect(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }

PanelSize sizeOf(const QWidget& panel) { return {panel.width(), panel.height()}; }

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

MainPanels::~MainPanels() { bench_.acts.remove(*this); }

void MainPanels::build() {
    client_ = named(new QWidget(&window_), "clientArea");
    window_.setCentralWidget(client_);
    toolbar_ = new Toolbar(client_);
    strip_ = new SurfaceWidget("picStandardNotation", bench_.view.picStandardNotation, client_);
    page_ = new PageWidget(bench_.view.picDocument, editor_.page(), client_);
    VScroll1_ = named(new QScrollBar(Qt::Vertical, client_), "VScroll1");
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
    auto* title = named(new QLabel("Track: Untitled Track", strip_), "lblNotationTitle");
    // The strip is white paper in every theme.
    title->setStyleSheet("color: #555555; background: transparent");
    title->move(16, 4);
    title->adjustSize();
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
    // The list of drums, when there is a window for it, on a percussion track.
    page_->doubleClick = [this] {
        const Document& document = bench_.document;
        if (!document.isGuitarTrack(document.CurrentTrack)) context_.tools.open("frmPercussion");
    };
    page_->scrolled = [this](int staves) { editor_.VScroll1_Change(editor_.scroll().value + staves); };
    page_->scrolledByPages = [this](int pages) {
        editor_.VScroll1_Change(editor_.scroll().value + pages * bench_.document.VisibleStaves);
    };
    page_->escaped = [this] { closePanel(*noteSelector_); };
    fretboard_->mouseDown = [this](MouseButton button, int x, int y) {
        editor_.picFretboard_MouseDown(button, x, y);
    };
    fretboard_->doubleClick = [this] { menu_.action("mnuChordManager")->trigger(); };
    strip_->paintObjects = [this](QPainter& painter) {
        const PageObjects& objects = editor_.page();
        painter.fillRect(objects.NoteLine.x1, 0, objects.borderWidth, strip_->height(),
                         QColor(objects.noteLineColor));
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
    around.clientWidth = client_->width();
    around.clientHeight = client_->height();
    // Whole image pixels: a screen of one and a half is served from the sheet of two.
    around.scale = qCeil(window_.devicePixelRatioF());
    around.inlayColor = quietInlayColor(window_.palette().color(QPalette::Mid).rgb());
    around.bendPanel = sizeOf(*bendPanel_);
    around.repeatPanel = sizeOf(*repeatPanel_);
    around.fretPalette = sizeOf(*noteSelector_);
}

void MainPanels::placePanels() {
    const WindowLayout& layout = context_.commands.views.layout();
    toolbar_->setGeometry(0, 0, client_->width(), StripTop);
    page_->setGeometry(qRect(layout.picDocument));
    strip_->setGeometry(qRect(layout.picStandardNotation));
    strip_->setVisible(layout.stripShown);
    VScroll1_->setGeometry(qRect(layout.VScroll1));
    fretboard_->setGeometry(qRect(layout.picFretboard));
    fretboard_->setVisible(layout.fretboardShown);
    statusBar_->setGeometry(qRect(layout.StatusBar1));
    lbldebug_->setGeometry(qRect(layout.lbldebug));
    lbldebug_->setVisible(context_.commands.views.statisticsShown());
    trackChooser_->setGeometry(qRect(layout.picTrackChooser));
    // An open panel stays beside the cursor.
    for (const Panel panel : {Panel::Bend, Panel::Repeat})
        panelWidget(panel)->move(panelWidget(panel)->x(),
                                 panelWidget(panel)->y() + layout.picDocument.top - pageTop_);
    pageTop_ = layout.picDocument.top;
}

QWidget* MainPanels::panelWidget(Panel panel) const {
    return panel == Panel::Bend ? static_cast<QWidget*>(bendPanel_) : repeatPanel_;
}

void MainPanels::paintRuler() {
    constexpr int TickHeight = 6;
    constexpr int TopBelowStrip = 194;
    constexpr int TopAbovePage = 24;
    QPainter painter(client_);
    const auto draw = [&](int top) {
        for (const RulerTick& tick : bench_.view.ruler()) {
            const QColor color = tick.onBeat ? QColor(Qt::black) : window_.palette().color(QPalette::Dark);
            painter.fillRect(tick.x, top, 1, TickHeight, color);
            painter.fillRect(tick.whiteX, top, 1, TickHeight, Qt::white);
        }
    };
    draw(TopBelowStrip);
    if (!context_.commands.views.layout().stripShown) draw(TopAbovePage);
}

} // namespace tabrova
