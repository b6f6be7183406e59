// The words of the command line: which of them are the document, and what the terminal is told.
#include "app/command_line.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tabrova {
namespace {

CommandLine read(const QStringList& words, const QStringList& files = {}) {
    return readCommandLine(words, [&files](const QString& path) { return files.contains(path); });
}

std::string document(const QStringList& words, const QStringList& files = {}) {
    return read(words, files).document.toStdString();
}

TEST(CommandLine, OneWordIsTheDocument) {
    EXPECT_EQ(document({"a.tr3"}, {"a.tr3"}), "a.tr3");
    EXPECT_EQ(document({"missing.tr3"}), "missing.tr3");
    EXPECT_EQ(document({}), "");
    EXPECT_TRUE(read({"a.tr3"}, {"a.tr3"}).told.isEmpty());
    EXPECT_FALSE(read({"a.tr3"}, {"a.tr3"}).exitCode);
}

TEST(CommandLine, APathWithBlanksMayComeInPiecesAndInQuotes) {
    EXPECT_EQ(document({"my", "old", "song.tr3"}, {"my old song.tr3"}), "my old song.tr3");
    EXPECT_EQ(document({"\"my", "song.tr3\""}, {"my song.tr3"}), "\"my song.tr3\"");
    EXPECT_EQ(document({"my", "song.tr3"}), "my song.tr3");
    EXPECT_EQ(document({"\""}), "\"");
}

TEST(CommandLine, OfTwoDocumentsTheFirstOpensAndTheOtherIsTold) {
    const CommandLine line = read({"a.tr3", "b.tr3"}, {"a.tr3", "b.tr3"});
    EXPECT_EQ(line.document, "a.tr3");
    EXPECT_TRUE(line.told.contains("b.tr3"));
    EXPECT_FALSE(line.exitCode);
    const CommandLine blanks = read({"my", "song.tr3", "b.tr3", "c.tr3"}, {"my song.tr3", "b.tr3"});
    EXPECT_EQ(blanks.document, "my song.tr3");
    EXPECT_TRUE(blanks.told.contains("b.tr3 c.tr3"));
}

TEST(CommandLine, QuestionsAreAnsweredAndOtherOptionsRefused) {
    EXPECT_EQ(read({"--help"}).exitCode, 0);
    EXPECT_TRUE(read({"--help"}).told.startsWith("Usage: tabrova [DOCUMENT]\n"));
    EXPECT_EQ(read({"a.tr3", "--version"}).told, "Tabrova 3.0\n");
    EXPECT_EQ(read({"--version"}).exitCode, 0);
    for (const char* word : {"--verbose", "--", "--help=all", "---"}) {
        EXPECT_EQ(read({"a.tr3", word}, {"a.tr3"}).exitCode, 2) << word;
        EXPECT_TRUE(read({word}).told.contains(word));
    }
    EXPECT_FALSE(read({"-v.tr3"}).exitCode);
}

TEST(CommandLine, WordsOfAnyBytesAreKept) {
    char program[] = "tabrova", plain[] = "a b.tr3", bytes[] = "\xff\xfe.tr3";
    char* words[] = {program, plain, bytes};
    const QStringList kept = commandLineWords(3, words);
    ASSERT_EQ(kept.size(), 2);
    EXPECT_EQ(kept[0], "a b.tr3");
    EXPECT_EQ(kept[1].size(), 6);
    EXPECT_FALSE(isThere(kept[1]));
    EXPECT_FALSE(isThere(""));
    EXPECT_TRUE(isThere(QDir::tempPath()));
}

// The program itself, without any display.
struct Ended {
    int code;
    QByteArray output, errors;
};
Ended runProgram(const QStringList& words) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(name);
    program.setProcessEnvironment(environment);
    program.start(qEnvironmentVariable("TABROVA_BIN") + "/tabrova", words);
    EXPECT_TRUE(program.waitForFinished(60000));
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

TEST(CommandLine, TheProgramAnswersWithoutADisplay) {
    const Ended help = runProgram({"--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: tabrova [DOCUMENT]"));
    EXPECT_TRUE(help.errors.isEmpty());
    const Ended version = runProgram({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.output, "Tabrova 3.0\n");
    const Ended other = runProgram({"--fullscreen"});
    EXPECT_EQ(other.code, 2);
    EXPECT_TRUE(other.output.isEmpty());
    EXPECT_TRUE(other.errors.contains("--fullscreen"));
}

} // namespace
} // namespace tabrova
