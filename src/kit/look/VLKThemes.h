#pragma once

#include "VLKTheme.h"

#include <QList>

/// The themes that there are and the one in use.
namespace ormiva::VLKThemes {

/// The preference that holds the id of the theme in use.
inline const QString key = QStringLiteral("vlk.theme");

const QList<VLKTheme>& builtIn();
/// The built-in themes, then the registered ones.
QList<VLKTheme> all();
/// Adds themes; one whose id is known already is skipped.
void registerThemes(const QList<VLKTheme>& themes);

/// The theme of a new installation; "cobalt-gunmetal" until it is set.
const QString& defaultID();
void setDefaultID(const QString& id);

/// The theme of that id, else the default one, else the first.
VLKTheme named(const QString& id);
/// The stored id as it stands, known or not; the default one when nothing is stored.
QString currentID();
/// Throws FileError when the preferences can't be written.
void setCurrentID(const QString& id);
VLKTheme current();

} // namespace ormiva::VLKThemes
