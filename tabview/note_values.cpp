#include "tabview/note_values.h"

namespace tabrova {

namespace {

constexpr NoteValue Values[] = {{16, 1, sprite::FilledHead, 11}, {8, 2, sprite::FilledHead, 8},
                                {4, 4, sprite::FilledHead, 5},   {3, 3, sprite::FilledHead, 3},
                                {2, 8, sprite::OpenHead, 3},     {1, 16, sprite::WholeHead, 0}};

struct Threshold {
    ValueCode code;
    int emptyColumns;
    int columnsToEnd; // the test is made only this far before the document's end
};

constexpr Threshold Thresholds[] = {{8, 1, 2}, {3, 2, 3}, {4, 3, 4}, {2, 7, 8}, {1, 15, 16}};

} // namespace

const NoteValue* noteValue(ValueCode code) {
    for (const NoteValue& value : Values)
        if (value.code == code) return &value;
    return nullptr;
}

bool columnIsEmpty(const Document& document, int column, int firstRow) {
    for (int string = 0; string < StringsPerTrack; ++string)
        if (document.NoteGrid.at(column, firstRow + string) != EmptyText) return false;
    return true;
}

ValueCode valueByLookAhead(const Document& document, int column, int firstRow) {
    ValueCode value = 16;
    int empty = 0;
    for (const Threshold& threshold : Thresholds) {
        if (column >= document.ColumnCapacity - threshold.columnsToEnd) break;
        while (empty < threshold.emptyColumns && columnIsEmpty(document, column + empty + 1, firstRow))
            ++empty;
        if (empty < threshold.emptyColumns) break;
        value = threshold.code;
    }
    return value;
}

} // namespace tabrova
