#include "OMTestRun.h"

#include <cstdio>

namespace ormiva {

void printLine(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout); // A run that breaks off loses nothing.
}

void OMTestRun::begin(const QString& title) {
    printLine(QStringLiteral("== ") + title);
}

void OMTestRun::check(bool holds, const QString& caption) {
    ++(holds ? passed : failed);
    printLine((holds ? QStringLiteral("PASS  ") : QStringLiteral("FAIL  ")) + caption);
}

QString OMTestRun::summary() const {
    return failed > 0 ? QStringLiteral("%1 FAILED, %2 passed").arg(failed).arg(passed)
                      : QStringLiteral("ALL %1 CHECKS PASSED").arg(passed);
}

} // namespace ormiva
