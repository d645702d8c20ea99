// Runs the program's own windowed run on another page, or with a second window open: what a keeper can't
// bring about.
//   window_of_page PAGE.qml
//   window_of_page --second-window

#include "WindowedRun.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace {

void openSecondWindow() {
    QTimer::singleShot(0, [] {
        auto* window = new QWindow; // Stays open until the process ends.
        window->setTitle(QStringLiteral("A second window"));
        window->resize(200, 100);
        window->show();
    });
}

} // namespace

int main(int argc, char** argv) {
    const QString page = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (page != QStringLiteral("--second-window"))
        return ormiva::runWindow(argc, argv, QUrl::fromLocalFile(page));
    qAddPreRoutine(openSecondWindow);
    return ormiva::runWindow(argc, argv);
}
