// Which controls belong to a form, and what each kind of control does with a text.
#include "core/language/language_file.h"
#include "forms/control_names.h"

#include "forms/captions.h"
#include "forms/named.h"
#include "forms/text_edges.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

class Names : public ::testing::Test {
  protected:
    Names() { form.setObjectName("frmFileProperties"); }
    std::filesystem::path folder() const { return home.path().toStdString(); }
    // Line 222 of the language file, which is the caption of Label1.
    void writeLine222(const std::string& text) {
        std::ofstream file(activeLanguageFile(folder()), std::ios::binary);
        for (int number = 1; number < 222; ++number)
            file << "\r\n";
        file << text << "\r\n";
    }

    QTemporaryDir home;
    QDialog form;
};

TEST_F(Names, OnlyWindowsThatAreFormsTakeTheirControlsAway) {
    QWidget panel(&form);
    panel.setObjectName("frmPanel"); // no window
    QLabel* inPanel = named(new QLabel(&panel), "inPanel");
    QDialog box(&form);
    box.setObjectName("box"); // a window, but no form
    QLabel* inBox = named(new QLabel(&box), "inBox");
    QDialog other(&form);
    other.setObjectName("FRMother");
    QLabel* inOther = named(new QLabel(&other), "inOther");
    EXPECT_TRUE(belongsToForm(&form, &form));
    EXPECT_TRUE(belongsToForm(inPanel, &form));
    EXPECT_TRUE(belongsToForm(inBox, &form));
    EXPECT_FALSE(belongsToForm(inOther, &form));
    EXPECT_TRUE(belongsToForm(inOther, &other));
    EXPECT_FALSE(belongsToForm(&form, &other));
    EXPECT_FALSE(belongsToForm(nullptr, &form));
    EXPECT_EQ(controlNamed(form, "INBOX"), inBox);
    EXPECT_EQ(controlNamed(form, "inPanel"), inPanel);
    EXPECT_EQ(controlNamed(form, "inOther"), nullptr);
    EXPECT_EQ(controlNamed(form, "nothing"), nullptr);
}

TEST_F(Names, ControlsWithoutANameAreNotListed) {
    QLabel* label = named(new QLabel(&form), "Label1");
    new QLabel(&form);
    QDialog other(&form);
    other.setObjectName("frmOther");
    named(new QLabel(&other), "Label2");
    EXPECT_EQ(namedControls(form), QList<QObject*>{label});
}

TEST_F(Names, ATextOfAFileIsCutBehind250Characters) {
    QLabel* label = named(new QLabel(&form), "Label1");
    for (const int length : {249, 250, 251, 400}) {
        writeLine222(std::string(static_cast<std::size_t>(length), 'w') + "");
        loadLanguage(form, folder());
        EXPECT_EQ(label->text(), QString(std::min(length, 250), 'w')) << length;
    }
}

TEST_F(Names, EveryKindOfControlTakesItsCaption) {
    auto* line = named(new QLineEdit(&form), "Label1");
    writeLine222("typed");
    loadLanguage(form, folder());
    EXPECT_EQ(line->text(), "typed");
    delete line;
    auto* box = named(new QCheckBox(&form), "label1");
    loadLanguage(form, folder());
    EXPECT_EQ(box->text(), "typed");
}

TEST_F(Names, AToolTipWithoutAKeyIsItsTextAlone) {
    QWidget main;
    main.setObjectName("frmMain");
    auto* button = named(new QPushButton(&main), "Toolbar1(new)");
    auto* label = named(new QLabel(&main), "Toolbar1(open)");
    showBuiltInCaptions(main);
    EXPECT_EQ(button->toolTip(), "New");
    EXPECT_EQ(button->accessibleName(), "New");
    EXPECT_EQ(label->toolTip(), "Open");
    EXPECT_EQ(label->accessibleName(), ""); // only a button is named after its hint
}

TEST_F(Names, AFormWithoutItsTabsKeepsQuiet) {
    QDialog options;
    options.setObjectName("frmOptions");
    auto* tabs = named(new QTabWidget(&options), "OtherTabs");
    tabs->addTab(new QWidget, "first");
    showBuiltInCaptions(options);
    EXPECT_EQ(tabs->tabText(0), "first");
}

TEST_F(Names, ATitleMayHoldWhatTheToolkitTakesForAMark) {
    for (const char* title : {"plain", "A[*]B", "[*]", "[*][*]", "[* ]"}) {
        setTitleOf(form, title);
        EXPECT_EQ(titleOf(form), title);
    }
    setTitleOf(form, "A[*]B");
    EXPECT_EQ(form.windowTitle(), "A[*][*]B");
}

} // namespace
} // namespace tabrova
