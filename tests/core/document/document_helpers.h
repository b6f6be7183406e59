// Small documents and files for the tests of the document.
#pragma once

#include "core/document/document_file.h"
#include "core/document/document_operations.h"

#include <sstream>
#include <string>

namespace tabrova::testing {

inline std::string written(const Document& document) {
    std::ostringstream out;
    documentText(document).writeTo(out);
    return out.str();
}

inline bool readFrom(Document& document, const std::string& bytes) {
    std::istringstream in(bytes);
    resetToNewDocument(document);
    return readDocument(document, in);
}

// Tracks and staves as asked, all cells empty.
inline void makeDocument(Document& document, int tracks, int staves) {
    resetToNewDocument(document);
    document.TrackCount = static_cast<std::int16_t>(tracks);
    document.StaffCount = static_cast<std::int16_t>(staves);
    const auto count = static_cast<std::size_t>(tracks);
    document.TrackNames.assign(count, "Untitled Track");
    document.TrackVolumes.assign(count, "127");
    document.TrackInstruments.assign(count, "24");
    document.GuitarTrackFlags.assign(count, True16);
    ResizeGrids(document, staves * ColumnsPerStaff, tracks * StringsPerTrack);
    document.TuningTable.assign(count * StringsPerTrack, StandardTuning);
}

inline std::vector<std::string> lines(const std::string& bytes) {
    std::vector<std::string> list;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", at);
        list.push_back(bytes.substr(at, end - at));
        if (end == std::string::npos) break;
        at = end + 2;
    }
    return list;
}

} // namespace tabrova::testing
