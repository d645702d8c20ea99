// For whoever works on a component: kit-gallery shows all of them in a window, kit-gallery FOLDER draws them
// into FOLDER in every theme, and in the first one at several zooms.

#include "OMHelp.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "OMRender.h"
#include "OMStore.h"
#include "OMThemes.h"
#include "PageRenderer.h"
#include "SampleData.h"
#include "VLKKit.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace ormiva;

QUrl page(const char* name) {
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Ormiva/Gallery/") + QString::fromUtf8(name));
}

bool drawAll(const QString& folder) {
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "%s could not be made.\n", qPrintable(folder));
        return false;
    }
    OMRender::snapshotMode = true;
    constexpr int width = 1100;
    QQmlEngine engine;
    QQmlComponent picture(&engine, page("GalleryPicture.qml"));
    bool drawn = true;
    VLZoom::setValue(1);
    for (const VLKTheme& theme : VLKThemes::all()) {
        VLKThemes::setCurrentID(theme.id);
        drawn = PageRenderer::shot(theme.id, picture, width, folder) && drawn;
    }
    VLKThemes::setCurrentID(VLKThemes::defaultID());
    for (const int percent : {85, 150, 200}) {
        VLZoom::setValue(percent / 100.0);
        drawn = PageRenderer::shot(QStringLiteral("zoom-%1").arg(percent), picture, width, folder) && drawn;
    }
    return drawn;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    const QApplication application(argc, argv);
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QApplication::setFont(font);

    // Nothing here touches the user's own preferences and records.
    const QTemporaryDir home;
    OMPrefs::useFile(home.filePath(QStringLiteral("gallery.ini")));
    VLKThemes::setDefaultID(OMThemes::canopyID);
    VLKKit::install(OMInfo::appName, {}, OMThemes::extras());
    OMStore::setShared(std::make_unique<OMStore>(home.filePath(QStringLiteral("gallery.sqlite"))));
    SampleData::add(*OMStore::shared());

    int status = 0;
    if (argc > 1) {
        status = drawAll(QApplication::arguments().at(1)) ? 0 : 1;
    } else {
        QQmlApplicationEngine engine(page("GalleryWindow.qml"));
        status = engine.rootObjects().isEmpty() ? 1 : QApplication::exec();
    }
    OMStore::setShared(nullptr);
    return status;
}
