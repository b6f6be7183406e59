// Any bytes are read as a document without harm, and what the reading leaves, whether it failed or not, bears
// every command; a document that reads comes back byte for byte from what is written.
#include "fuzz/document_commands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    tabrova::Document document;
    // A failed read may leave counts of millions of empty lines behind; comparing those would only cost time.
    if (tabrova::readWritten(document, bytes)) tabrova::saveAndReadAgain(document);
    tabrova::goOnWithCommands(document, bytes);
    return 0;
}
