// A form's texts: the built-in ones, those of a file as far as it goes, and the kinds of controls.
#include "core/language/language_file.h"
#include "forms/captions.h"

#include "core/language/language_lines.h"
#include "forms/control_names.h"
#include "forms/named.h"

#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova {
namespace {

class Captions : public ::testing::Test {
  protected:
    // Lines "1" to `last`, each its own number.
    void writeNumberedLines(int last) {
        std::ofstream file(activeLanguageFile(folder()), std::ios::binary);
        for (int number = 1; number <= last; ++number)
            file << number << "\r\n";
    }
    std::filesystem::path folder() const { return home.path().toStdString(); }

    QTemporaryDir home;
};

TEST_F(Captions, EachLineGoesToItsControl) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    QLabel* title = named(new QLabel(&form), "Label1");
    QPushButton* done = named(new QPushButton(&form), "Command1");
    writeNumberedLines(343);
    loadLanguage(form, folder());
    EXPECT_EQ(form.windowTitle(), "221");
    EXPECT_EQ(title->text(), "222");
    EXPECT_EQ(done->text(), "229");
}

TEST_F(Captions, AShortFileLeavesTheRestAtTheBuiltInTexts) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    QLabel* title = named(new QLabel(&form), "Label1");
    QLabel* author = named(new QLabel(&form), "Label2");
    writeNumberedLines(222);
    loadLanguage(form, folder());
    EXPECT_EQ(title->text(), "222");
    EXPECT_EQ(author->text(), "Author:");
}

TEST_F(Captions, WithoutAFileAllTextsAreTheBuiltInOnes) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    loadLanguage(form, folder());
    EXPECT_EQ(form.windowTitle(), "File Properties");
}

TEST_F(Captions, AShorterFileBringsTheBuiltInTextsBack) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    QPushButton* done = named(new QPushButton(&form), "Command1");
    writeNumberedLines(343);
    loadLanguage(form, folder());
    writeNumberedLines(3);
    loadLanguage(form, folder());
    EXPECT_EQ(done->text(), "Done");
}

TEST_F(Captions, AreNoMarkupAndMayBeEmpty) {
    QDialog form;
    form.setObjectName("frmChordWizard");
    QLabel* title = named(new QLabel(&form), "lblTitle");
    loadLanguage(form, folder());
    EXPECT_EQ(title->text(), "<no chord>");
    EXPECT_EQ(title->textFormat(), Qt::PlainText);
    std::ofstream(activeLanguageFile(folder())) << std::string(400, '\n');
    loadLanguage(form, folder());
    EXPECT_EQ(title->text(), "");
}

TEST_F(Captions, GoToMenusTabsGroupsAndToolTips) {
    QDialog form;
    form.setObjectName("frmOptions");
    auto* tabs = named(new QTabWidget(&form), "OptionsTabs");
    tabs->addTab(new QWidget, "");
    tabs->addTab(new QWidget, "");
    auto* group = named(new QGroupBox(&form), "grpSynthesizer");
    auto* test = named(new QPushButton(&form), "cmdTestSound");
    loadLanguage(form, folder());
    EXPECT_EQ(tabs->tabText(0), "Sound");
    EXPECT_EQ(tabs->tabText(1), "Appearance");
    EXPECT_EQ(group->title(), "Built-in Synthesizer");
    EXPECT_EQ(test->text(), "Test");
    EXPECT_EQ(test->toolTip(), "Play a chord on the output device");

    QWidget main;
    main.setObjectName("frmMain");
    QMenu menu(&main);
    QAction* item = named(menu.addAction(""), "mnuFileNew");
    auto* button = named(new QPushButton(&main), "Toolbar1(new)");
    button->setProperty("key", "Ctrl+N");
    loadLanguage(main, folder());
    EXPECT_EQ(item->text(), "&New");
    EXPECT_EQ(button->toolTip(), "New (Ctrl+N)");
    EXPECT_EQ(button->accessibleName(), "New (Ctrl+N)");
}

