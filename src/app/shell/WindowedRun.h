#pragma once

#include <QUrl>

namespace ormiva {

/// The main page, compiled into the program.
extern const QUrl mainPage;

/// Runs the program with its window until that is closed, and gives the exit status. Without a usable
/// display, or when `page` can't be loaded, one sentence on standard error says so and the status is 1. A
/// second launch brings the first one forward and ends with 0.
int runWindow(int& argc, char** argv, const QUrl& page = mainPage);

} // namespace ormiva
