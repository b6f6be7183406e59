// The chord manager's pictures against those that were looked at, and the places of its controls. A test that
// fails writes what it sees beside the test program; if it is as it should be, it takes the place of the one
// in fixtures/.
#include "tests/forms/described_layout.h"
#include "tests/shell/likeness.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/tools/chord_manager/chord_window.h"
#include "tools/chord_manager/frmChordTypeCreator.h"

#include <QPainter>

namespace tabrova::testing {
namespace {

const QString Fixtures = QString(TABROVA_SOURCE_DIR) + "/tests/tools/chord_manager/fixtures/";

class ChordLooks : public ChordWindow {
  protected:
    // Letters and digits differ from machine to machine: where they stand is left white.
    QImage pictured(QWidget& widget, const QList<QRect>& letters) {
        QImage image(widget.size() * 2, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        image.fill(Qt::white);
        widget.render(&image);
        {
            QPainter painter(&image);
            for (const QRect& place : letters)
                painter.fillRect(place, Qt::white);
        }
        image.setDevicePixelRatio(1);
        return image;
    }
    void expectPicture(const QImage& seen, const char* name) {
        const QImage wanted = QImage(Fixtures + name + ".png").convertToFormat(QImage::Format_RGB32);
        EXPECT_TRUE(sameImage(withSmallDifferencesTakenOut(seen, wanted), wanted, name));
    }
    void expectLayout(QWidget& widget, const char* name) {
        QFile file(Fixtures + name + ".txt");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const std::string seen = testing::text(describedTree(*widget.layout()));
        const std::string wanted = file.readAll().toStdString();
        EXPECT_EQ(seen, wanted);
        const QString place = QApplication::applicationDirPath() + "/" + name + "_actual.txt";
        if (seen != wanted) std::ofstream(place.toStdString()) << seen;
    }
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
    expectPicture(pictured(*control("shpA(0)").parentWidget(), {QRect(2, 38, 18, 204)}), "chord_chart");
}

TEST_F(ChordLooks, TheChartOfANewChord) {
    open();
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    enter("x32010");
    expectPicture(pictured(*control("shpA2(0)").parentWidget(), {QRect(2, 32, 18, 156)}), "new_chord_chart");
}

TEST_F(ChordLooks, TheStaffAndTheTablature) {
    openWith("F#", "m13", 0);
    for (const char* sign : {"mnAs", "mnB", "mnC", "mnCs", "mnD", "mnDs", "mnF", "mnFs", "mnGs"})
        control(sign).show();
    QList<QRect> letters = {QRect(182, 20, 30, 70)};
    for (const ChordStringRow& row : ChordStringTable)
        letters.append(control(row.fretText).geometry().adjusted(3, 0, -3, 0));
    expectPicture(pictured(*control("mnA").parentWidget(), letters), "chord_staff");
}

TEST_F(ChordLooks, TheStrip) {
    open();
    control("shpStrum(1)").show();
    control("shpStrum(5)").show();
    control("Image3").setFixedWidth(60);
    QApplication::processEvents();
    expectPicture(pictured(control("Image3"), {}), "strum_strip");
}

TEST_F(ChordLooks, ItsControlsInTheirPlaces) {
    open();
    expectLayout(*form, "chord_manager_layout");
    auto& tabs = control<QTabWidget>("SSTab1");
    expectLayout(*tabs.widget(0), "calculator_layout");
    expectLayout(*tabs.widget(1), "bank_layout");
    expectLayout(*tabs.widget(2), "options_layout");
}

TEST_F(ChordLooks, TheCreatorsControlsInTheirPlaces) {
    frmChordTypeCreator creator(context, nullptr);
    creator.Form_Load();
    expectLayout(creator, "creator_layout");
}

} // namespace
} // namespace tabrova::testing
