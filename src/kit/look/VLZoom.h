#pragma once

#include <QList>
#include <QString>

/// How large the whole interface is shown, as a factor from 0.85 to 2. It is kept in the preferences.
namespace ormiva::VLZoom {

inline const QString key = QStringLiteral("vlk.zoom");
constexpr double min = 0.85;
constexpr double max = 2.0;
constexpr double step = 0.15;

/// The levels that menus and settings offer, in whole percentages.
const QList<int>& levels();
/// "115%".
QString levelTitle(int percent);

/// The factor rounded to two decimal places, then limited to `min` … `max`.
double clamp(double factor);

/// The stored factor, clamped; 1 when none is stored or it is 0. What is stored is not repaired.
double value();
/// Stores the factor clamped. Throws FileError when the preferences can't be written.
void setValue(double factor);
/// A step up or down from the stored factor, as far as the limits allow. They throw like `setValue`.
void zoomIn();
void zoomOut();

} // namespace ormiva::VLZoom
