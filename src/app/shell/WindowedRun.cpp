#include "WindowedRun.h"

#include "AppIcon.h"
#include "AppModel.h"
#include "DamageReport.h"
#include "DesktopFilePanels.h"
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
#include <memory>
#include <utility>

namespace ormiva {

const QUrl mainPage(QStringLiteral("qrc:/qt-project.org/imports/Ormiva/Screens/Main.qml"));

namespace {

void say(const QString& sentence) {
    std::fprintf(stderr, "%s\n", sentence.toUtf8().constData());
}

/// What the toolkit says while the program starts: held back, because a start that fails is told in one
/// sentence of ours, and handed on once the window is up.
class StartUpMessages {
public:
    StartUpMessages()
        : m_usual(qInstallMessageHandler(hold)) {}
    ~StartUpMessages() { qInstallMessageHandler(m_usual); }
    StartUpMessages(const StartUpMessages&) = delete;
    StartUpMessages& operator=(const StartUpMessages&) = delete;

    static void handOn() {
        for (const QString& text : std::exchange(held(), {}))
            say(text);
    }

private:
    static QStringList& held() {
        static QStringList texts;
        return texts;
    }

    static void hold(QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type != QtFatalMsg) {
            held().append(text);
            return;
        }
        // The toolkit is about to abort; without a display it does so before any code of ours runs.
        if (text.contains(QStringLiteral("platform plugin")))
            say(QStringLiteral("Ormiva needs a graphical desktop, and none could be reached."));
        else
            say(QStringLiteral("Ormiva could not start: ") + text);
        std::_Exit(1);
    }

    QtMessageHandler m_usual;
};

/// The software scene graph starts faster and needs no GPU; the user's own choice wins.
void chooseSceneGraph() {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !qEnvironmentVariableIsSet("QSG_RHI_BACKEND"))
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}

void describeApplication() {
    QGuiApplication::setDesktopFileName(OMInfo::identity);
    QGuiApplication::setWindowIcon(AppIcon::icon());
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

/// What is at the bottom of a page that could not be loaded.
QString reason(const QList<QQmlError>& errors) {
    return errors.isEmpty() ? QStringLiteral("the page is no window") : errors.last().toString();
}

int showWindow(const QUrl& page, const SingleInstance& instance, std::unique_ptr<StartUpMessages> messages) {
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
    messages.reset();
    StartUpMessages::handOn();

    QObject::connect(&instance, &SingleInstance::broughtForward, window,
                     [window](const QByteArray& token) { comeForward(*window, token); });
    DamageReport::afterFirstFrame(*window, OMStore::shared());
    return QApplication::exec();
}

} // namespace

int runWindow(int& argc, char** argv, const QUrl& page) {
    auto messages = std::make_unique<StartUpMessages>();
    chooseSceneGraph();
    const QApplication application(argc, argv);
    describeApplication();

    OMSetup::configure();
    OMSetup::openStore();
    OMSetup::reportLoadProblems();

    FilePanels::setShared(std::make_unique<DesktopFilePanels>());

    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    OMDelegate delegate(OMStore::shared(), {});
    if (!delegate.applicationDidFinishLaunching(instance))
        return 0;

    const int status = showWindow(page, instance, std::move(messages));
    FilePanels::setShared(nullptr);
    OMStore::setShared(nullptr);
    return status;
}

} // namespace ormiva
