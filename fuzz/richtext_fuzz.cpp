// Any bytes are read as rich text and as plain text; what comes out keeps its bounds, becomes a document and
// is laid out.
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"
#include "tests/richtext/rich_rules.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace tabrova;

void check(const char* brokenRule) {
    if (!brokenRule) return;
    std::fprintf(stderr, "%s\n", brokenRule);
    std::abort();
}

// Layout needs the toolkit's application object.
void startToolkit() {
    static int count = 1;
    static char name[] = "fuzz_richtext";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(count, arguments);
}

void lay(const RichText& text) {
    tests::RichRules rules(text);
    check(rules.broken());
    const auto document = richTextDocument(text, {96, 1.5});
    if (rules.characters() > 5000 || rules.blocks() > 500) return;
    document->setTextWidth(600);
    if (document->size().isEmpty()) check("a document of no size");
}

} // namespace

// The library of the system's fonts keeps what it has read.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    startToolkit();
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    lay(readRichText(bytes));
    lay(readPlainText(bytes));
    return 0;
}
