// `List1` of the percussion editor: the drums with their numbers, in columns. The drum that stands under the
// document's cursor is marked, the chosen one has a frame.
#pragma once

#include "platform/list_box.h"

#include <optional>

namespace tabrova {

class DrumList : public ListBox {
  public:
    explicit DrumList(QWidget* parent);

    // Columns that the list's width is divided into, at least 1.
    void setColumns(int columns);
    int columns() const { return columns_; }

    void markDrum(std::optional<int> drum);
    std::optional<int> markedDrum() const { return marked_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void placeRows();

    int columns_ = 1;
    std::optional<int> marked_;
};

} // namespace tabrova
