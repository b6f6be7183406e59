// The codes under which keys and internal commands reach the editor.
#pragma once

namespace tabrova::key {

constexpr int Backspace = 8;
constexpr int Enter = 13;
constexpr int Space = 32;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Delete = 46;
constexpr int Digit0 = 48;
constexpr int Digit9 = 57;
// Letters are their capital's character code.
constexpr int B = 'B';
constexpr int H = 'H';
constexpr int J = 'J';
constexpr int T = 'T';
constexpr int U = 'U';
constexpr int X = 'X';
// Does nothing but redraw: what a closing panel sends.
constexpr int RedrawOnly = 81;

constexpr int ShiftBit = 1;

} // namespace tabrova::key

namespace tabrova::code {

constexpr int ClosedRepeatBase = 1000; // 1001 to 1015: "r1" to "r15"
constexpr int FirstBend = 1200;        // 1200 to 1205 under the string, 1206 to 1211 above it
constexpr int LastBend = 1211;
constexpr int OpenedRepeat = 3000;
constexpr int ClosedRepeatPanel = 4000;

} // namespace tabrova::code
