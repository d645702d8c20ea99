// The tool that writes the drawings as files.

#include "ArtPainter.h"
#include "TemporaryFolder.h"

#include <QDir>
#include <QImage>
#include <QProcess>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

int run(const QStringList& arguments) {
    QProcess tool;
    tool.start(QStringLiteral(ORMIVA_ART_PREVIEW), arguments);
    return tool.waitForFinished() ? tool.exitCode() : -1;
}

} // namespace

TEST(ArtPreview, WritesEveryAnimalAndThePlainCreature) {
    const TemporaryFolder folder;
    ASSERT_EQ(run({folder.path()}), 0);
    QStringList expected;
    for (const QString& key : ArtPainter::known() + QStringList{QStringLiteral("unknown")})
        expected.append(key + QStringLiteral(".png"));
    expected.sort();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name), expected);
    const QImage unknown(folder.file(QStringLiteral("unknown.png")));
    EXPECT_EQ(unknown.size(), QSize(256, 256));
    EXPECT_EQ(qAlpha(unknown.pixel(2, 128)), 0);
    EXPECT_EQ(unknown.pixelColor(100, 150), QColor::fromRgb(0xC9, 0x8A, 0x3B));
}

TEST(ArtPreview, TakesSizeColorsBadgeAndSheet) {
    const TemporaryFolder folder;
    ASSERT_EQ(run({folder.path(), QStringLiteral("100"), QStringLiteral("102030"), QStringLiteral("405060"),
                   QStringLiteral("--badge"), QStringLiteral("--sheet")}),
              0);
    const QImage unknown(folder.file(QStringLiteral("unknown.png")));
    EXPECT_EQ(unknown.size(), QSize(100, 100));
    EXPECT_EQ(unknown.pixelColor(45, 60), QColor::fromRgb(0x10, 0x20, 0x30));
    EXPECT_GT(qAlpha(unknown.pixel(5, 50)), 200);
    EXPECT_FALSE(QImage(folder.file(QStringLiteral("sheet.png"))).isNull());
}

TEST(ArtPreview, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder folder;
    EXPECT_EQ(run({}), 2);
    EXPECT_EQ(run({folder.path(), QStringLiteral("0")}), 2);
    EXPECT_EQ(run({folder.path(), QStringLiteral("big")}), 2);
    EXPECT_EQ(run({folder.path(), QStringLiteral("100"), QStringLiteral("102030")}), 2);
    EXPECT_EQ(run({QStringLiteral("/proc/none")}), 1);
}

} // namespace ormiva::testing
