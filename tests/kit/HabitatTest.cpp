#include "Habitat.h"

#include "OMThemes.h"
#include "PrefsInFile.h"
#include "Printers.h"
#include "VLKThemes.h"
#include "VLKitTheme.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

VLKTheme theme(const QString& id) {
    const PrefsInFile prefs;
    VLKThemes::registerThemes(OMThemes::extras());
    VLKThemes::setCurrentID(id);
    return VLKThemes::current();
}

QImage scene(const QSize& size, const VLKTheme& look) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Habitat::paint(painter, size, look);
    return image;
}

} // namespace

TEST(Habitat, DrawsItsNumbersFromTheFixedSeed) {
    HabitatRandom random;
    QList<double> starts;
    for (int i = 0; i < 5; ++i) {
        starts.append(1000 * (0.3 + 0.12 * i) + 30 * random.next());
        random.next();
    }
    const QList<double> expected = {317.904, 425.673, 560.115, 669.369, 793.77};
    for (int i = 0; i < 5; ++i)
        EXPECT_NEAR(starts.at(i), expected.at(i), 1e-9) << i;
}

TEST(Habitat, IsTheSameAtEveryPainting) {
    const VLKTheme canopy = theme(OMThemes::canopyID);
    EXPECT_EQ(scene({900, 600}, canopy), scene({900, 600}, canopy));
    EXPECT_NE(scene({900, 600}, canopy), scene({900, 600}, theme(QStringLiteral("midnight-black"))));
}

TEST(Habitat, CoversEverythingWithLeavesAboveAndStonesBelow) {
    const VLKTheme black = theme(QStringLiteral("midnight-black"));
    const QImage image = scene({1380, 900}, black);
    int bare = 0;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            bare += image.pixelColor(x, y) == QColor(Qt::magenta) ? 1 : 0;
    EXPECT_EQ(bare, 0);
    const auto green = [&](int fromX, int toX) {
        int count = 0;
        for (int y = 0; y < 120; ++y)
            for (int x = fromX; x < toX; ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.green() > color.red() + 20 && color.green() > color.blue() + 20 ? 1 : 0;
            }
        return count;
    };
    EXPECT_GT(green(0, 200), 2000);
    EXPECT_GT(green(1180, 1380), 2000);
    EXPECT_GT(green(400, 980), 1000);
    int stones = 0;
    for (int x = 0; x < image.width(); ++x)
        stones += image.pixelColor(x, 890).lightness() > 60 ? 1 : 0;
    EXPECT_GT(stones, 400);
    EXPECT_LT(image.pixelColor(300, 600).lightness(), 60);
}

} // namespace ormiva::testing
