#include "ToolEntries.h"
#include "WindowedRun.h"

#include <clocale>

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (const auto status = ormiva::runTool(arguments))
        return *status;
    return ormiva::runWindow(argc, argv);
}
