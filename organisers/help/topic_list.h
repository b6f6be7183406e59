// A drop-down list of questions that can be searched: what is typed shows the rows that hold it, and one of
// them is chosen there, by Return if it is the only one, or in the whole list. Typed text itself never stays:
// the list shows the chosen row again, or a text of its own while none is.
#pragma once

#include <QComboBox>

#include <functional>

namespace tabrova {

class TopicList : public QComboBox {
  public:
    TopicList(const QString& name, const QString& textOfNone, const QStringList& rows, QWidget* parent);

    // Each time that the user chooses a row, be it the one that is chosen already.
    std::function<void(int row)> chosen;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void choose(int row);
    void showChosen();
    // The row that is the typed text, or the only one that holds it; -1 otherwise.
    int rowOf(const QString& typed) const;

    QString textOfNone_;
    int row_ = -1;
};

} // namespace tabrova
