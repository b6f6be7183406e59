// The documents that the benchmarks measure with.
#pragma once

#include "core/document/document.h"

namespace tabrova {

constexpr int LargeTracks = 1024;
constexpr int LargeStaves = 64;

// 1024 tracks by 64 staves. `everyColumns` 0 leaves all cells empty; else every such column of every track
// holds a note, and every fourth of these a technique.
void makeLargeDocument(Document& document, int everyColumns);

// One track; every cell holds a note and every second one a technique, with a bar mark every fourth column.
void makeDenseDocument(Document& document, int staves);

} // namespace tabrova
