#include "organisers/lessons/lesson_view.h"

#include "core/files/regular_file.h"
#include "forms/paper.h"
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QUrl>

#include <optional>
#include <string>

namespace tabrova {

namespace {

constexpr qreal PageMargin = 28; // pixels

std::optional<std::string> readBytes(const std::filesystem::path& file) {
    RegularFile input(file, LessonView::MostBytes);
    if (!input) return std::nullopt;
    std::string bytes;
    std::string block(1024 * 1024, '\0');
    while (input.read(block.data(), static_cast<std::streamsize>(block.size())), input.gcount() > 0)
        bytes.append(block, 0, static_cast<std::size_t>(input.gcount()));
    return bytes;
}

bool isOpenedOutside(const QUrl& link) {
    return link.scheme() == "http" || link.scheme() == "https" || link.scheme() == "mailto";
}

} // namespace

LessonView::LessonView(const QString& name, QWidget* parent) : QTextBrowser(parent) {
    setObjectName(name);
    setOpenLinks(false);
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    makePaper(*this);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { follow(link); });
}

bool LessonView::load(const std::filesystem::path& file) {
    const auto bytes = readBytes(file);
    if (!bytes) return false;
    const RichText text = isRichText(*bytes) ? readRichText(*bytes) : readPlainText(*bytes);
    show(richTextDocument(text, {logicalDpiX(), devicePixelRatioF()}));
    return true;
}

// The view lets go of the lesson before it.
void LessonView::show(std::unique_ptr<QTextDocument> lesson) {
    lesson->setDocumentMargin(PageMargin);
    setDocument(lesson.get());
    lesson_ = std::move(lesson);
    layOutWhole();
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

// The toolkit lays a long page out piece by piece and would show the bars of the first pieces until it is
// idle.
void LessonView::layOutWhole() { emit document()->documentLayout()->documentSizeChanged(document()->size()); }

void LessonView::follow(const QUrl& link) {
    if (link.scheme().isEmpty() && link.path().isEmpty() && link.hasFragment()) {
        scrollToAnchor(link.fragment());
    } else if (isOpenedOutside(link) && linkChosen) {
        linkChosen(link.toString());
    }
}

QVariant LessonView::loadResource(int, const QUrl&) { return {}; }

} // namespace tabrova
