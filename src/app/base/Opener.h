#pragma once

#include <QUrl>

#include <functional>

/// The one door through which every external address leaves the program.
namespace ormiva::Opener {

/// Opens an address; by default with the desktop. Tests and tool modes put a recorder in its place.
extern std::function<void(const QUrl&)> open;

/// Called by the default `open` with an address that the desktop could not open.
extern std::function<void(const QUrl&)> failed;

} // namespace ormiva::Opener
