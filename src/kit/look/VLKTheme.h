#pragma once

#include <QString>

#include <array>

namespace ormiva {

struct VLKitTheme;

/// A named look: six colours.
struct VLKTheme {
    /// An sRGB colour of three reals from 0 to 1.
    struct RGB {
        double r = 0;
        double g = 0;
        double b = 0;

        /// From 24 bits: red in bits 16–23, green in 8–15, blue in 0–7.
        static constexpr RGB hex(unsigned value) {
            return {((value >> 16) & 0xff) / 255.0, ((value >> 8) & 0xff) / 255.0, (value & 0xff) / 255.0};
        }
        /// Relative luminance, 0 to 1, as in WCAG 2.
        double luminance() const;
        /// Contrast ratio of two colours, 1 to 21, as in WCAG 2.
        static double contrast(const RGB& a, const RGB& b);

        friend bool operator==(const RGB&, const RGB&) = default;
    };

    enum class Family { Masculine, Feminine, Black, Gray, Extra };
    /// The raw values of all families, in order: "masculine", "feminine", …
    static const std::array<QString, 5>& families();

    QString id; ///< stable, stored in the preferences
    QString name;
    Family family = Family::Extra;
    RGB bg;
    RGB panelTop;
    RGB panelBottom;
    RGB text;
    RGB dim;
    RGB accent;

    /// The theme in the form in which the kit paints it.
    VLKitTheme kitTheme() const;

    friend bool operator==(const VLKTheme& a, const VLKTheme& b) { return a.id == b.id; }
};

} // namespace ormiva
