#include "VLZoom.h"

#include "OMPrefs.h"

#include <algorithm>
#include <cmath>

namespace ormiva::VLZoom {

const QList<int>& levels() {
    static const QList<int> percentages = {85, 100, 115, 130, 150, 175, 200};
    return percentages;
}

QString levelTitle(int percent) {
    return QString::number(percent) + u'%';
}

double clamp(double factor) {
    return std::clamp(std::round(factor * 100) / 100, min, max);
}

double value() {
    const double stored = OMPrefs::value(key).toDouble();
    // Not-a-number fails this comparison as well, and then counts as nothing stored.
    return std::abs(stored) > 0 ? clamp(stored) : 1;
}

void setValue(double factor) {
    OMPrefs::setValue(key, clamp(factor));
}

void zoomIn() {
    setValue(value() + step);
}

void zoomOut() {
    setValue(value() - step);
}

} // namespace ormiva::VLZoom
