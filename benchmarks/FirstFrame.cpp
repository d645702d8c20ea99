// Time and memory from the start of a process to the first frame of the library page, with the real window.
// Run without arguments it starts itself some times and prints the medians; it needs a display.

#include "AppModel.h"
#include "WindowedRun.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int rounds = 11;

double monotonicMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// The largest resident memory of this process so far, in MB.
double peakMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

void reportFirstFrame() {
    std::printf("%.3f %.1f\n", monotonicMilliseconds(), peakMegabytes());
    std::fflush(stdout);
    QCoreApplication::quit();
}

/// Waits for the program's window as soon as there is an application object.
void watchForWindow() {
    auto* watch = new QTimer(QCoreApplication::instance());
    QObject::connect(watch, &QTimer::timeout, watch, [watch] {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        if (windows.isEmpty())
            return;
        watch->stop();
        QObject::connect(qobject_cast<QQuickWindow*>(windows.first()), &QQuickWindow::frameSwapped, watch,
                         reportFirstFrame);
    });
    watch->start(0);
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

int measure(const QString& program) {
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QString::fromLatin1(variable), home.path());
    std::vector<double> times;
    std::vector<double> memory;
    for (int round = 0; round < rounds; ++round) {
        QProcess child;
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        const double start = monotonicMilliseconds();
        child.start(program, {QStringLiteral("--child")});
        if (!child.waitForFinished(30'000) || child.exitCode() != 0)
            return 1;
        const QList<QByteArray> figures = child.readAllStandardOutput().trimmed().split(' ');
        times.push_back(figures.first().toDouble() - start);
        memory.push_back(figures.last().toDouble());
    }
    std::printf("%-44s %9.0f ms %9.0f MB   (median of %d, aim 120 ms and 70 MB)\n",
                "first frame of the library page", median(times), median(memory), rounds);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) {
        ormiva::AppModel::shared().setScreen(ormiva::Screen::Library);
        qAddPreRoutine(watchForWindow);
        return ormiva::runWindow(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    return measure(QCoreApplication::applicationFilePath());
}
