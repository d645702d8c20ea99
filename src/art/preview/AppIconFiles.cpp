// Writes the program's icon as a desktop looks for it: app-icon-files FOLDER makes FOLDER/hicolor/… with a
// picture in each size and a scalable one. The build runs it.

#include "AppIcon.h"

#include "OMInfo.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QSaveFile>
#include <QSvgGenerator>

#include <cstdio>

namespace {

using namespace ormiva;

QByteArray png(int edge) {
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    AppIcon::paint(painter, edge);
    painter.end();
    QBuffer buffer;
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QByteArray svg() {
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(OMInfo::appName);
    generator.setSize({128, 128});
    generator.setViewBox(QRect(0, 0, 128, 128));
    QPainter painter(&generator);
    AppIcon::paint(painter, 128);
    painter.end();
    return buffer.data();
}

bool save(const QByteArray& data, const QDir& folder, const QString& suffix) {
    const QString path = folder.filePath(OMInfo::identity + suffix);
    QSaveFile file(path);
    if (!data.isEmpty() && folder.mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
        file.write(data) == data.size() && file.commit())
        return true;
    std::fprintf(stderr, "%s could not be written.\n", qPrintable(path));
    return false;
}

bool saveAll(const QString& folder) {
    for (const int edge : AppIcon::sizes)
        if (!save(png(edge), folder + QStringLiteral("/hicolor/%1x%1/apps").arg(edge),
                  QStringLiteral(".png")))
            return false;
    return save(svg(), folder + QStringLiteral("/hicolor/scalable/apps"), QStringLiteral(".svg"));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("app-icon-files FOLDER\n", stderr);
        return 2;
    }
    return saveAll(QGuiApplication::arguments().at(1)) ? 0 : 1;
}
