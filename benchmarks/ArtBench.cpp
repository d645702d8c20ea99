// The drawings against filling the same area with one gradient.

#include "ArtPainter.h"
#include "Habitat.h"
#include "OMThemes.h"
#include "Pairs.h"
#include "SpeciesIcon.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace ormiva::bench {

namespace {

QImage canvas(const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void fillWithGradient(QImage& image) {
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, 0, image.height());
    gradient.setStops({{0, QColor(40, 90, 60)}, {1, QColor(10, 20, 15, 128)}});
    painter.fillRect(image.rect(), gradient);
}

void addHabitatPair(const char* name, double limit, const QSize& size) {
    addPair(
        name, limit,
        [image = canvas(size)]() mutable {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            Habitat::paint(painter, image.size(), OMThemes::extras().first());
        },
        [image = canvas(size)]() mutable { fillWithGradient(image); });
}

} // namespace

void addArtPairs() {
    addPair(
        "35 animals on the badge, 96 pixels", 300,
        [image = canvas({96, 96})]() mutable {
            for (const QString& key : ArtPainter::known()) {
                QPainter painter(&image);
                SpeciesIcon::paintIcon(painter, 96, key, {}, true);
            }
        },
        [image = canvas({96, 96})]() mutable {
            for (qsizetype i = 0; i < ArtPainter::known().size(); ++i)
                fillWithGradient(image);
        });
    addHabitatPair("the habitat of 1380 x 900", 120, {1380, 900});
    addHabitatPair("the habitat of 3840 x 2160", 60, {3840, 2160});
}

} // namespace ormiva::bench
