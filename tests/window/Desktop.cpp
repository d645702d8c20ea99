#include "Desktop.h"

#include <QElapsedTimer>
#include <QThread>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace ormiva::testing {

namespace {

[[noreturn]] void stop(const char* what, const QProcess& process) {
    std::fprintf(stderr, "%s: %s\n", what, process.errorString().toUtf8().constData());
    std::abort();
}

void end(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(5000))
        process.kill();
    process.waitForFinished(5000);
}

/// Waits for `holds`, up to a minute: a busy machine is slow.
template <typename Condition>
bool waitFor(Condition holds) {
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(60'000)) {
        if (holds())
            return true;
        QThread::msleep(50);
    }
    return false;
}

} // namespace

Desktop::Desktop(const QString& size) {
    // The server picks a free number and says which.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), size + QStringLiteral("x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead(20'000))
        stop("Xvfb", m_server);
    m_display = u':' + QString::fromLatin1(m_server.readLine().trimmed());
    m_manager.setProcessEnvironment(environment());
    // It manages windows as soon as it has said so on the root window.
    const bool managed = waitFor([this] {
        if (m_manager.state() == QProcess::NotRunning)
            m_manager.start(QStringLiteral("openbox"), {});
        m_manager.waitForStarted();
        m_manager.waitForFinished(0); // Without an event loop nobody else notices an end.
        return xdotool({QStringLiteral("get_num_desktops")}).has_value();
    });
    if (!managed)
        stop("openbox does not answer", m_manager);
}

Desktop::~Desktop() {
    end(m_manager);
    end(m_server);
}

QProcessEnvironment Desktop::environment() const {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("DISPLAY"), m_display);
    return variables;
}

std::optional<QString> Desktop::xdotool(const QStringList& arguments) const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(30'000) || tool.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

void Desktop::key(const QString& keys) const {
    xdotool({QStringLiteral("key"), keys});
}

void Desktop::type(const QString& text) const {
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text});
}

bool Desktop::picture(const QString& path) const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), path});
    return tool.waitForFinished(30'000) && tool.exitCode() == 0;
}

Program::Program(const QString& home, const QString& display, const QStringList& variables,
                 QString executable)
    : m_executable(std::move(executable)) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QString::fromLatin1(name), home);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "OM_DB_PATH", "OM_DATA_DIR"})
        environment.remove(QString::fromLatin1(name));
    if (!display.isEmpty())
        environment.insert(QStringLiteral("DISPLAY"), display);
    for (const QString& variable : variables)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(home);
}

Program::~Program() {
    end(m_process);
}

void Program::start(const QStringList& arguments) {
    m_process.start(m_executable, arguments);
    if (!m_process.waitForStarted())
        stop("the program did not start", m_process);
}

bool Program::isRunning() {
    m_process.waitForFinished(0); // Without an event loop nobody else notices an end.
    return m_process.state() == QProcess::Running;
}

std::optional<QString> Program::window(const Desktop& desktop) {
    std::optional<QString> found;
    waitFor([&] {
        found = desktop.xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                 QStringLiteral("--all"), QStringLiteral("--pid"),
                                 QString::number(m_process.processId()), QStringLiteral("--name"),
                                 QStringLiteral("VLK Ormiva")});
        return (found && !found->isEmpty()) || !isRunning();
    });
    return found && !found->isEmpty() ? std::optional(found->section(u'\n', 0, 0)) : std::nullopt;
}

std::optional<int> Program::status(int milliseconds) {
    if (!m_process.waitForFinished(milliseconds)) {
        end(m_process);
        return 128 + 15;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? std::optional(m_process.exitCode())
                                                          : std::nullopt;
}

} // namespace ormiva::testing
