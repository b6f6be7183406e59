// Between the bytes of a text file and the box that shows them.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tabrova {

// The longest line that the box shows; of one that a file brought along the box has the beginning.
constexpr std::size_t LongestShownLine = 10'000; // bytes

// Each line of the file, ended by CR LF, with `newLine` behind it: a blank and a line end. Line ends are LF.
QString boxText(std::string_view file, const QString& newLine);

// What is saved: the box's text in the code page, each line ended by CR LF.
std::string savedText(const QString& box);

} // namespace tabrova
