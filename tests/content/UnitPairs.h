#pragma once

#include <QString>
#include <QStringList>

namespace ormiva::testing {

/// The pairs of metric and US figures in a text, such as "30–35 °C (86–95 °F)" or "120 × 60 cm (47 × 24 in)".
struct UnitPairs {
    int count = 0;     ///< single figures that were converted and compared
    QStringList wrong; ///< the places where the figures do not agree
};
UnitPairs unitPairs(const QString& text);

/// Temperatures that stand in one unit only.
QStringList temperaturesInOneUnit(const QString& text);

} // namespace ormiva::testing
