#include "Habitat.h"

#include "Primitives.h"
#include "VLKitTheme.h"

#include <QLinearGradient>
#include <QTransform>

namespace ormiva::Habitat {

namespace {

using ArtPainter::at;
using ArtPainter::gray;
using ArtPainter::radial;
using ArtPainter::rgb;

void ground(QPainter& painter, const QRectF& all, const VLKTheme& theme) {
    painter.fillRect(all, color(theme.bg));
    QLinearGradient light(0, 0, 0, all.height());
    light.setStops({{0, at(color(theme.panelTop), 0.35)}, {0.5, Qt::transparent}, {1, at(Qt::black, 0.25)}});
    painter.fillRect(all, light);
}

void rays(QPainter& painter, const QRectF& all, HabitatRandom& random) {
    const QColor sun = rgb(1, 0.86, 0.55);
    const double bottom = 0.85 * all.height();
    for (int i = 0; i < 5; ++i) {
        const double x = all.width() * (0.3 + 0.12 * i) + 30 * random.next();
        const double spread = 80 * random.next();
        QLinearGradient fading(x, 0, x + 80, bottom);
        fading.setStops({{0, at(sun, 0.075)}, {1, at(sun, 0)}});
        painter.fillPath(
            ArtPainter::polygon({{x - 20, -10}, {x + 20, -10}, {x + 140 + spread, bottom}, {x + 40, bottom}}),
            fading);
    }
}

void glow(QPainter& painter, const QRectF& all) {
    const QColor warm = rgb(1, 0.82, 0.5);
    painter.fillRect(all,
                     radial({0.58 * all.width(), -60}, 10, 0.7 * all.width(), at(warm, 0.2), at(warm, 0)));
}

void leaf(QPainter& painter, const QPointF& pivot, double angle, double length, int step) {
    const QTransform place = QTransform().translate(pivot.x(), pivot.y()).rotateRadians(angle);
    QPainterPath blade({0, 0});
    blade.quadTo(0.45 * length, -0.32 * length, length, 0);
    blade.quadTo(0.55 * length, 0.3 * length, 0, 0);
    painter.fillPath(place.map(blade), at(rgb(0.1 + 0.045 * step, 0.3 + 0.08 * step, 0.14 + 0.035 * step),
                                          0.55 + 0.0625 * step));
    QPainterPath midrib({0.04 * length, 0});
    midrib.lineTo(0.9 * length, 0);
    painter.strokePath(place.map(midrib), ArtPainter::mitered(at(Qt::black, 0.18), 1));
}

/// Leaves fan out of both upper corners, and smaller ones lie along the edge between them.
void leaves(QPainter& painter, const QRectF& all, HabitatRandom& random) {
    constexpr int inCorner = 16;
    constexpr int between = 9;
    for (int i = 0; i < inCorner; ++i) {
        const QPointF pivot(random.between(-30, 90), random.between(-40, 30));
        const double angle = random.between(0.2, 1.25);
        leaf(painter, pivot, angle, random.between(90, 200), i % 4);
    }
    for (int i = 0; i < inCorner; ++i) {
        const QPointF pivot(all.width() - random.between(-30, 90), random.between(-40, 30));
        const double angle = random.between(1.6, 2.8);
        leaf(painter, pivot, angle, random.between(90, 200), i % 4);
    }
    for (int i = 0; i < between; ++i) {
        const QPointF pivot(all.width() * (0.15 + 0.7 * (i + random.next()) / between),
                            random.between(-20, 4));
        const double angle = random.between(-0.35, 0.35);
        leaf(painter, pivot, angle, random.between(80, 130), i % 4);
    }
}

void stones(QPainter& painter, const QRectF& all, HabitatRandom& random) {
    constexpr int count = 17;
    for (int i = 0; i < count; ++i) {
        const double x = all.width() * (i + random.next()) / count;
        const double y = all.height() - random.between(0, 30);
        const double width = random.between(55, 115);
        const double height = random.between(20, 40);
        const double shade = random.between(0.55, 0.72);
        QLinearGradient round(x, y - height / 2, x, y + height / 2);
        round.setStops(
            {{0, at(rgb(shade, 0.97 * shade, 0.92 * shade), 0.85)}, {1, at(gray(shade - 0.3), 0.9)}});
        painter.fillPath(ArtPainter::ell(x, y, width, height), round);
        painter.fillPath(ArtPainter::ell(x - 0.14 * width, y - 0.18 * height, 0.44 * width, 0.4 * height),
                         at(Qt::white, 0.1));
    }
}

void vignette(QPainter& painter, const QRectF& all) {
    painter.fillRect(all, radial({0.5 * all.width(), 0.45 * all.height()}, 0.35 * all.height(),
                                 0.85 * all.width(), at(Qt::black, 0), at(Qt::black, 0.35)));
}

} // namespace

void paint(QPainter& painter, const QSizeF& size, const VLKTheme& theme) {
    const QRectF all({0, 0}, size);
    HabitatRandom random;
    ground(painter, all, theme);
    rays(painter, all, random);
    glow(painter, all);
    leaves(painter, all, random);
    stones(painter, all, random);
    vignette(painter, all);
}

} // namespace ormiva::Habitat
