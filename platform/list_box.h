// A list with one Click event for each act of the user: a mouse click, also on the row that is chosen
// already, and a move of the selection by keys. A selection by the program raises none.
#pragma once

#include <QListWidget>

#include <functional>

namespace tabrova {

class ListBox : public QListWidget {
  public:
    ListBox(const QString& name, QWidget* parent);

    // The chosen row; -1 if none is. The toolkit's current row may be one that only has the keyboard.
    int chosenRow() const { return selectedItems().isEmpty() ? -1 : currentRow(); }

    std::function<void()> Click;
    // A double click, or Return, with a row chosen. A double click below the rows counts for the chosen one.
    std::function<void()> DoubleClick;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void raiseClick();

    int rowAtPress_ = -1;
    bool raised_ = false;
};

} // namespace tabrova
