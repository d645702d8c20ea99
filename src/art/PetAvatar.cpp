#include "PetAvatar.h"

#include "OMPrefs.h"
#include "Primitives.h"
#include "SpeciesIcon.h"
#include "VLKThemes.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

#include <cmath>

namespace ormiva {

namespace {

const QColor systemGrey = QColor::fromRgb(0x8E, 0x8E, 0x93);

/// The upright photo, at least `pixels` wide and high and hardly larger: of a large JPEG only as much is
/// decoded. Null when the bytes are no picture.
QImage decoded(QByteArray photo, int pixels) {
    QBuffer buffer(&photo);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    const QSize wanted = whole.scaled(pixels, pixels, Qt::KeepAspectRatioByExpanding);
    if (wanted.width() < whole.width())
        reader.setScaledSize(wanted);
    return reader.read();
}

/// Fills the disc with the middle of the photo. False when there is none.
bool paintPhoto(QPainter& painter, double edge, const QByteArray& photo) {
    const double pixels = edge * std::abs(painter.deviceTransform().m11());
    const QImage image = decoded(photo, std::max(1, static_cast<int>(std::ceil(pixels))));
    if (image.isNull())
        return false;
    const double scale = edge / std::min(image.width(), image.height());
    QBrush brush(image);
    brush.setTransform(QTransform()
                           .translate((edge - scale * image.width()) / 2, (edge - scale * image.height()) / 2)
                           .scale(scale, scale));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillPath(ArtPainter::ell(edge / 2, edge / 2, edge, edge), brush);
    constexpr double border = 1.2;
    painter.strokePath(ArtPainter::ell(edge / 2, edge / 2, edge - border, edge - border),
                       ArtPainter::mitered(ArtPainter::at(Qt::white, 0.4), border));
    return true;
}

} // namespace

PetAvatar::PetAvatar(QQuickItem* parent)
    : CrispItem(parent) {
    setSize(40);
    connect(&OMPrefs::notifier(), &PrefsNotifier::changed, this, [this](const QString& key) {
        if (key == VLKThemes::key)
            update();
    });
}

void PetAvatar::setPet(const Pet& pet) {
    if (m_pet == pet)
        return;
    m_pet = pet;
    update();
    Q_EMIT petChanged();
}

void PetAvatar::setSize(double size) {
    if (m_size == size)
        return;
    m_size = size;
    setImplicitSize(size, size);
    Q_EMIT sizeChanged();
}

void PetAvatar::paint(QPainter* painter) {
    paintAvatar(*painter, width(), m_pet);
}

void PetAvatar::paintAvatar(QPainter& painter, double edge, const Pet& pet) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!pet.photo || !paintPhoto(painter, edge, *pet.photo)) {
        if (const auto species = pet.species())
            SpeciesIcon::paintIcon(painter, edge, species->art, species->palette, true);
        else
            painter.fillPath(ArtPainter::ell(edge / 2, edge / 2, edge, edge), systemGrey);
    }
    painter.restore();
}

} // namespace ormiva
