// Any bytes as a document file: reading them never harms, what stands there afterwards can be written, and
// what was read to the end comes back from its own text as it was.
#include "core/document_file.h"
#include "core/document_operations.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

using tabrova::Document;

bool readFrom(Document& document, const std::string& bytes) {
    std::istringstream in(bytes);
    tabrova::resetToNewDocument(document);
    return tabrova::readDocument(document, in);
}

std::string written(const Document& document) {
    std::ostringstream out;
    const tabrova::FileText text = tabrova::documentText(document);
    if (!text.writeTo(out)) return {};
    std::string bytes = out.str();
    if (bytes.size() != text.size()) std::abort();
    return bytes;
}

void expect(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", rule);
    std::abort();
}

bool sameGrids(const Document& one, const Document& other) {
    if (one.ColumnCapacity != other.ColumnCapacity || one.RowCapacity != other.RowCapacity) return false;
    for (int column = 0; column < one.ColumnCapacity; ++column) {
        if (one.barMark(column) != other.barMark(column)) return false;
        for (int row = 0; row < one.RowCapacity; ++row)
            if (one.note(column, row) != other.note(column, row) ||
                one.technique(column, row) != other.technique(column, row))
                return false;
    }
    return true;
}

bool sameHeader(const Document& one, const Document& other) {
    return one.Title == other.Title && one.Author == other.Author && one.Tempo == other.Tempo &&
           one.Notes == other.Notes && one.DoubleTime == other.DoubleTime &&
           one.PreventReverberations == other.PreventReverberations && one.TrackCount == other.TrackCount &&
           one.StaffCount == other.StaffCount && one.TuningTable == other.TuningTable &&
           one.GuitarTrackFlags == other.GuitarTrackFlags && one.TrackNames == other.TrackNames &&
           one.TrackVolumes == other.TrackVolumes && one.TrackInstruments == other.TrackInstruments;
}

// Counts alone can ask for millions of empty cells: a document so large is written by no test in useful time.
bool isSmall(const Document& document) {
    return std::int64_t{document.ColumnCapacity} * document.RowCapacity <= 1 << 20;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Document document;
    const bool read = readFrom(document, std::string(reinterpret_cast<const char*>(data), size));
    expect(static_cast<int>(document.BarMarkRow.size()) == document.ColumnCapacity, "one mark a column");
    expect(static_cast<int>(document.TuningTable.size()) == document.RowCapacity, "one tuning a row");
    if (!isSmall(document)) return 0;
    const std::string text = written(document);
    if (!read) return 0;
    Document again;
    expect(readFrom(again, text), "what was written can be read");
    expect(sameHeader(document, again), "the fields and lists come back");
    expect(sameGrids(document, again), "the cells come back");
    expect(written(again) == text, "the second text is the first");
    return 0;
}
