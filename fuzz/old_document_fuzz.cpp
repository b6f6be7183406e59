// Any bytes are read as a document of the previous generation without harm, and what the reading leaves,
// whether it failed or not, bears every command; a document that reads can be saved and read again.
#include "core/document/old_document.h"
#include "core/files/entry_file.h"
#include "fuzz/document_commands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    tabrova::Document document;
    tabrova::resetToNewDocument(document);
    if (tabrova::readOldDocument(document, tabrova::itemAt(bytes))) tabrova::saveAndReadAgain(document);
    tabrova::goOnWithCommands(document, bytes);
    return 0;
}
