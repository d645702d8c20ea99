// For whoever changes a drawing: art-preview FOLDER [SIZE [P S]] [--badge] [--sheet]
// writes {key}.png for every animal and unknown.png, SIZE pixels wide and high (256 unless told otherwise),
// in the colours P and S. With --badge they stand on the badge, with --sheet sheet.png shows them all.

#include "ArtPainter.h"
#include "SpeciesIcon.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

struct Request {
    QString folder;
    int size = 256;
    QStringList palette = {QStringLiteral("C98A3B"), QStringLiteral("F2E3B3")};
    bool badge = false;
    bool sheet = false;
};

constexpr int largest = 4096;

std::optional<Request> requestOf(QStringList arguments) {
    Request request;
    request.badge = arguments.removeAll(QStringLiteral("--badge")) > 0;
    request.sheet = arguments.removeAll(QStringLiteral("--sheet")) > 0;
    if (arguments.isEmpty() || arguments.size() == 3 || arguments.size() > 4)
        return std::nullopt;
    request.folder = arguments.first();
    if (arguments.size() > 1)
        request.size = arguments.at(1).toInt();
    if (arguments.size() == 4)
        request.palette = arguments.mid(2);
    if (request.size < 1 || request.size > largest)
        return std::nullopt;
    return request;
}

QImage emptyImage(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

bool save(const QImage& image, const Request& request, const QString& name) {
    const QString path = QDir(request.folder).filePath(name + QStringLiteral(".png"));
    if (image.save(path))
        return true;
    std::fprintf(stderr, "%s could not be written.\n", qPrintable(path));
    return false;
}

bool writePictures(const Request& request, const QStringList& names) {
    for (const QString& name : names) {
        QImage image = emptyImage(request.size, request.size);
        QPainter painter(&image);
        ormiva::SpeciesIcon::paintIcon(painter, request.size, name, request.palette, request.badge);
        painter.end();
        if (!save(image, request, name))
            return false;
    }
    return true;
}

bool writeSheet(const Request& request, const QStringList& names) {
    constexpr int columns = 6;
    constexpr int label = 18;
    const int width = std::max(request.size, 130); // room for the longest key
    const int height = request.size + label;
    QImage image =
        emptyImage(columns * width, static_cast<int>((names.size() + columns - 1) / columns) * height);
    image.fill(QColor::fromRgb(0x33, 0x3f, 0x37));
    QPainter painter(&image);
    painter.setPen(Qt::white);
    for (int i = 0; i < names.size(); ++i) {
        painter.save();
        painter.translate(i % columns * width, i / columns * height);
        painter.drawText(QRect(0, request.size, width, label), Qt::AlignCenter, names.at(i));
        painter.translate((width - request.size) / 2, 0);
        ormiva::SpeciesIcon::paintIcon(painter, request.size, names.at(i), request.palette, request.badge);
        painter.restore();
    }
    painter.end();
    return save(image, request, QStringLiteral("sheet"));
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto request = requestOf(QGuiApplication::arguments().mid(1));
    if (!request) {
        std::fputs("art-preview FOLDER [SIZE [P S]] [--badge] [--sheet]\n", stderr);
        return 2;
    }
    if (!QDir().mkpath(request->folder)) {
        std::fprintf(stderr, "%s could not be made.\n", qPrintable(request->folder));
        return 1;
    }
    const QStringList names = ormiva::ArtPainter::known() + QStringList{QStringLiteral("unknown")};
    return writePictures(*request, names) && (!request->sheet || writeSheet(*request, names)) ? 0 : 1;
}
