#pragma once

#include "Printers.h"
#include "VLKTheme.h"
#include "VLKitTheme.h"

#include <QList>
#include <QStringList>

namespace ormiva {

inline void PrintTo(const VLKTheme& theme, std::ostream* out) {
    *out << theme.id.toStdString();
}

inline void PrintTo(const VLKTheme::RGB& rgb, std::ostream* out) {
    *out << '(' << rgb.r << ' ' << rgb.g << ' ' << rgb.b << ')';
}

namespace testing {

/// A colour as six hexadecimal digits; what they don't hold exactly prints as "?".
inline QString digits(const VLKTheme::RGB& rgb) {
    const QString text = color(rgb).name().mid(1).toUpper();
    return VLKTheme::RGB::hex(text.toUInt(nullptr, 16)) == rgb ? text : QStringLiteral("?");
}

/// Everything that a theme is: id, name, family, then its six colours.
inline QStringList row(const VLKTheme& theme) {
    return {theme.id,
            theme.name,
            VLKTheme::families().at(static_cast<std::size_t>(theme.family)),
            digits(theme.bg),
            digits(theme.panelTop),
            digits(theme.panelBottom),
            digits(theme.text),
            digits(theme.dim),
            digits(theme.accent)};
}

inline QList<QStringList> rows(const QList<VLKTheme>& themes) {
    QList<QStringList> rows;
    for (const VLKTheme& theme : themes)
        rows.append(row(theme));
    return rows;
}

} // namespace testing
} // namespace ormiva
