#pragma once

#include <QStringList>

namespace ormiva::VLKAbout {

/// The application's own lines of the about box, set once at start-up.
inline QStringList extraLines;

} // namespace ormiva::VLKAbout
