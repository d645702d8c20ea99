#include "VLKTheme.h"

#include "VLKitTheme.h"

#include <algorithm>
#include <cmath>

namespace ormiva {

namespace {

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

double VLKTheme::RGB::luminance() const {
    return 0.2126 * linear(r) + 0.7152 * linear(g) + 0.0722 * linear(b);
}

double VLKTheme::RGB::contrast(const RGB& a, const RGB& b) {
    const auto [darker, lighter] = std::minmax({a.luminance(), b.luminance()});
    return (lighter + 0.05) / (darker + 0.05);
}

const std::array<QString, 5>& VLKTheme::families() {
    static const std::array<QString, 5> names = {QStringLiteral("masculine"), QStringLiteral("feminine"),
                                                 QStringLiteral("black"), QStringLiteral("gray"),
                                                 QStringLiteral("extra")};
    return names;
}

VLKitTheme VLKTheme::kitTheme() const {
    return {.bg = color(bg),
            .text = color(text),
            .dim = color(dim),
            .rim = QColor::fromRgbF(1, 1, 1, 0.25F),
            .accent = color(accent),
            .panelTop = color(panelTop),
            .panelBottom = color(panelBottom)};
}

QColor color(const VLKTheme::RGB& rgb) {
    return QColor::fromRgbF(static_cast<float>(rgb.r), static_cast<float>(rgb.g), static_cast<float>(rgb.b));
}

} // namespace ormiva
