#include "OMThemes.h"

namespace ormiva::OMThemes {

namespace {
constexpr auto hex = VLKTheme::RGB::hex;
}

const QList<VLKTheme>& extras() {
    using enum VLKTheme::Family;
    // id, name, family, bg, panelTop, panelBottom, text, dim, accent
    static const QList<VLKTheme> themes = {
        {canopyID, QStringLiteral("Rainforest Canopy"), Extra, hex(0x0F2A1D), hex(0x2C5A3F), hex(0x173826),
         hex(0xF4FFF6), hex(0xBFE0C8), hex(0x2E7D32)},
        {desertID, QStringLiteral("Desert Stone"), Extra, hex(0x2A2118), hex(0x5C4A36), hex(0x3A2E22),
         hex(0xFFF8EC), hex(0xE6D4B8), hex(0x9A5B13)},
    };
    return themes;
}

} // namespace ormiva::OMThemes
