// The toolkit's own texts in the language of the program.
#include "platform/toolkit_texts.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

class ToolkitTexts : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm"))
            GTEST_SKIP() << "the toolkit's translations are not installed here";
    }
    ~ToolkitTexts() override { showToolkitTextsIn("en"); }
    static QString cancel() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }
};

TEST_F(ToolkitTexts, FollowTheLanguage) {
    EXPECT_EQ(cancel(), "Cancel");
    for (const auto& [language, text] : {std::pair{"de", "Abbrechen"},
                                         {"fr", "Annuler"},
                                         {"it", "Annulla"},
                                         {"ru", "Отмена"},
                                         {"es", "Cancelar"},
                                         {"pt", "Cancelar"},
                                         {"en", "Cancel"}}) {
        showToolkitTextsIn(language);
        EXPECT_EQ(cancel(), text) << language;
    }
}

TEST_F(ToolkitTexts, WhatIsNoLanguageLeavesTheEnglish) {
    for (const char* language : {"", "xx", "../../../etc/passwd", "de/../fr", "%1", "C", "\n"}) {
        showToolkitTextsIn("de");
        showToolkitTextsIn(language);
        EXPECT_TRUE(cancel() == "Cancel") << language << cancel().toStdString();
    }
}

} // namespace
} // namespace tabrova
