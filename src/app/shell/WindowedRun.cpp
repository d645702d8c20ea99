#include "WindowedRun.h"

#include "AppModel.h"
#include "DamageReport.h"
#include "OMDelegate.h"
#include "OMInfo.h"
#include "OMSetup.h"
#include "OMStore.h"
#include "Opener.h"
#include "SingleInstance.h"

#include <QApplication>
#include <QFont>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

namespace ormiva {

const QUrl mainPage(QStringLiteral("qrc:/qt-project.org/imports/Ormiva/Screens/Main.qml"));

namespace {

void say(const QString& sentence) {
    std::fprintf(stderr, "%s\n", sentence.toUtf8().constData());
}

/// While the application object is made: the toolkit aborts when it finds no display, and what it prints
/// helps nobody.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg)
        return;
    if (text.contains(QStringLiteral("platform plugin")))
        say(QStringLiteral("Ormiva needs a graphical desktop, and none could be reached."));
    else
        say(QStringLiteral("Ormiva could not start: ") + text);
    std::_Exit(1);
}

/// The software scene graph starts faster and needs no GPU; the user's own choice wins.
void chooseSceneGraph() {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !qEnvironmentVariableIsSet("QSG_RHI_BACKEND"))
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}

void describeApplication() {
    QGuiApplication::setApplicationDisplayName(OMInfo::appName);
    QGuiApplication::setDesktopFileName(OMInfo::identity);
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    Opener::failed = [](const QUrl& address) {
        AppModel::shared().setMessage(
            QStringLiteral("The page could not be opened in a browser: %1").arg(address.toDisplayString()));
    };
}

void comeForward(QQuickWindow& window, const QByteArray& token) {
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    if (window.windowStates() & Qt::WindowMinimized)
        window.showNormal();
    window.raise();
    window.requestActivate();
}

QString reason(const QList<QQmlError>& errors) {
    return errors.isEmpty() ? QStringLiteral("the page is missing") : errors.first().toString();
}

int showWindow(const QUrl& page, const SingleInstance& instance) {
    QQmlApplicationEngine engine;
    QList<QQmlError> errors;
    engine.setOutputWarningsToStandardError(false);
    const auto collecting = QObject::connect(&engine, &QQmlEngine::warnings, &engine,
                                             [&errors](const QList<QQmlError>& more) { errors += more; });
    engine.load(page);
    auto* window =
        engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    if (!window) {
        say(QStringLiteral("Ormiva's window could not be built: ") + reason(errors));
        return 1;
    }
    QObject::disconnect(collecting);
    engine.setOutputWarningsToStandardError(true);

    QObject::connect(&instance, &SingleInstance::broughtForward, window,
                     [window](const QByteArray& token) { comeForward(*window, token); });
    DamageReport::afterFirstFrame(*window, OMStore::shared());
    return QApplication::exec();
}

} // namespace

int runWindow(int& argc, char** argv, const QUrl& page) {
    const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
    chooseSceneGraph();
    const QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    describeApplication();

    OMSetup::configure();
    OMSetup::openStore();
    OMSetup::reportLoadProblems();

    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    OMDelegate delegate(OMStore::shared(), {});
    if (!delegate.applicationDidFinishLaunching(instance))
        return 0;

    const int status = showWindow(page, instance);
    OMStore::setShared(nullptr);
    return status;
}

} // namespace ormiva
