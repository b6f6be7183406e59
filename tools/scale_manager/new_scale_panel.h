// Where a new scale type is entered: five boxes a string, its name, and the button that saves it.
#pragma once

#include "tools/scale_manager/scale_calculator.h"

#include <QWidget>

#include <functional>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tabrova {

class NewScalePanel : public QWidget {
  public:
    explicit NewScalePanel(QWidget* parent);

    std::function<void()> save;

    ScaleEntries entries() const; // in UTF-8
    QString name() const;
    // All boxes and the name are as at the start.
    void ResetScaleEntry();

  private:
    QWidget* buildBoxes();

    std::array<std::array<QComboBox*, ScaleSlots>, ScaleStrings> boxes_;
    QLineEdit* Txt_flname_;
    QPushButton* Command1_;
};

} // namespace tabrova
