// Any bytes are read as a document without harm, and what the reading leaves, whether it failed or not, bears
// every command; a document that reads comes back byte for byte from what is written.
#include "tests/editing/every_command.h"

#include <cstdlib>
#include <sstream>

namespace {

using namespace tabrova;

std::string written(const Document& document) {
    std::ostringstream out;
    documentText(document).writeTo(out);
    return out.str();
}

bool read(Document& document, const std::string& bytes) {
    std::istringstream in(bytes);
    resetToNewDocument(document);
    return readDocument(document, in);
}

// The same commands for the same bytes.
unsigned seedOf(const std::string& bytes) {
    unsigned seed = 2166136261u;
    for (const char byte : bytes)
        seed = (seed ^ static_cast<unsigned char>(byte)) * 16777619u;
    return seed;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Document document;
    // A failed read may leave counts of millions of empty lines behind; comparing those would only cost time.
    if (read(document, bytes)) {
        const std::string first = written(document);
        Document again;
        if (!read(again, first) || written(again) != first) std::abort();
    }
    constexpr int Commands = 20;
    testing::EveryCommand(document, seedOf(bytes)).run(Commands);
    return 0;
}
