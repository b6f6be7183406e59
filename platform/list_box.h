// A list with one Click event for each act of the user: a mouse click, also on the row that is chosen
// already, and a move of the selection by keys, or, where a choice ends the list, Return, Enter or Space. A
// selection by the program raises none.
#pragma once

#include <QListWidget>

#include <functional>

namespace tabrova {

class ListBox : public QListWidget {
  public:
    enum class KeyClick { AtMove, AtEnter };

    ListBox(const QString& name, QWidget* parent, KeyClick keyClick = KeyClick::AtMove);

    // The chosen row; -1 if none is. The toolkit's current row may be one that only has the keyboard.
    int chosenRow() const { return selectedItems().isEmpty() ? -1 : currentRow(); }

    std::function<void()> Click;
    // A double click, or Return, with a row chosen. A double click below the rows counts for the chosen one.
    std::function<void()> DoubleClick;

  protected:
    // A click beside the rows changes nothing, and neither do other buttons than the left one. With the Ctrl
    // key too a click chooses the row, be it chosen already.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void raiseClick();

    KeyClick keyClick_;
    int rowAtPress_ = -1;
    bool raised_ = false;
};

} // namespace tabrova
