#pragma once

#include <QString>

namespace ormiva {

/// Counts and prints the checks of a self-test. Every line is on its way before the call returns.
class OMTestRun {
public:
    int passed = 0;
    int failed = 0;

    /// Prints "== {title}".
    void begin(const QString& title);
    /// Counts and prints "PASS  {caption}" or "FAIL  {caption}".
    void check(bool holds, const QString& caption);
    /// "ALL {n} CHECKS PASSED", or "{n} FAILED, {m} passed".
    QString summary() const;
};

/// Prints a line to standard output and flushes it.
void printLine(const QString& line);

} // namespace ormiva
