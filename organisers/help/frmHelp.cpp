#include "organisers/help/frmHelp.h"

#include "forms/logo.h"
#include "forms/named.h"
#include "organisers/help/help_topics.h"
#include "organisers/help/key_rows.h"
#include "organisers/help/topic_list.h"

#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tabrova {

namespace {

constexpr char Title[] = "Tabrova - Help";
constexpr char NoTopic[] = "(Please select a topic)";
constexpr char Welcome[] = "Welcome To Tabrova!";
constexpr char Question[] = "How do I...";
constexpr char QuestionStart[] = "How do I ";
constexpr int SheetMargin = 18; // pixels
constexpr int LeastTextWidth = 440;
constexpr int KeysHeight = 560;
constexpr double HeadingSize = 1.35; // of the window's letters

QStringList questions() {
    QStringList rows;
    for (const HelpTopic& topic : helpTopics())
        rows.append(topic.question);
    return rows;
}

// A text that lies on the sheet.
QLabel* sheetLabel(const QString& name, const QString& text, QWidget* sheet) {
    auto* label = named(new QLabel(text, sheet), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::Text);
    label->setMinimumWidth(LeastTextWidth);
    return label;
}

// What the longest of the texts needs at the least width.
int heightOfLongest(QLabel& label, const QStringList& texts) {
    const QString shown = label.text();
    int height = 0;
    for (const QString& text : texts) {
        label.setText(text);
        height = std::max(height, label.heightForWidth(LeastTextWidth));
    }
    label.setText(shown);
    return height;
}

} // namespace

frmHelp::frmHelp(const ToolContext& context, QWidget* parent) : ToolWindow("frmHelp", context, parent) {
    setWindowTitle(Title);
    lstTopics_ = new TopicList("lstTopics", NoTopic, questions(), this);
    auto* Label1 = labelOf(lstTopics_, "Label1", this);
    Label1->setText(Question);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new Logo(this));
    column->addWidget(Label1);
    cmdKeys_ = named(new QPushButton(this), "cmdKeys");
    cmdKeys_->setText(QString::fromStdString(context.words.keys));
    auto* row = new QHBoxLayout;
    row->addWidget(lstTopics_, 1);
    row->addWidget(cmdKeys_);
    column->addLayout(row);
    column->addSpacing(6);
    column->addWidget(buildSheet(), 1);
    lstTopics_->chosen = [this](int topic) { showTopic(topic); };
    connect(cmdKeys_, &QPushButton::clicked, this, [this] { showKeys(); });
    setFirstFocus(lstTopics_);
    resize(560, sizeHint().height());
}

QWidget* frmHelp::buildSheet() {
    auto* picTracks = named(new QFrame(this), "picTracks");
    picTracks->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    picTracks->setBackgroundRole(QPalette::Base);
    picTracks->setAutoFillBackground(true);
    lblTitle_ = sheetLabel("lblTitle", Welcome, picTracks);
    QFont heading = lblTitle_->font();
    heading.setPointSizeF(heading.pointSizeF() * HeadingSize);
    heading.setBold(true);
    lblTitle_->setFont(heading);
    lblHelp_ = sheetLabel("lblHelp(0)", helpWelcome(), picTracks);
    lblHelp_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QStringList answers = {helpWelcome()};
    for (const HelpTopic& topic : helpTopics())
        answers.append(topic.answer);
    lblHelp_->setMinimumHeight(heightOfLongest(*lblHelp_, answers));
    lblHelp_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lstKeys_ = named(new QTreeWidget(picTracks), "lstKeys");
    lstKeys_->setColumnCount(2);
    lstKeys_->setRootIsDecorated(false);
    lstKeys_->setHeaderHidden(true);
    lstKeys_->setFrameShape(QFrame::NoFrame);
    lstKeys_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lstKeys_->setTextElideMode(Qt::ElideNone);
    lstKeys_->setTabKeyNavigation(false);
    lstKeys_->hide();
    auto* column = new QVBoxLayout(picTracks);
    column->setContentsMargins(SheetMargin, SheetMargin, SheetMargin, SheetMargin);
    column->setSpacing(SheetMargin / 2);
    column->addWidget(lblTitle_);
    column->addWidget(lblHelp_, 1);
    column->addWidget(lstKeys_, 1);
    return picTracks;
}

void frmHelp::showTopic(int row) {
    const HelpTopic& topic = helpTopics()[static_cast<std::size_t>(row)];
    lblHelp_->setText(topic.answer);
    lblTitle_->setText(QString(QuestionStart) + topic.question);
    lblHelp_->show();
    lstKeys_->hide();
}

void frmHelp::Form_Opened(const ToolOpener::Opening& opening) {
    cmdKeys_->setText(QString::fromStdString(context_.words.keys));
    const bool keys = opening.tab == HelpPage::Keys;
    setFirstFocus(keys ? static_cast<QWidget*>(lstKeys_) : lstTopics_);
    if (keys) showKeys();
}

void frmHelp::showKeys() {
    fillKeys();
    lblTitle_->setText(QString::fromStdString(context_.words.keys).remove('&'));
    lblHelp_->hide();
    lstKeys_->setAccessibleName(lblTitle_->text());
    lstKeys_->show();
    lstKeys_->setFocus();
    resize(width(), std::max(height(), KeysHeight));
}

// In the words of the moment: menus and toolbar change with the language.
void frmHelp::fillKeys() {
    lstKeys_->clear();
    if (!parentWidget()) return;
    for (const KeyRow& row : keyRows(*parentWidget(), context_.words)) {
        auto* item = new QTreeWidgetItem(lstKeys_, {row.name, row.keys});
        if (!row.keys.isEmpty()) continue;
        QFont bold = lstKeys_->font();
        bold.setBold(true);
        item->setFont(0, bold);
        item->setFirstColumnSpanned(true);
        item->setFlags(Qt::ItemIsEnabled);
    }
    if (lstKeys_->topLevelItemCount() > 1) lstKeys_->setCurrentItem(lstKeys_->topLevelItem(1));
}

} // namespace tabrova
