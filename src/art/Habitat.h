#pragma once

#include "VLKTheme.h"

#include <QPainter>
#include <QSizeF>

#include <cstdint>

namespace ormiva {

/// Where everything in the habitat stands: the same numbers at every painting.
class HabitatRandom {
public:
    /// The next number, 0 to 0.9999.
    double next() {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>((m_state >> 33U) % 10'000) / 10'000;
    }
    double between(double least, double most) { return least + (most - least) * next(); }

private:
    std::uint64_t m_state = 0xEC05EED;
};

/// The scene behind the main window: a dim forest floor with rays of light, hanging leaves, stones and a
/// vignette. Two sizes differ in where things stand, two themes only in the ground's colours.
namespace Habitat {
void paint(QPainter& painter, const QSizeF& size, const VLKTheme& theme);
}

} // namespace ormiva
