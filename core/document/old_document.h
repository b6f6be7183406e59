// The document file of the previous generation, extension "trx": one line of fields of fixed width without
// separators, for one guitar track. docs/file-formats.md lists the fields.
#pragma once

#include "core/document/document.h"

#include <filesystem>
#include <optional>

namespace tabrova {

constexpr std::string_view OldDocumentFilter = "Tabrova 2.1x Tablatures|*.trx";
constexpr std::string_view OldDocumentExtension = "trx";

// The one item of the file that holds the document: up to the first line end or the first comma outside
// double quotes. Nothing if the file cannot be opened; of a file that is longer than any document, the
// beginning.
std::optional<std::string> readOldDocumentItem(const std::filesystem::path& file);

// Overwrites a document that was just made new. False if a field or a cell is no number, there is no staff,
// the text ends too early or a separator stands in the last column: the document then stands as far as the
// reading came.
bool readOldDocument(Document& document, std::string_view item);

} // namespace tabrova
