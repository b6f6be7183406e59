// What is committed is what its generator makes: the sprite sheets, the default language, the examples.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QDir source(TABROVA_SOURCE_DIR);

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class Generated : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    static void run(const QString& generator, const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QDir(qEnvironmentVariable("TABROVA_BIN")).filePath(generator), arguments);
        ASSERT_TRUE(process.waitForFinished(300000)) << generator.toStdString();
        ASSERT_EQ(process.exitStatus(), QProcess::NormalExit);
        ASSERT_EQ(process.exitCode(), 0);
    }

    QTemporaryDir folder;
};

// Where two images differ first, for the eye; a place outside both if they do not.
QPoint firstDifference(const QImage& one, const QImage& other) {
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y)) return {x, y};
    return {-1, -1};
}

TEST_F(Generated, SheetsAreTheCommittedOnesPixelByPixel) {
    run("make_sheet", {folder.path()});
    const QStringList names = QDir(folder.path()).entryList({"*.png"}, QDir::Files);
    EXPECT_EQ(names, QDir(source.filePath("assets")).entryList({"*.png"}, QDir::Files));
    EXPECT_EQ(names.size(), 4);
    for (const QString& name : names) {
        const QImage drawn(path(name));
        const QImage committed(source.filePath("assets/" + name));
        ASSERT_EQ(drawn.size(), committed.size()) << name.toStdString();
        EXPECT_EQ(drawn.format(), committed.format()) << name.toStdString();
        const QPoint place = firstDifference(drawn, committed);
        EXPECT_EQ(place, QPoint(-1, -1)) << name.toStdString() << " at " << place.x() << "," << place.y();
    }
}

TEST_F(Generated, TheDefaultLanguageIsTheCommittedOne) {
    run("default_language", {path("lang.trl")});
    const QByteArray written = contentOf(path("lang.trl"));
    EXPECT_GT(written.size(), 1000);
    EXPECT_EQ(written, contentOf(source.filePath("assets/lang.trl")));
    EXPECT_EQ(written, contentOf(source.filePath("assets/languages/English/lang.trl")));
}

TEST_F(Generated, ExamplesAreTheCommittedOnesByteByByte) {
    QStringList written;
    for (const QFileInfo& readable :
         QDir(source.filePath("examples/compose")).entryInfoList({"*.tab"}, QDir::Files)) {
        const QString name = readable.completeBaseName() + ".tr3";
        run("compose_example", {readable.filePath(), path(name)});
        EXPECT_EQ(contentOf(path(name)), contentOf(source.filePath("examples/" + name)))
            << name.toStdString();
        written.append(name);
    }
    EXPECT_EQ(written, QDir(source.filePath("examples")).entryList({"*.tr3"}, QDir::Files));
    EXPECT_FALSE(written.isEmpty());
}

} // namespace
