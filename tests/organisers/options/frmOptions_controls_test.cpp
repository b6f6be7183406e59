// The options' controls: where they stand, which of them take the keyboard, and what they hold back.
#include "organisers/options/frmOptions.h"
#include "platform/recording_services.h"
#include "tests/forms/described_layout.h"
#include "tests/tabview/plain_blitter.h"
#include "tests/workbench/tool_bench.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>

namespace tabrova {
namespace {

using testing::described;
using testing::text;

class OptionsControls : public testing::ToolBench {
  protected:
    OptionsControls() {
        document().TrackInstruments = {"30"};
        std::filesystem::create_directories(services.programFolder / "languages" / "Deutsch");
        std::filesystem::create_directories(services.programFolder / "languages" / "english");
    }
    void load() {
        form.Form_Load();
        form.show();
    }
    template <class Control = QWidget>
    Control& at(const char* name) {
        return *form.findChild<Control*>(name);
    }
    template <class Layout>
    static Layout& layoutOf(const QWidget& widget) {
        return *qobject_cast<Layout*>(widget.layout());
    }
    QTabWidget& tabs() { return at<QTabWidget>("OptionsTabs"); }

    frmOptions form{context, nullptr};
};

TEST_F(OptionsControls, StandOnTwoTabsInAWindowOf480By500) {
    EXPECT_EQ(form.size(), QSize(480, 500));
    EXPECT_EQ(tabs().count(), 2);
    EXPECT_EQ(text(described(layoutOf<QVBoxLayout>(form))), "OptionsTabs stretch 0\ncmdClose stretch 0\n");
    load();
    form.Form_Opened({nullptr, OptionsTab::Appearance});
    EXPECT_EQ(tabs().currentIndex(), 1);
    form.Form_Opened({nullptr, OptionsTab::Sound});
    EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(OptionsControls, OfTheSound) {
    const auto& column = layoutOf<QVBoxLayout>(*tabs().widget(0));
    EXPECT_EQ(testing::margins(column).toStdString(), "12 12 12 12");
    EXPECT_EQ(text(described(column)), "lblDevices stretch 0\n"
                                       "lst_Devices stretch 1\n"
                                       "lblDeviceGone stretch 0\n"
                                       "grpSynthesizer stretch 0\n"
                                       "space 6 stretch 0\n"
                                       "PlayAllTracks stretch 0\n"
                                       "PlayNone stretch 0\n"
                                       "PlayCurrentTrack stretch 0\n");
    EXPECT_EQ(at("lst_Devices").minimumHeight(), 90);
    EXPECT_TRUE(at<QLabel>("lblDeviceGone").wordWrap());
    EXPECT_EQ(at<QLabel>("lblDevices").buddy(), &at("lst_Devices"));
}

TEST_F(OptionsControls, OfTheSynthesizer) {
    const auto& grid = layoutOf<QGridLayout>(at("grpSynthesizer"));
    EXPECT_EQ(grid.horizontalSpacing(), 12);
    EXPECT_EQ(text(described(grid)), "lblBankTitle 0,0\n"
                                     "lblSoundBank 0,1\n"
                                     "cmdSoundBank 0,2\n"
                                     "lblOutputTitle 1,0\n"
                                     "lblAudioOutput 1,1\n"
                                     "cmdTestSound 1,2\n"
                                     "lblSoundTrouble 2,0 1x3\n"
                                     "column 1 stretch 1\n");
    for (const char* label : {"lblSoundBank", "lblAudioOutput", "lblSoundTrouble"})
        EXPECT_EQ(at<QLabel>(label).textFormat(), Qt::PlainText) << label;
    EXPECT_TRUE(at<QLabel>("lblSoundTrouble").wordWrap());
    // A long name of a bank does not widen the window.
    EXPECT_EQ(at("lblSoundBank").sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    load();
    for (const char* button : {"cmdSoundBank", "cmdTestSound"})
        EXPECT_FALSE(at<QPushButton>(button).autoDefault()) << button;
}

TEST_F(OptionsControls, OfTheAppearance) {
    const auto& column = layoutOf<QVBoxLayout>(*tabs().widget(1));
    EXPECT_EQ(testing::margins(column).toStdString(), "12 12 12 12");
    EXPECT_EQ(text(described(column)), "unnamed stretch 0\n"
                                       "space 6 stretch 0\n"
                                       "chkStats stretch 0\n"
                                       "chkSplash stretch 0\n"
                                       "Check2 stretch 0\n"
                                       "space 6 stretch 0\n"
                                       "lblLanguages stretch 0\n"
                                       "lstLanguages stretch 1\n");
    const auto& grid = layoutOf<QGridLayout>(*at("lstColors").parentWidget());
    EXPECT_EQ(testing::margins(grid).toStdString(), "0 0 0 0");
    EXPECT_EQ(grid.horizontalSpacing(), 24);
    EXPECT_EQ(text(described(grid)), "lblColors 0,0\n"
                                     "lstColors 1,0 4x1\n"
                                     "chkEyeBall 1,1\n"
                                     "chkTABOUT 2,1\n"
                                     "Check1 3,1\n"
                                     "row 4 stretch 1\n"
                                     "column 0 stretch 2\n"
                                     "column 1 stretch 3\n");
    EXPECT_EQ(at<QLabel>("lblColors").buddy(), &at("lstColors"));
    EXPECT_EQ(at<QLabel>("lblLanguages").buddy(), &at("lstLanguages"));
}

TEST_F(OptionsControls, TheColorsAreShownWholeEachWithItsSwatch) {
    auto& colors = at<ListBox>("lstColors");
    const int frame = 2 * colors.frameWidth();
    ASSERT_GT(colors.sizeHintForRow(0), 5);
    EXPECT_EQ(colors.minimumHeight(), 6 * colors.sizeHintForRow(0) + frame);
    EXPECT_EQ(colors.maximumHeight(), colors.minimumHeight());
    EXPECT_EQ(colors.iconSize(), QSize(12, 12));
    EXPECT_EQ(colors.minimumWidth(), colors.sizeHintForColumn(0) + frame + 12);
    const QRgb highlight = form.palette().color(QPalette::Active, QPalette::Highlight).rgb();
    const QRgb expected[] = {0xFFFF0000, 0xFF0000FF, highlight, 0xFF008000, 0xFFFF8000, 0xFF000000};
    ASSERT_EQ(colors.count(), 6);
    for (int row = 0; row < 6; ++row) {
        const QImage seen = colors.item(row)->icon().pixmap(QSize(24, 24), 1.0).toImage();
        QImage swatch(24, 24, QImage::Format_ARGB32_Premultiplied);
        swatch.fill(Qt::transparent);
        QPainter painter(&swatch);
        painter.scale(2, 2);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(128, 128, 128));
        painter.setBrush(QColor::fromRgb(expected[row]));
        painter.drawRoundedRect(QRectF(0.5, 0.5, 11, 11), 2, 2);
        painter.end();
        EXPECT_TRUE(testing::sameImage(seen.convertToFormat(swatch.format()), swatch, "swatch")) << row;
    }
}

TEST_F(OptionsControls, TheTabKeyFollowsTheirOrder) {
    load();
    form.Form_Opened({nullptr, OptionsTab::Appearance});
    at("lstColors").setFocus();
    for (const char* next : {"chkEyeBall", "chkTABOUT", "Check1", "chkStats", "chkSplash", "lstLanguages"}) {
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        ASSERT_NE(form.focusWidget(), nullptr);
        EXPECT_EQ(form.focusWidget()->objectName().toStdString(), next);
    }
}

TEST_F(OptionsControls, EveryDeviceTellsItsWholeNameAndOpensByItsId) {
    load();
    auto& devices = at<ListBox>("lst_Devices");
    ASSERT_EQ(devices.count(), 2);
    for (int row = 0; row < 2; ++row)
        EXPECT_EQ(devices.item(row)->toolTip(), devices.item(row)->text());
    EXPECT_EQ(devices.item(0)->data(Qt::UserRole).toInt(), MidiMapperId);
    EXPECT_EQ(devices.item(1)->data(Qt::UserRole).toInt(), 0);
}

TEST_F(OptionsControls, AnotherLoadListsNothingTwice) {
    load();
    form.Form_Load();
    EXPECT_EQ(at<ListBox>("lst_Devices").count(), 2);
    EXPECT_EQ(at<ListBox>("lstLanguages").count(), 2);
}

TEST_F(OptionsControls, LanguagesAreSortedWithoutRegardToCase) {
    for (const char* name : {"Zulu", "aymara", "Catalan"})
        std::filesystem::create_directories(services.programFolder / "languages" / name);
    load();
    QStringList names;
    for (int row = 0; row < at<ListBox>("lstLanguages").count(); ++row)
        names.append(at<ListBox>("lstLanguages").item(row)->text());
    EXPECT_EQ(names, QStringList({"aymara", "Catalan", "Deutsch", "english", "Zulu"}));
}

TEST_F(OptionsControls, ADoubleClickedLanguageBecomesTheActiveOne) {
    std::ofstream(services.programFolder / "lang.trl") << "old\r\n";
    std::ofstream(services.programFolder / "languages" / "Deutsch" / "lang.trl") << "neu\r\n";
    load();
    auto& languages = at<ListBox>("lstLanguages");
    languages.DoubleClick(); // no row is the current one
    EXPECT_EQ(watcher.languages, 0);
    languages.setCurrentRow(0);
    synthesizer.told = {true, false, "/banks/other.sf2", "", ""};
    languages.DoubleClick();
    EXPECT_EQ(watcher.languages, 1);
    std::string line;
    std::getline(std::ifstream(services.programFolder / "lang.trl"), line);
    EXPECT_EQ(line, "neu\r");
    EXPECT_EQ(at<QLabel>("lblSoundBank").text(), "other.sf2");
    // Without a file of its own a language takes the active one away.
    languages.setCurrentRow(1);
    languages.DoubleClick();
    EXPECT_EQ(watcher.languages, 2);
    EXPECT_FALSE(std::filesystem::exists(services.programFolder / "lang.trl"));
}

TEST_F(OptionsControls, TheLanguageInUseIsMarkedWhereverItStandsAndTheNamesStayPlain) {
    for (const char* name : {"Deutsch", "english"})
        std::ofstream(services.programFolder / "languages" / name / "lang.trl") << "Tabrova\n"
                                                                                << name << "\n";
    std::ofstream(services.programFolder / "lang.trl") << "Tabrova\nenglish\n";
    load();
    form.Form_Opened({nullptr, OptionsTab::Appearance});
    auto& languages = at<ListBox>("lstLanguages");
    const auto row = [&](int at) {
        return languages.viewport()->grab(languages.visualItemRect(languages.item(at))).toImage();
    };
    const QImage plain = row(0), marked = row(1);
    languages.setCurrentRow(0);
    languages.DoubleClick();
    languages.setCurrentRow(-1);
    EXPECT_TRUE(row(0) != plain);
    EXPECT_TRUE(row(1) != marked);
    std::filesystem::create_directories(services.programFolder / "languages" / "Catalan");
    dynamic_cast<FolderList&>(languages).readAgain();
    EXPECT_EQ(languages.item(1)->text(), "Deutsch");
    EXPECT_TRUE(row(0) != row(1));
    std::filesystem::copy_file(services.programFolder / "languages" / "english" / "lang.trl",
                               services.programFolder / "lang.trl",
                               std::filesystem::copy_options::overwrite_existing);
    form.Form_Opened({nullptr, OptionsTab::Appearance});
    EXPECT_TRUE(row(2) == marked);
    EXPECT_EQ(languages.chosenRow(), -1);
}

TEST_F(OptionsControls, TheCloseButtonStandsAtTheLowerRightAndCloses) {
    load();
    const QRect place = at("cmdClose").geometry();
    EXPECT_GT(place.top(), tabs().geometry().bottom());
    EXPECT_EQ(place.right(), tabs().geometry().right());
    EXPECT_LT(place.width(), 200);
    QTest::mouseClick(&at("cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(OptionsControls, TroubleIsShownOnlyWhileTheSynthesizerRuns) {
    load();
    for (const bool running : {true, false})
        for (const char* trouble : {"", "No sound bank was found."}) {
            synthesizer.told = {running, false, "", "", trouble};
            synthesizer.tellChange();
            EXPECT_EQ(at("lblSoundTrouble").isHidden(), !running || *trouble == '\0');
        }
}

TEST_F(OptionsControls, AColorIsTakenFromTheRowThatIsChosen) {
    load();
    auto& colors = at<ListBox>("lstColors");
    bench.editor.setCursorColor(7);
    colors.setCurrentRow(-1);
    colors.Click();
    EXPECT_EQ(bench.editor.page().color, 7u);
    colors.setCurrentRow(0);
    colors.Click();
    EXPECT_EQ(bench.editor.page().color, 0xFFFF0000u);
    colors.setCurrentRow(2);
    colors.Click();
    EXPECT_EQ(bench.editor.page().color, form.palette().color(QPalette::Active, QPalette::Highlight).rgb());
}

TEST_F(OptionsControls, NoDeviceIsOpenedWithoutARow) {
    load();
    midi.take();
    auto& devices = at<ListBox>("lst_Devices");
    devices.setCurrentRow(-1);
    devices.Click();
    EXPECT_TRUE(midi.take().empty());
    EXPECT_EQ(settings->GetSetting("Options", "DeviceIndex", ""), "0");
}

TEST_F(OptionsControls, TheSynthesizerIsNotHeardAnyMoreWhenTheyAreGone) {
    {
        frmOptions other(context, nullptr);
        other.Form_Load();
        EXPECT_TRUE(synthesizer.isHeard());
    }
    EXPECT_FALSE(synthesizer.isHeard());
}

TEST_F(OptionsControls, TheSynthesizersWordsAreTheLanguages) {
    std::ofstream(services.programFolder / "lang.trl") << "";
    load();
    synthesizer.told = {true, false, "", "", ""};
    synthesizer.tellChange();
    EXPECT_EQ(at<QLabel>("lblAudioOutput").text(), "none");
    synthesizer.told = {true, true, "", "", ""};
    synthesizer.tellChange();
    EXPECT_EQ(at<QLabel>("lblAudioOutput").text(), "loading...");
}

TEST_F(OptionsControls, AnotherDeviceShowsTheSynthesizersStateAnew) {
    load();
    synthesizer.told = {true, false, "/banks/new.sf2", "", ""};
    auto& devices = at<ListBox>("lst_Devices");
    devices.setCurrentRow(1);
    devices.Click();
    EXPECT_EQ(at<QLabel>("lblSoundBank").text(), "new.sf2");
}

TEST_F(OptionsControls, TheBankIsAskedForByItsKindOfFile) {
    load();
    at<QPushButton>("cmdSoundBank").click();
    const auto asked = files.take();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].question.kind, FileQuestion::Kind::Open);
    EXPECT_EQ(asked[0].question.filter, "Sound Banks|*.sf2;*.sf3");
    EXPECT_EQ(asked[0].question.defaultExtension, "sf2");
}

} // namespace
} // namespace tabrova
