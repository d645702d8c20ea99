#pragma once

#include "VLKTheme.h"

#include <QColor>

namespace ormiva {

/// An sRGB colour at full opacity.
QColor color(const VLKTheme::RGB& rgb);

/// A theme as ready-to-paint colours.
struct VLKitTheme {
    QColor bg;
    QColor text;
    QColor dim;
    QColor rim; ///< white at opacity 0.25 in every theme
    QColor accent;
    QColor panelTop;
    QColor panelBottom;

    friend bool operator==(const VLKitTheme&, const VLKitTheme&) = default;
};

} // namespace ormiva
