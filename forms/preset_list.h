// A drop-down list whose text may be none of its rows, as "(custom tuning)" is. The text cannot be typed, and
// a click on it opens the list too.
#pragma once

#include <QComboBox>

namespace tabrova {

class PresetList : public QComboBox {
  public:
    PresetList(const QString& name, QWidget* parent);

    // The row, or the text if the row is -1. Raises no signal.
    void showRow(int row, const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tabrova
