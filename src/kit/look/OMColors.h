#pragma once

#include "SymptomData.h"
#include "VLKThemes.h"
#include "VLKitTheme.h"

#include <QColor>

namespace ormiva {

/// The colours of the product's views: those of the theme that was current when the value was made, and some
/// that are the same in all themes.
class OMColors {
public:
    QColor text() const { return color(t.text); }
    QColor dim() const { return color(t.dim); }
    QColor accent() const { return color(t.accent); }
    QColor panelTop() const { return color(t.panelTop); }
    QColor panelBottom() const { return color(t.panelBottom); }
    QColor bg() const { return color(t.bg); }

    static QColor leaf() { return QColor::fromRgbF(0.5F, 0.84F, 0.47F); }
    static QColor warmLight() { return QColor::fromRgbF(1.0F, 0.82F, 0.52F); }
    static QColor stone() { return QColor::fromRgbF(0.62F, 0.6F, 0.55F); }
    static QColor emergency() { return QColor::fromRgbF(0.86F, 0.18F, 0.16F); }
    static QColor soon() { return QColor::fromRgbF(0.93F, 0.58F, 0.12F); }
    static QColor monitor() { return QColor::fromRgbF(0.24F, 0.62F, 0.4F); }
    static QColor alert() { return QColor::fromRgbF(1.0F, 0.55F, 0.35F); }
    static QColor urgency(Urgency urgency);

    VLKTheme t = VLKThemes::current();
};

} // namespace ormiva
