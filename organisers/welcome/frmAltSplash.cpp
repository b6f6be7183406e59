#include "organisers/welcome/frmAltSplash.h"

#include "organisers/welcome/document_lists.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <QShowEvent>
#include <algorithm>

namespace tabrova {

namespace {

constexpr int PictureWidth = 520;
constexpr int PictureHeight = 320;
constexpr int DocumentsHeight = 168; // below the picture; less on a low screen
constexpr int LeastDocumentsHeight = 80;
constexpr int FrameHeight = 48; // of the desktop's, at most
constexpr int OptionSize = 96;
constexpr int DrawingSize = OptionSize - 8;
constexpr int OptionTop = 132;
constexpr int OptionGap = 22;
constexpr int None = -1;

struct Option {
    const char* message; // that names it
    SplashChoice choice;
};

constexpr Option Options[] = {
    {"create", SplashChoice::NewTablature},
    {"open", SplashChoice::OpenTablature},
    {"learn", SplashChoice::Learn},
    {"close", SplashChoice::CloseWindow},
};

const QString DefaultTooltip = QStringLiteral("Tabrova 3.0");
const QColor Ink(0xF4, 0xEF, 0xE0);

QPainterPath sheetOfPaper() {
    QPainterPath path;
    path.addRoundedRect(30, 22, 36, 52, 3, 3);
    for (int line = 0; line < 4; ++line) {
        path.moveTo(37, 36 + line * 9);
        path.lineTo(59, 36 + line * 9);
    }
    return path;
}

QPainterPath folder() {
    QPainterPath path;
    path.moveTo(22, 68);
    path.lineTo(22, 32);
    path.lineTo(40, 32);
    path.lineTo(45, 38);
    path.lineTo(72, 38);
    path.lineTo(72, 68);
    path.closeSubpath();
    path.moveTo(22, 48);
    path.lineTo(72, 48);
    return path;
}

QPainterPath questionMark() {
    QPainterPath path;
    path.moveTo(37, 38);
    path.cubicTo(37, 22, 61, 22, 60, 38);
    path.cubicTo(59, 48, 48, 47, 48, 59);
    path.addEllipse(QPointF(48, 70), 1.6, 1.6);
    return path;
}

QPainterPath cross() {
    QPainterPath path;
    path.moveTo(34, 34);
    path.lineTo(62, 62);
    path.moveTo(62, 34);
    path.lineTo(34, 62);
    return path;
}

QPainterPath drawingOf(SplashChoice choice) {
    switch (choice) {
    case SplashChoice::NewTablature:
        return sheetOfPaper();
    case SplashChoice::OpenTablature:
        return folder();
    case SplashChoice::Learn:
        return questionMark();
    case SplashChoice::CloseWindow:
        break;
    }
    return cross();
}

void paintDrawing(QPainter& painter, SplashChoice choice) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(drawingOf(choice));
}

// The highlight behind it is its mark of focus and pointer.
class OptionImage : public PictureButton {
  public:
    OptionImage(int index, QWidget* parent)
        : PictureButton(QString("imgOptions(%1)").arg(index), QIcon(), {DrawingSize, DrawingSize}, parent),
          choice_(Options[index].choice) {
        setMouseTracking(true);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintDrawing(painter, choice_);
    }

  private:
    SplashChoice choice_;
};

class HighlightImage : public QWidget {
  public:
    explicit HighlightImage(QWidget* parent) : QWidget(parent) {
        setObjectName("imgHighlight");
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0xE8, 0xB0, 0x4A), 2.0));
        painter.setBrush(QColor(0xE8, 0xB0, 0x4A, 40));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 10, 10);
    }
};

// Six strings run across the picture, each a little thicker than the one above.
void paintStrings(QPainter& painter) {
    for (int string = 0; string < 6; ++string) {
        painter.setPen(QPen(QColor(0xF4, 0xEF, 0xE0, 45), 1.0 + string * 0.35));
        const int y = OptionTop - 6 + string * 22;
        painter.drawLine(0, y, PictureWidth, y);
    }
}

} // namespace

frmAltSplash::frmAltSplash(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmAltSplash", context, parent) {
    setWindowTitle("Tabrova");
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    setFixedSize(PictureWidth, PictureHeight);
    offerDocuments();
    if (parent) parent->installEventFilter(this);
    setMouseTracking(true);
    // The picture itself has the keyboard at first, so that nothing is highlighted.
    setFocusPolicy(Qt::StrongFocus);
    setFirstFocus(this);
    imgHighlight_ = new HighlightImage(this);
    imgHighlight_->hide();
    const int left = (PictureWidth - 4 * OptionSize - 3 * OptionGap) / 2;
    for (int i = 0; i < 4; ++i) {
        auto* image = new OptionImage(i, this);
        image->setGeometry(left + i * (OptionSize + OptionGap), OptionTop, OptionSize, OptionSize);
        image->installEventFilter(this);
        image->Click = [this, i] { choose(Options[i].choice); };
        imgOptions_[static_cast<std::size_t>(i)] = image;
    }
    lblTooltip_ = new QLabel(DefaultTooltip, this);
    lblTooltip_->setObjectName("lblTooltip");
    lblTooltip_->setTextFormat(Qt::PlainText);
    lblTooltip_->setAlignment(Qt::AlignCenter);
    lblTooltip_->setStyleSheet("color: #F4EFE0; font-size: 15px");
    lblTooltip_->setGeometry(0, OptionTop + OptionSize + 24, PictureWidth, 30);
}

