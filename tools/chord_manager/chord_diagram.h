// A chord chart as chord books print it: the nut on top, the lowest string on the left and the thickest,
// frets 1 to 6 with their numbers, and round marks; an open string's mark is a ring above the nut. The marks
// are controls of their own, named as each string's row says. The chart is black on white in every theme.
#pragma once

#include "forms/round_mark.h"
#include "tools/chord_manager/chord_calculator.h"

#include <QWidget>

#include <vector>

namespace tabrova {

// In pixels.
struct DiagramLayout {
    int stringGap;
    int fretGap;
    int left; // of the lowest string
    int top;  // of the nut
    int markSize;

    static constexpr int Frets = 6;

    int stringX(std::size_t string) const { return left + static_cast<int>(string) * stringGap; }
    // The wire of the fret; 0 is the nut.
    int fretY(int fret) const { return top + fret * fretGap; }
    // Where the mark of a fret lies: between its wires. A mark past the last fret stands above the nut.
    QRect markPlace(std::size_t string, std::size_t mark) const;
    QSize size() const;
};

class ChordDiagram : public QWidget {
  public:
    using MarkNames = std::array<const char*, ChordStrings>;

    // `marks` of each string; the one past the last fret is the cross of a string that is not played.
    ChordDiagram(const DiagramLayout& layout, const MarkNames& names, std::size_t marks, QWidget* parent);

    // A string that is not played has a cross above the nut.
    void showChord(const ChordDisplay& display);
    // This mark of each string and no other.
    void showOneMark(const std::array<std::size_t, ChordStrings>& marks);

    const DiagramLayout& diagramLayout() const { return layout_; }
    QSize sizeHint() const override { return layout_.size(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    DiagramLayout layout_;
    std::array<std::vector<RoundMark*>, ChordStrings> marks_;
    std::array<bool, ChordStrings> silent_{};
};

} // namespace tabrova
