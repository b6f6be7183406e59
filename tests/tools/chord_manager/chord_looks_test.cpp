// The chord manager's pictures against those that were looked at, and the places of its controls. A test that
// fails writes what it sees beside the test program; if it is as it should be, it takes the place of the one
// in fixtures/.
#include "tests/tools/chord_manager/chord_window.h"
#include "tests/tools/looks.h"
#include "tools/chord_manager/frmChordTypeCreator.h"

namespace tabrova::testing {
namespace {

constexpr char Tool[] = "chord_manager";

class ChordLooks : public ChordWindow {
  protected:
    void openWith(const char* key, const char* type, int style) {
        open();
        click("lstKeys", key);
        click("lstTypes", type);
        choose("Combo1", style);
        QApplication::processEvents();
    }
};

TEST_F(ChordLooks, TheChart) {
    openWith("A#", "13", 2);
    expectPicture(pictured(*control("shpA(0)").parentWidget(), {QRect(2, 38, 18, 204)}), Tool, "chord_chart");
}

TEST_F(ChordLooks, TheChartOfANewChord) {
    open();
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    enter("x32010");
    expectPicture(pictured(*control("shpA2(0)").parentWidget(), {QRect(2, 32, 18, 156)}), Tool,
                  "new_chord_chart");
}

TEST_F(ChordLooks, TheStaffAndTheTablature) {
    openWith("F#", "m13", 0);
    for (const char* sign : {"mnAs", "mnB", "mnC", "mnCs", "mnD", "mnDs", "mnF", "mnFs", "mnGs"})
        control(sign).show();
    QList<QRect> letters = {QRect(182, 20, 30, 70)};
    for (const ChordStringRow& row : ChordStringTable)
        letters.append(control(row.fretText).geometry().adjusted(3, 0, -3, 0));
    expectPicture(pictured(*control("mnA").parentWidget(), letters), Tool, "chord_staff");
}

TEST_F(ChordLooks, TheStrip) {
    open();
    control("shpStrum(1)").show();
    control("shpStrum(5)").show();
    control("Image3").setFixedWidth(60);
    QApplication::processEvents();
    expectPicture(pictured(control("Image3"), {}), Tool, "strum_strip");
}

TEST_F(ChordLooks, ItsControlsInTheirPlaces) {
    open();
    expectLayout(*form, Tool, "chord_manager_layout");
    auto& tabs = control<QTabWidget>("SSTab1");
    expectLayout(*tabs.widget(0), Tool, "calculator_layout");
    expectLayout(*tabs.widget(1), Tool, "bank_layout");
    expectLayout(*tabs.widget(2), Tool, "options_layout");
}

TEST_F(ChordLooks, TheCreatorsControlsInTheirPlaces) {
    frmChordTypeCreator creator(context, nullptr);
    creator.Form_Load();
    expectLayout(creator, Tool, "creator_layout");
}

} // namespace
} // namespace tabrova::testing