void frmAltSplash::offerDocuments() {
    auto* documents = new DocumentLists(context_, this);
    const QWidget* on = parentWidget() ? parentWidget() : this;
    const int room = on->screen()->availableGeometry().height() - FrameHeight - PictureHeight;
    const int height = std::min(room, DocumentsHeight);
    const bool shown = !documents->isEmpty() && height >= LeastDocumentsHeight;
    documents->setGeometry(0, PictureHeight, PictureWidth, height);
    documents->setVisible(shown);
    documents->chosen = [this](const QString& file) {
        leaveTo([this, file] { context_.commands.documents.openFile(file, Leaving::WithoutAQuestion); });
    };
    if (shown) setFixedSize(PictureWidth, PictureHeight + height);
}

void frmAltSplash::takeMessage(std::string_view message, const QString& text) {
    for (std::size_t index = 0; index < imgOptions_.size(); ++index) {
        if (message != Options[index].message) continue;
        imgOptions_[index]->setToolTip(text);
        imgOptions_[index]->setAccessibleName(text);
    }
}

void frmAltSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient wood(0, 0, 0, PictureHeight);
    wood.setColorAt(0, QColor(0x3B, 0x26, 0x1A));
    wood.setColorAt(1, QColor(0x1E, 0x13, 0x0D));
    painter.fillRect(rect(), wood);
    painter.setRenderHint(QPainter::Antialiasing);
    paintStrings(painter);
    QFont title = font();
    title.setPixelSize(44);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(Ink);
    painter.drawText(QRect(0, 34, width(), 64), Qt::AlignCenter, "Tabrova");
}

void frmAltSplash::highlight(int index) {
    imgHighlight_->setVisible(index != None);
    lblTooltip_->setText(index == None ? DefaultTooltip
                                       : imgOptions_[static_cast<std::size_t>(index)]->toolTip());
    if (index != None) imgHighlight_->setGeometry(imgOptions_[static_cast<std::size_t>(index)]->geometry());
}

void frmAltSplash::choose(SplashChoice choice) {
    leaveTo([this, choice] { run(choice); });
}

void frmAltSplash::leaveTo(const std::function<void()>& act) {
    if (done_) return;
    done_ = true;
    close();
    context_.tools.showMain();
    act();
    editor().focusPage();
}

void frmAltSplash::run(SplashChoice choice) {
    switch (choice) {
    case SplashChoice::NewTablature:
        context_.commands.documents.newTablature();
        break;
    case SplashChoice::OpenTablature:
        context_.commands.documents.OpenDocNoConfirm(true);
        break;
    case SplashChoice::Learn:
        context_.tools.open("frmHelp");
        break;
    case SplashChoice::CloseWindow:
        break;
    }
}

void frmAltSplash::moveToMiddle() {
    if (!parentWidget()) return;
    // While the desktop frames it, the frame may have no size yet.
    QRect place(QPoint(), frameSize().expandedTo(size()));
    place.moveCenter(parentWidget()->frameGeometry().center());
    // Its frame stays on the screen.
    const QRect screen = parentWidget()->screen()->availableGeometry();
    move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
}

void frmAltSplash::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) moveToMiddle();
    ToolWindow::showEvent(event);
}

// The desktop may give the main window its place only once both are there.
bool frmAltSplash::eventFilter(QObject* watched, QEvent* event) {
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (moved && watched == parentWidget()) moveToMiddle();
    for (int i = 0; i < 4; ++i) {
        if (watched != imgOptions_[static_cast<std::size_t>(i)]) continue;
        const QEvent::Type type = event->type();
        if (type == QEvent::Enter || type == QEvent::MouseMove || type == QEvent::FocusIn) highlight(i);
        if (type == QEvent::Leave) highlight(None);
    }
    return ToolWindow::eventFilter(watched, event);
}

void frmAltSplash::mousePressEvent(QMouseEvent*) { choose(SplashChoice::CloseWindow); }

void frmAltSplash::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return choose(SplashChoice::CloseWindow);
    const bool on = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool back = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (on || back) {
        focusNextPrevChild(on);
        return;
    }
    ToolWindow::keyPressEvent(event);
}

} // namespace tabrova
