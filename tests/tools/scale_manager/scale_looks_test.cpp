// The scale manager's pictures and places against those that were looked at.
#include "tests/tools/looks.h"
#include "tests/workbench/tool_bench.h"
#include "tools/scale_manager/frmScaleWizard.h"
#include "tools/scale_manager/scale_neck.h"
#include "tools/scale_manager/scale_tab.h"

namespace tabrova::testing {
namespace {

constexpr char Tool[] = "scale_manager";
constexpr std::string_view Major = "990249902499124991249924599999";

class ScaleLooks : public ToolBench {};

TEST_F(ScaleLooks, TheNeckForBothHands) {
    ScaleNeck neck(nullptr);
    neck.showMarks(layScale(3, Major));
    expectPicture(pictured(neck, {}), Tool, "neck_right");
    neck.setView(NeckView::LeftHanded);
    expectPicture(pictured(neck, {}), Tool, "neck_left");
}

TEST_F(ScaleLooks, TheTablatureWithItsNotes) {
    ScaleTab tab(nullptr);
    tab.showLabels(layScale(8, Major));
    QList<QRect> letters = {QRect(11, 20, 24, 76)};
    for (const QWidget* label : tab.findChildren<QWidget*>())
        letters.append(label->geometry().adjusted(2, 0, -2, 0));
    expectPicture(pictured(tab, letters), Tool, "scale_tab");
}

TEST_F(ScaleLooks, ItsControlsInTheirPlaces) {
    frmScaleWizard form(context, nullptr);
    form.Form_Load();
    expectLayout(form, Tool, "scale_manager_layout");
}

} // namespace
} // namespace tabrova::testing
