#pragma once

#include <QStringList>

#include <functional>

namespace ormiva::VLKAbout {

/// The application's own lines of the about box, set once at start-up.
inline QStringList extraLines;

/// "Version {short}", with the build in brackets behind it when the package has given one.
QString version();
/// The maker's line with the year of the user's calendar.
QString closingLine();

/// Shows the about box. Set by whoever has the window for it.
inline std::function<void()> opener;
void show();

} // namespace ormiva::VLKAbout
