#include "organisers/lessons/frmLessons.h"

#include "core/files/copied_file.h"
#include "core/files/entry_file.h"
#include "forms/folder_list.h"
#include "forms/logo.h"
#include "forms/named.h"
#include "organisers/lessons/lesson_status_bar.h"
#include "organisers/lessons/lesson_view.h"
#include "platform/paths.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tabrova {

namespace {

constexpr char Filter[] = "Rich Text Files|*.rtf";
constexpr char Pattern[] = "*.rtf";
// The panel lies on the lesson: its ground is the window's, its frame goes round its title too.
constexpr char SheetWithFrame[] =
    "QGroupBox { background: palette(window); border: 1px solid palette(mid); padding-top: 22px; }"
    "QGroupBox::title { subcontrol-origin: border; left: 4px; top: 6px; }";
constexpr QSize FirstSize = {900, 620};
constexpr QSize SelectorSize = {340, 300};
constexpr int ColumnGap = 6;
constexpr qreal TitleSize = 1.2;
constexpr qreal SmallestTitle = 0.7;

// Bold, and as large as its longest word allows.
QFont titleFont(const QFont& plain, const QString& title, int width) {
    QFont font = plain;
    font.setBold(true);
    for (qreal size = TitleSize; size >= SmallestTitle; size -= 0.1) {
        font.setPointSizeF(plain.pointSizeF() * size);
        const QFontMetrics metrics(font);
        const QStringList words = title.split(' ');
        if (std::all_of(words.begin(), words.end(),
                        [&](const QString& word) { return metrics.horizontalAdvance(word) <= width; }))
            break;
    }
    return font;
}

} // namespace

// In the order of the Tab key.
frmLessons::frmLessons(const ToolContext& context, QWidget* parent)
    : ToolWindow("frmLessons", context, parent) {
    txtLesson_ = new LessonView("txtLesson", this);
    logo_ = new Logo(this);
    Label8_ = labelOf(txtLesson_, "Label8", this);
    Label8_->setWordWrap(true);
    Label8_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    StatusBar1_ = new LessonStatusBar("StatusBar1", this);
    buildSelector();
    setFirstFocus(lstLessons_);
    places_.columnLeft = 8000 / TwipsPerPixel - LessonColumnWidth;
    lstLessons_->DoubleClick = [this] { openLesson(); };
    txtLesson_->linkChosen = [this](const QString& address) { services().addresses.open(address); };
    connect(StatusBar1_, &QAbstractButton::clicked, this, [this] { bringSelectorBack(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { installLesson(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { uninstallLesson(); });
    resize(FirstSize);
}

void frmLessons::buildSelector() {
    Picture1_ = named(new QGroupBox(this), "Picture1");
    Picture1_->setStyleSheet(SheetWithFrame);
    lstLessons_ = new FolderList("lstLessons", EntryKind::Files, Picture1_);
    lstLessons_->setPattern(Pattern);
    Command2_ = named(new QPushButton(Picture1_), "Command2");
    Command3_ = named(new QPushButton(Picture1_), "Command3");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command2_);
    buttons->addWidget(Command3_);
    auto* column = new QVBoxLayout(Picture1_);
    column->addWidget(labelOf(lstLessons_, "Label1", Picture1_));
    column->addWidget(lstLessons_, 1);
    column->addLayout(buttons);
}

void frmLessons::Form_Load() {
    LoadLanguage();
    lstLessons_->showFolder(folder());
    placeParts();
}

void frmLessons::resizeEvent(QResizeEvent* event) {
    ToolWindow::resizeEvent(event);
    placeParts();
}

void frmLessons::placeParts() {
    places_ = lessonPlaces(size(), places_);
    txtLesson_->setGeometry(places_.txtLesson);
    StatusBar1_->setGeometry(places_.statusBar);
    const int width = LessonColumnWidth - 2 * ColumnGap;
    const int left = places_.columnLeft + ColumnGap;
    logo_->setGeometry(left, ColumnGap, width, logo_->sizeHint().height());
    Label8_->setFont(titleFont(font(), Label8_->text(), width));
    Label8_->setGeometry(left, logo_->geometry().bottom() + ColumnGap, width, Label8_->heightForWidth(width));
    if (!Picture1_->isHidden()) placeSelector();
}

void frmLessons::placeSelector() {
    const QSize wanted = SelectorSize.expandedTo(Picture1_->minimumSizeHint());
    Picture1_->setGeometry(selectorPlace(places_, wanted.boundedTo({width(), places_.statusBar.top()})));
}

void frmLessons::openLesson() {
    if (!txtLesson_->load(folder() / lstLessons_->chosenName())) return;
    txtLesson_->setFocus();
    Picture1_->hide();
}

void frmLessons::bringSelectorBack() {
    placeSelector();
    Picture1_->raise();
    Picture1_->show();
    lstLessons_->setFocus();
}

void frmLessons::installLesson() {
    const auto answer = services().files.choose({FileQuestion::Kind::Open, Filter, {}, lessonDialog_});
    if (!answer) return;
    const std::filesystem::path file = pathOf(*answer);
    const std::filesystem::path name = file.filename();
    if (name.empty() || !copyRegularFile(file, folder() / name)) return;
    lessonDialog_ = *answer;
    services().boxes.ask(
        {"Done", "The Lesson: " + textOf(name) + " has been installed successfully.", BoxIcon::Information});
    lstLessons_->readAgain();
}

void frmLessons::uninstallLesson() {
    if (lstLessons_->chosenRow() < 0) return;
    const std::filesystem::path name = lstLessons_->chosenName();
    const QString question = "Are you sure you wish to uninstall the " + textOf(name) + " lesson?";
    const BoxAnswer answer =
        services().boxes.ask({"Uninstall Lesson", question, BoxIcon::None, {BoxAnswer::Yes, BoxAnswer::No}});
    if (answer == BoxAnswer::Yes) removeEntryFile(folder() / name);
    lstLessons_->readAgain();
}

} // namespace tabrova
