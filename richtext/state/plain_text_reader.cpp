// Files that are no rich text, as the view shows them nevertheless.
#include "richtext/state/rtf_reader.h"

#include "core/text/code_page.h"
#include "richtext/state/rich_flow.h"
#include "richtext/state/text_characters.h"

#include <QStringDecoder>

namespace tabrova {

namespace {

QString decoded(std::string_view bytes) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8.decode(QByteArrayView(bytes));
    return utf8.hasError() ? QString::fromStdString(utf8FromCodePage(bytes)) : text;
}

void addLine(RichFlow& flow, QStringView line) {
    do {
        const QStringView taken = line.left(flow.fitting(line, {}));
        flow.addText(taken.toString(), {});
        flow.endParagraph({}, {}, 0);
        line = line.mid(taken.size());
    } while (!line.isEmpty() && !flow.isFull());
}

} // namespace

RichText readPlainText(std::string_view bytes) {
    RichText text;
    RichFlow flow(text);
    for (const QStringView line : QStringTokenizer(decoded(bytes), u'\n')) {
        if (flow.isFull()) break;
        addLine(flow, onlyText(line.toString()));
    }
    return text;
}

} // namespace tabrova
