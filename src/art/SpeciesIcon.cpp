#include "SpeciesIcon.h"

#include "ArtPainter.h"
#include "HexColor.h"
#include "OMPrefs.h"
#include "VLKThemes.h"

#include <QPainter>

namespace ormiva {

SpeciesIcon::SpeciesIcon(QQuickItem* parent)
    : CrispItem(parent) {
    setSize(40);
    connect(&OMPrefs::notifier(), &PrefsNotifier::changed, this, [this](const QString& key) {
        if (key == VLKThemes::key)
            update();
    });
}

void SpeciesIcon::setArt(const QString& art) {
    if (m_art == art)
        return;
    m_art = art;
    update();
    Q_EMIT artChanged();
}

void SpeciesIcon::setPalette(const QStringList& palette) {
    if (m_palette == palette)
        return;
    m_palette = palette;
    update();
    Q_EMIT paletteChanged();
}

void SpeciesIcon::setSize(double size) {
    if (m_size == size)
        return;
    m_size = size;
    setImplicitSize(size, size);
    Q_EMIT sizeChanged();
}

void SpeciesIcon::setBadge(bool badge) {
    if (m_badge == badge)
        return;
    m_badge = badge;
    update();
    Q_EMIT badgeChanged();
}

void SpeciesIcon::paint(QPainter* painter) {
    paintIcon(*painter, width(), m_art, m_palette, m_badge);
}

void SpeciesIcon::paintIcon(QPainter& painter, double edge, const QString& art, const QStringList& palette,
                            bool badge) {
    const QString primary = palette.value(0, QStringLiteral("6B8E5A"));
    const QString secondary = palette.value(1, QStringLiteral("D9C9A3"));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(edge / 100, edge / 100);
    if (badge)
        ArtPainter::badge(painter, VLKThemes::current());
    ArtPainter::draw(art, painter, colorFromHexString(primary), colorFromHexString(secondary));
    painter.restore();
}

} // namespace ormiva
