#pragma once

#include "VLKTheme.h"

#include <QList>

/// The product's own habitat themes.
namespace ormiva::OMThemes {

inline const QString canopyID = QStringLiteral("rainforest-canopy");
inline const QString desertID = QStringLiteral("desert-stone");

const QList<VLKTheme>& extras();

} // namespace ormiva::OMThemes
