// What the document does to itself: a new document, other sizes, one more staff, the cursor's column.
// The windows' share of these commands (redraws, status texts) stands with the editor.
#pragma once

#include "core/document/document.h"

namespace tabrova {

// The most cells that one grid may have; beyond it no memory is asked for.
constexpr std::int64_t LargestGrid = 64LL * 1024 * 1024;
constexpr std::int16_t MostStaves = 32767;

// False if the sizes are negative or the grids would not fit: nothing is changed then.
bool ResizeGrids(Document& document, std::int32_t columns, std::int32_t rows);

// CurrentColumn alone becomes 0; the cursor stays where it is.
void moveToFirstColumn(Document& document);

// One empty staff more at the end. False if the document cannot grow.
bool growByOneStaff(Document& document);

// The current track's six entries of TuningTable: s1 is the lowest string, s6 the highest. Entries that the
// table does not have are passed over.
void assignTuning(Document& document, std::int16_t s1, std::int16_t s2, std::int16_t s3, std::int16_t s4,
                  std::int16_t s5, std::int16_t s6);

// The first column of the current staff.
int staffStart(const Document& document);
// CurrentColumn follows the cursor's staff and its column in the staff. Returns it.
std::int32_t GetCurrentXPosition(Document& document);

struct RowRange {
    int first;
    int count;
};
// What can be emptied of a staff. Bar marks are shared by all tracks.
struct StaffParts {
    bool notes;
    bool techniques;
    bool barMarks;
};
// These parts of the current staff's 32 columns become "", the cells in these rows alone.
void emptyStaff(Document& document, RowRange rows, const StaffParts& parts);
// All parts in all rows of the grids, those of no track as well.
void ClearStaffallall(Document& document);
void clearBarMarks(Document& document, int first, int count);

// The next save asks for a name.
void forgetFileName(Document& document);

// Fields, arrays and lists of a new document. The clipboard survives, as far as its rows fit.
void resetToNewDocument(Document& document);

} // namespace tabrova
