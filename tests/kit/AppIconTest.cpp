#include "AppIcon.h"

#include "Printers.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

QImage painted(int edge) {
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    AppIcon::paint(painter, edge);
    return image;
}

} // namespace

TEST(AppIcon, IsAChameleonOnTheGreenBadge) {
    const QImage image = painted(100);
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
    const QColor casque = image.pixelColor(72, 30);
    EXPECT_GT(casque.green(), casque.red() + 30);
    EXPECT_GT(casque.green(), 130);
    const QColor plate = image.pixelColor(30, 25);
    EXPECT_GT(plate.green(), plate.blue());
    EXPECT_LT(plate.green(), 130);
}

TEST(AppIcon, IsPaintedAtEachSizeThatADesktopAsksFor) {
    QList<QSize> expected;
    for (const int edge : AppIcon::sizes)
        expected.append({edge, edge});
    const QIcon icon = AppIcon::icon();
    EXPECT_EQ(icon.availableSizes(), expected);
    EXPECT_EQ(icon.pixmap(QSize(48, 48)).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
              painted(48));
}

TEST(AppIcon, StandsInTheIconFoldersOfADesktop) {
    const QTemporaryDir folder;
    ASSERT_EQ(QProcess::execute(QStringLiteral(ORMIVA_APP_ICON_FILES), {folder.path()}), 0);
    for (const int edge : AppIcon::sizes) {
        const QImage image(folder.filePath(u"hicolor/%1x%1/apps/com.ventrel.ormiva.png"_qs.arg(edge)));
        EXPECT_EQ(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), painted(edge)) << edge;
    }
    QFile scalable(folder.filePath(u"hicolor/scalable/apps/com.ventrel.ormiva.svg"_qs));
    ASSERT_TRUE(scalable.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&scalable);
    int shapes = 0;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"path")
            ++shapes;
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(shapes, 4 + 14); // those of the badge and of the chameleon
}

TEST(AppIcon, SaysWhatCouldNotBeWritten) {
    QProcess process;
    process.start(QStringLiteral(ORMIVA_APP_ICON_FILES), {u"/dev/null/icons"_qs});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains("could not be written"));
}

} // namespace ormiva::testing
