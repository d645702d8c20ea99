// The self-test's section on the drawings.

#include "ArtPainter.h"
#include "CareLibrary.h"
#include "Habitat.h"
#include "OMThemes.h"
#include "SelfTestSections.h"
#include "SpeciesIcon.h"
#include "VLKThemes.h"

#include <QImage>
#include <QPainter>

#include <functional>
#include <set>

namespace ormiva::OMSelfTest {

namespace {

QImage painted(const QSize& size, const std::function<void(QPainter&)>& paint) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return image;
}

QImage icon(const QString& art, const QStringList& palette) {
    return painted({64, 64},
                   [&](QPainter& painter) { SpeciesIcon::paintIcon(painter, 64, art, palette, false); });
}

/// Whether there is something to see: of every second pixel both ways at least 60 are more opaque than not.
bool showsSomething(const QImage& image) {
    int seen = 0;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2)
            seen += image.pixelColor(x, y).alphaF() > 0.5F ? 1 : 0;
    return seen >= 60;
}

} // namespace

void artTests(OMTestRun& run) {
    const QList<Species>& all = CareLibrary::shared().species();
    std::set<QString> designs;
    QStringList undrawn;
    QStringList blank;
    for (const Species& species : all) {
        designs.insert(species.art);
        if (!ArtPainter::known().contains(species.art))
            undrawn.append(species.id);
        if (!showsSomething(icon(species.art, species.palette)))
            blank.append(species.id);
    }
    const auto listed = [](const QStringList& names) {
        return names.isEmpty() ? QString() : QStringLiteral(": ") + names.join(QStringLiteral(", "));
    };
    run.check(
        !all.isEmpty() && undrawn.isEmpty(),
        QStringLiteral("every species has its own drawn icon (%1 distinct designs)").arg(designs.size()) +
            listed(undrawn));
    run.check(!all.isEmpty() && blank.isEmpty(),
              QStringLiteral("every icon actually draws an animal") + listed(blank));
    run.check(showsSomething(icon(QStringLiteral("no-such-art"), {})),
              QStringLiteral("an unknown animal is still a creature"));

    const auto badge = [](const VLKTheme& theme) {
        return painted({64, 64}, [&](QPainter& painter) {
            painter.scale(0.64, 0.64);
            ArtPainter::badge(painter, theme);
        });
    };
    run.check(badge(OMThemes::extras().first()) != badge(OMThemes::extras().last()),
              QStringLiteral("the badge takes its colors from the theme"));
    const auto scene = [] {
        return painted({320, 200}, [](QPainter& painter) {
            Habitat::paint(painter, {320, 200}, VLKThemes::current());
        });
    };
    run.check(scene() == scene(), QStringLiteral("the habitat is the same at every painting"));
}

} // namespace ormiva::OMSelfTest