TEST_F(Captions, WhatShowsNoneIsCalledAsItsLabelIs) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    QWidget* box = named(new QLineEdit("A Song", &form), "txtTitle");
    auto* button = named(new QPushButton("Change", &form), "button");
    labelOf(box, "Label1", &form);
    labelOf(button, "Label2", &form);
    loadLanguage(form, folder());
    EXPECT_EQ(box->accessibleName(), "Title:");
    EXPECT_EQ(button->accessibleName(), ""); // its own caption
    writeNumberedLines(343);
    loadLanguage(form, folder());
    EXPECT_EQ(box->accessibleName(), "222");
}

TEST_F(Captions, AControlIsCalledAsTheOneThatItIsNamedAfter) {
    QWidget main;
    main.setObjectName("frmMain");
    QMenu menu(&main);
    named(menu.addAction(""), "mnuStaff");
    named(new QLabel(&main), "lblToolTip2(3)");
    auto* bar = named(new QWidget(&main), "VScroll1");
    auto* panel = named(new QWidget(&main), "picNoteSelector");
    auto* page = named(new QWidget(&main), "picDocument");
    auto* lost = named(new QWidget(&main), "lost");
    nameAfter(bar, "mnuStaff");
    nameAfter(panel, "lblToolTip2(3)");
    nameAfter(lost, "nobody");
    loadLanguage(main, folder());
    EXPECT_EQ(bar->accessibleName(), "Staff");
    EXPECT_EQ(panel->accessibleName(), "Choose a Fret:");
    EXPECT_EQ(page->accessibleName(), "Tablature Page"); // its own line
    EXPECT_EQ(lost->accessibleName(), "");
}

TEST_F(Captions, AnEntryIsCalledAsItsHintSays) {
    QDialog form;
    form.setObjectName("frmScaleWizard");
    auto* box = named(new QLineEdit(&form), "Txt_flname");
    loadLanguage(form, folder());
    EXPECT_EQ(box->toolTip(), "Name of the Scale Type");
    EXPECT_EQ(box->accessibleName(), "Name of the Scale Type");
}

TEST_F(Captions, MessagesGoToTheForm) {
    QDialog form;
    form.setObjectName("frmMetronome");
    std::map<std::string, QString> messages;
    writeNumberedLines(250);
    loadLanguage(form, folder(),
                 [&](std::string_view name, const QString& text) { messages[std::string(name)] = text; });
    EXPECT_EQ(messages["start"], "250");
    EXPECT_EQ(messages["stop"], "Stop");
    loadLanguage(form, folder()); // nobody listens
}

TEST_F(Captions, OfANameReachEveryControlOfItsArray) {
    QDialog form;
    form.setObjectName("frmBandManager");
    QList<QPushButton*> buttons;
    for (int index = 0; index < 6; ++index)
        buttons.append(named(new QPushButton(&form), QString("sndEmail(%1)").arg(index)));
    QLabel* single = named(new QLabel(&form), "Label2");
    QLabel* member = named(new QLabel("untouched", &form), "Label2(1)");
    QPushButton* option = named(new QPushButton(&form), "mnuOption(1)");
    loadLanguage(form, folder());
    for (const QPushButton* button : buttons)
        EXPECT_EQ(button->text(), "Send E-Mail");
    EXPECT_EQ(single->text(), "Member Name:");
    EXPECT_EQ(member->text(), "untouched"); // a control of the very name comes first
    EXPECT_EQ(option->text(), "Gig Log ");
}

TEST_F(Captions, AFormsDialogsAreOtherForms) {
    QDialog form;
    form.setObjectName("frmFileProperties");
    QDialog dialog(&form);
    dialog.setObjectName("frmOther");
    QLabel* other = named(new QLabel("untouched", &dialog), "Label1");
    loadLanguage(form, folder());
    EXPECT_EQ(other->text(), "untouched");
    EXPECT_EQ(controlNamed(form, "Label1"), nullptr);
    EXPECT_EQ(controlNamed(dialog, "label1"), other);
}

} // namespace
} // namespace tabrova
