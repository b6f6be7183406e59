// Names that are no text: of a document, of the program's own folder, of the home folder and of a sound bank
// in it. The shell passes their bytes on as they are.
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

namespace tabrova::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* Name = "\xFF\xFE";

class Names : public ::testing::Test {
  protected:
    fs::path folder() const { return home.path().toStdString(); }
    static QString binary(const char* name) { return qEnvironmentVariable("TABROVA_BIN") + "/" + name; }

    // "$0" is the binary, "$1" the test's folder, "$name" the name.
    struct Ended {
        int code;
        QByteArray output;
    };
    Ended shell(const char* name, const QString& script) {
        QProcess process;
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start("/bin/sh",
                      {"-c", "name=\"$(printf '\\377\\376')\"\n" + script, binary(name), home.path()});
        EXPECT_TRUE(process.waitForFinished(120000));
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput()};
    }
    // False where the file system takes only names that are text.
    bool makeFolder() {
        std::error_code failed;
        return fs::create_directory(folder() / Name, failed);
    }
    std::vector<std::string> entries() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    QTemporaryDir home;
    ~Names() override {
        std::error_code failed;
        fs::remove_all(folder(), failed); // which the toolkit could not
    }
};

TEST_F(Names, OfADocumentMayBeAnyBytes) {
    if (!makeFolder()) GTEST_SKIP() << "this file system takes only names that are text";
    const fs::path song = folder() / Name / (std::string(Name) + " song.tr3");
    fs::copy_file(TABROVA_SOURCE_DIR "/examples/amazing-grace.tr3", song);
    for (const char* words : {"\"$1/$name/$name song.tr3\"", "\"$1/$name/$name\" song.tr3"}) {
        const Ended ended = shell("tabrova-drive", QString("echo doc | \"$0\" ") + words);
        EXPECT_EQ(QJsonDocument::fromJson(ended.output).object()["Title"].toString(), "Amazing Grace")
            << words;
    }
}

TEST_F(Names, OfTheProgramsFolderMayBeAnyBytes) {
    if (!makeFolder()) GTEST_SKIP() << "this file system takes only names that are text";
    fs::copy_file(TABROVA_SOURCE_DIR "/assets/languages/German/lang.trl", folder() / Name / "lang.trl");
    const Ended ended = shell("tabrova-drive", "echo 'get mnuFile caption' | \"$0\" --home \"$1/$name\"");
    EXPECT_EQ(QJsonDocument::fromJson(ended.output).object()["value"].toString(), "&Datei");
}

// The program itself: it fills its folder there, starts beside a sound bank of such a name, and leaves
// nothing in a folder whose name only looks alike.
TEST_F(Names, OfTheHomeFolderAndOfASoundBankMayBeAnyBytes) {
    if (!makeFolder()) GTEST_SKIP() << "this file system takes only names that are text";
    const QString script =
        "export HOME=\"$1/$name\" QT_QPA_PLATFORM=offscreen PULSE_SERVER=unix:/nowhere\n"
        "export XDG_RUNTIME_DIR=\"$1\" TABROVA_SOUNDFONT=\"$HOME/$name.sf2\"\n"
        "unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME TABROVA_HOME\n"
        "own=\"$HOME/.local/share/tabrova\"\n"
        "\"$0\" & program=$!\n"
        "for each in $(seq 200); do [ -s \"$own/genmidi.txt\" ] && break; sleep 0.1; done\n"
        "sleep 1\n"
        "kill -TERM $program; wait $program";
    EXPECT_EQ(shell("tabrova", script).code, 0);
    const fs::path own = folder() / Name / ".local" / "share" / "tabrova";
    EXPECT_TRUE(fs::is_regular_file(own / "lang.trl"));
    EXPECT_EQ(entries(), std::vector<std::string>{Name});
    fs::copy_file(TABROVA_SOURCE_DIR "/assets/genmidi.txt", own / (std::string(Name) + ".sf2"));
    EXPECT_EQ(shell("tabrova", script).code, 0);
    EXPECT_EQ(entries(), std::vector<std::string>{Name});
}

} // namespace
} // namespace tabrova::testing
