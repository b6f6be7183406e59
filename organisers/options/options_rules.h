// What the options decide, without a window: the cursor's colors, the stored device position and the hidden
// debug box.
#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <optional>

namespace tabrova {

struct CursorColorRow {
    const char* name;
    std::optional<std::uint32_t> color; // 0x00BBGGRR; std::nullopt for the system's highlight color
};

constexpr std::array<CursorColorRow, 6> CursorColors = {{{"Red", 0x0000FF},
                                                         {"Blue", 0xFF0000},
                                                         {"Faded Blue", std::nullopt},
                                                         {"Green", 0x008000},
                                                         {"Orange", 0x0080FF},
                                                         {"Black", 0x000000}}};

// The color of a row as the toolkit holds it.
QRgb cursorColor(const CursorColorRow& row, QRgb highlight);

// The position in a list of `count` rows; std::nullopt for a text that is no number or for a row that is not
// there.
std::optional<int> storedPosition(const QString& text, int count);

// The debug box shows itself to whoever clicks the device list 200 times in one run. This is intended.
class DeviceClicks {
  public:
    static constexpr int UntilDebugMode = 200;
    // True at the click that shows the box, and at no other.
    bool count() { return ++clicks_ == UntilDebugMode; }

  private:
    int clicks_ = 0;
};

} // namespace tabrova
