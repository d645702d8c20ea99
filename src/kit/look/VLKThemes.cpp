#include "VLKThemes.h"

#include "OMPrefs.h"

#include <algorithm>

namespace ormiva::VLKThemes {

namespace {

QList<VLKTheme>& extras() {
    static QList<VLKTheme> registered;
    return registered;
}

QString& storedDefaultID() {
    static QString id = QStringLiteral("cobalt-gunmetal");
    return id;
}

const VLKTheme* find(const QList<VLKTheme>& themes, const QString& id) {
    const auto found =
        std::find_if(themes.begin(), themes.end(), [&](const VLKTheme& theme) { return theme.id == id; });
    return found == themes.end() ? nullptr : &*found;
}

constexpr auto hex = VLKTheme::RGB::hex;

} // namespace

const QList<VLKTheme>& builtIn() {
    using enum VLKTheme::Family;
    // id, name, family, bg, panelTop, panelBottom, text, dim, accent
    static const QList<VLKTheme> themes = {
        {QStringLiteral("cobalt-gunmetal"), QStringLiteral("Cobalt Gunmetal"), Masculine, hex(0x14181F),
         hex(0x353C48), hex(0x1C2129), hex(0xF2F5FA), hex(0xA3AEC0), hex(0x2F7BF2)},
        {QStringLiteral("candy-red-titanium"), QStringLiteral("Candy Red Titanium"), Masculine, hex(0x1A1616),
         hex(0x403736), hex(0x231D1D), hex(0xFAF3F2), hex(0xC2AAA7), hex(0xD3262E)},
        {QStringLiteral("rose-gold"), QStringLiteral("Rose Gold"), Feminine, hex(0x24161D), hex(0x4A3039),
         hex(0x2C1B23), hex(0xFFF2F5), hex(0xD6AFBC), hex(0xE0789A)},
        {QStringLiteral("lavender-pearl"), QStringLiteral("Lavender Pearl"), Feminine, hex(0x1C1726),
         hex(0x40375A), hex(0x241D33), hex(0xF6F2FF), hex(0xBDB1DA), hex(0x9B7BE8)},
        {QStringLiteral("midnight-black"), QStringLiteral("Midnight Black"), Black, hex(0x050506),
         hex(0x26272B), hex(0x0E0E10), hex(0xFFFFFF), hex(0x9C9EA6), hex(0x5AA9FF)},
        {QStringLiteral("brushed-gray"), QStringLiteral("Brushed Gray"), Gray, hex(0x3A3D42), hex(0x6A6E75),
         hex(0x45484E), hex(0xFFFFFF), hex(0xD9DCE1), hex(0x1F6FD1)},
    };
    return themes;
}

QList<VLKTheme> all() {
    return builtIn() + extras();
}

void registerThemes(const QList<VLKTheme>& themes) {
    for (const VLKTheme& theme : themes)
        if (!find(all(), theme.id))
            extras().append(theme);
}

const QString& defaultID() {
    return storedDefaultID();
}

void setDefaultID(const QString& id) {
    storedDefaultID() = id;
}

VLKTheme named(const QString& id) {
    const QList<VLKTheme> themes = all();
    if (const VLKTheme* theme = find(themes, id))
        return *theme;
    if (const VLKTheme* theme = find(themes, defaultID()))
        return *theme;
    return builtIn().first();
}

QString currentID() {
    const QVariant stored = OMPrefs::value(key);
    return stored.isValid() ? stored.toString() : defaultID();
}

void setCurrentID(const QString& id) {
    OMPrefs::setValue(key, id);
}

VLKTheme current() {
    return named(currentID());
}

} // namespace ormiva::VLKThemes
