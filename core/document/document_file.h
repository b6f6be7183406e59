// The document file, extension "tr3": a fixed sequence of lines ended by CR LF whose meaning follows from
// their position alone. docs/file-formats.md lists the lines.
#pragma once

#include "core/document/document.h"
#include "core/files/file_text.h"

#include <cstdint>
#include <filesystem>
#include <istream>

namespace tabrova {

constexpr std::string_view DocumentFilter = "Tabrova Tablatures |*.tr3";
constexpr std::string_view DocumentExtension = "tr3";

// Larger files are no documents: what the program itself can save stays far below.
constexpr std::uintmax_t LargestDocumentFile = 1024 * 1024 * 1024;

// All lines of the document. A document whose counts reach past its arrays gives the lines up to there.
FileText documentText(const Document& document);

// Replaces the file's content. HasFileName becomes true as soon as the file is open, before anything is
// written. False if the file could not be opened or not all could be written. A pipe or a device takes
// nothing.
bool saveDocument(Document& document, const std::filesystem::path& path);

// Overwrites a document that was just made new. False if a line does not convert, the file ends too early,
// its counts are absurd or it holds more different texts than music has: the document then stands as far as
// the reading came.
bool readDocument(Document& document, std::istream& file);

} // namespace tabrova
