// What a large document costs in memory, and the example care sheet as a whole process in time.
// document_costs PROGRAM

#include "LongRecords.h"
#include "PetPDF.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int rounds = 21;

/// A figure of /proc/self/status, in MB.
double statusMegabytes(const QByteArray& label) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(label))
            return line.mid(label.size()).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

/// Makes the largest resident memory count from here on.
bool forgetPeak() {
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    return references.open(QIODevice::WriteOnly) && references.write("5") == 1;
}

bool measureMemory() {
    const QTemporaryDir folder;
    ormiva::OMStore store(folder.filePath(QStringLiteral("long.sqlite")));
    const ormiva::Pet pet = ormiva::bench::addLongRecords(store);
    if (!forgetPeak())
        return false;
    const double before = statusMegabytes("VmRSS:");
    const auto size = static_cast<double>(ormiva::PetPDF::make(pet, store).size()) / 1024 / 1024;
    std::printf("%-44s %9.1f MB for a file of %.1f MB   (aim %.1f MB)\n", "memory for the records PDF",
                statusMegabytes("VmHWM:") - before, size, 1.5 * size + 40);
    return true;
}

bool measureExample(const QString& program) {
    const QTemporaryDir folder;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        if (QProcess::execute(program, {QStringLiteral("--om-example-care-sheet"),
                                        folder.filePath(QStringLiteral("sheet.pdf"))}) != 0)
            return false;
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(times);
    std::printf("%-44s %9.0f ms   (median of %d, aim 80 ms)\n", "the example care sheet, whole process",
                times.at(times.size() / 2), rounds);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    return measureMemory() && measureExample(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
