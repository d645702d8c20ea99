#include "PageRenderer.h"

#include "Failure.h"
#include "VLKThemes.h"
#include "VLKitTheme.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QtDebug>

#include <cmath>
#include <cstdio>
#include <memory>

namespace ormiva::PageRenderer {

namespace {

/// A picture of more than that many bytes comes from a page that doesn't end.
constexpr qint64 maxBytes = 256LL * 1024 * 1024;
/// How often a page may change its mind about its height. A list knows it only when it has made all its rows.
constexpr int maxRounds = 50;
/// In how many rounds on end a settled page leaves its height alone.
constexpr int calmRounds = 2;

/// A window that never comes up.
struct Stage {
    QQuickRenderControl control;
    QQuickWindow window{&control};
};

/// The root of the page, in the window from its first binding on; null when it is no item or can't be made.
std::unique_ptr<QQuickItem> made(QQmlComponent& page, Stage& stage, int width,
                                 const QVariantMap& properties) {
    QQmlContext* context = page.creationContext();
    if (page.isReady()) {
        std::unique_ptr<QObject> object(page.beginCreate(context ? context : page.engine()->rootContext()));
        auto* item = qobject_cast<QQuickItem*>(object.get());
        if (item) {
            page.setInitialProperties(item, properties);
            item->setParentItem(stage.window.contentItem());
            item->setWidth(width);
        }
        page.completeCreate();
        if (item && !page.isError()) {
            object.release();
            return std::unique_ptr<QQuickItem>(item);
        }
        if (object && !item)
            qWarning("The root of a page to be drawn is no Item.");
    }
    for (const QQmlError& error : page.errors())
        qWarning("%s", qUtf8Printable(error.toString()));
    return nullptr;
}

/// Gives the page its width and the height that it wants, until it wants no other. 0 when it never settles.
int settle(QQuickItem& root, Stage& stage, int width) {
    const double own = root.height();
    const auto wanted = [&] {
        return static_cast<int>(std::ceil(root.implicitHeight() > 0 ? root.implicitHeight() : own));
    };
    int height = wanted() > 0 ? wanted() : width; // A list without room would make no rows to tell by.
    int calm = 0;
    for (int round = 0; round < maxRounds && calm < calmRounds; ++round) {
        root.setSize(QSizeF(width, height));
        stage.window.contentItem()->setSize(root.size());
        QCoreApplication::sendPostedEvents(); // What was put off until the layout is done.
        stage.control.polishItems();
        calm = wanted() == height ? calm + 1 : 0;
        height = wanted();
    }
    return calm == calmRounds ? height : 0;
}

void print(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

bool written(const QImage& image, const QString& path) {
    QBuffer buffer;
    if (!image.save(&buffer, "PNG"))
        return false;
    try {
        WholeFile::write(path, buffer.data());
        return true;
    } catch (const Failure& failure) {
        qWarning("%s", qUtf8Printable(failure.description()));
        return false;
    }
}

} // namespace

std::optional<QImage> draw(QQmlComponent& page, int width, const QVariantMap& properties) {
    const QString software = QStringLiteral("software");
    if (QQuickWindow::sceneGraphBackend() != software)
        QQuickWindow::setSceneGraphBackend(software); // Counts only before the first window.
    Stage stage;
    if (QQuickWindow::sceneGraphBackend() != software) {
        qWarning("Pages are drawn by the software scene graph only.");
        return std::nullopt;
    }
    const auto root = made(page, stage, width, properties);
    const int height = root && width > 0 ? settle(*root, stage, width) : 0;
    if (height <= 0 || 4LL * width * height > maxBytes)
        return std::nullopt;

    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::black);
    stage.window.setColor(VLKThemes::current().kitTheme().bg);
    stage.window.setGeometry(0, 0, width, height);
    stage.window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&image));
    stage.control.polishItems();
    stage.control.beginFrame();
    stage.control.sync();
    stage.control.render();
    stage.control.endFrame();
    return image;
}

bool shot(const QString& name, QQmlComponent& page, int width, const QString& folder,
          const QVariantMap& properties) {
    const auto image = draw(page, width, properties);
    if (!image || !written(*image, folder + u'/' + name + QStringLiteral(".png"))) {
        print(QStringLiteral("could not render ") + name);
        return false;
    }
    print(QStringLiteral("wrote %1.png %2x%3").arg(name).arg(image->width()).arg(image->height()));
    return true;
}

} // namespace ormiva::PageRenderer
