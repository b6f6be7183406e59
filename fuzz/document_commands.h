// What every target does with a document that a reader left behind.
#pragma once

#include "tests/editing/every_command.h"

#include <cstdlib>
#include <sstream>

namespace tabrova {

inline std::string written(const Document& document) {
    std::ostringstream out;
    documentText(document).writeTo(out);
    return out.str();
}

inline bool readWritten(Document& document, const std::string& bytes) {
    std::istringstream in(bytes);
    resetToNewDocument(document);
    return readDocument(document, in);
}

// A document that a reader took for whole comes back byte for byte from what is written.
inline void saveAndReadAgain(const Document& document) {
    const std::string first = written(document);
    Document again;
    if (!readWritten(again, first) || written(again) != first) std::abort();
}

// The same commands for the same bytes.
inline void goOnWithCommands(Document& document, const std::string& bytes) {
    unsigned seed = 2166136261u;
    for (const char byte : bytes)
        seed = (seed ^ static_cast<unsigned char>(byte)) * 16777619u;
    constexpr int Commands = 20;
    testing::EveryCommand(document, seed).run(Commands);
}

} // namespace tabrova
