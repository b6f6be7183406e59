// The tuning manager's buttons and places against those that were looked at.
#include "tests/tools/looks.h"
#include "tests/workbench/tool_bench.h"
#include "tools/tuning_manager/frmTuningManager.h"

#include <QAbstractButton>

namespace tabrova::testing {
namespace {

constexpr char Tool[] = "tuning_manager";

class TuningLooks : public ToolBench {};

TEST_F(TuningLooks, TheButtonsReleasedAndPressed) {
    const QPalette before = QApplication::palette();
    QPalette theme(QColor(0xef, 0xef, 0xef));
    theme.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    QApplication::setPalette(theme);
    frmTuningManager form(context, nullptr);
    form.Form_Load();
    auto& string = *form.findChild<QAbstractButton*>("Image1");
    auto& all = *form.findChild<QAbstractButton*>("Picture1");
    for (QAbstractButton* button : {&string, &all})
        button->resize(button->sizeHint());
    const QList<QRect> letter = {QRect(12, 11, 14, 16)};
    expectPicture(pictured(string, letter), Tool, "string_released");
    expectPicture(pictured(all, {}), Tool, "all_released");
    string.setChecked(true);
    all.setChecked(true);
    expectPicture(pictured(string, letter), Tool, "string_pressed");
    expectPicture(pictured(all, {}), Tool, "all_pressed");
    QApplication::setPalette(before);
}

TEST_F(TuningLooks, ItsControlsInTheirPlaces) {
    frmTuningManager form(context, nullptr);
    form.Form_Load();
    expectLayout(form, Tool, "tuning_manager_layout");
}

} // namespace
} // namespace tabrova::testing
