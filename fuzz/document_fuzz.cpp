// Any bytes are read as a document without harm; a document that reads comes back byte for byte from what is
// written.
#include "core/document_file.h"
#include "core/document_operations.h"

#include <cstdlib>
#include <sstream>

namespace {

std::string written(const tabrova::Document& document) {
    std::ostringstream out;
    tabrova::documentText(document).writeTo(out);
    return out.str();
}

bool read(tabrova::Document& document, const std::string& bytes) {
    std::istringstream in(bytes);
    tabrova::resetToNewDocument(document);
    return tabrova::readDocument(document, in);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tabrova::Document document;
    const bool good = read(document, std::string(reinterpret_cast<const char*>(data), size));
    // A failed read may leave counts of millions of empty lines behind; writing those would only cost time.
    if (!good) return 0;
    const std::string first = written(document);
    tabrova::Document again;
    if (!read(again, first) || written(again) != first) std::abort();
    return 0;
}
