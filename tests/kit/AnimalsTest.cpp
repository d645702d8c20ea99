#include "ArtPainter.h"
#include "Primitives.h"

#include "CareLibrary.h"
#include "Printers.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>

// Pictures are painted at four pixels a unit, in a red body colour and a blue second one, and looked at where
// a shape should be and where it should not.

namespace ormiva::testing {

namespace {

using namespace ArtPainter;

constexpr int scale = 4;
const QColor red = QColor::fromRgb(200, 40, 40);
const QColor blue = QColor::fromRgb(40, 40, 200);

QImage painted(const std::function<void(QPainter&)>& paint) {
    QImage image(100 * scale, 100 * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter);
    return image;
}

QImage animal(const QString& key) {
    return painted([&](QPainter& painter) { draw(key, painter, red, blue); });
}

QColor colorAt(const QImage& image, double x, double y) {
    return image.pixelColor(static_cast<int>(std::lround(x * scale - 0.5)),
                            static_cast<int>(std::lround(y * scale - 0.5)));
}

/// What is seen at a point: '.' nothing, 'p' and 's' the two colours, 'k' dark, 'w' light, 'o' something
/// else.
QChar seen(const QImage& image, double x, double y) {
    const QColor color = colorAt(image, x, y);
    if (color.alpha() < 20)
        return u'.';
    if (color.red() > color.blue() + 60 && color.red() > color.green() + 60)
        return u'p';
    if (color.blue() > color.red() + 40 && color.blue() > color.green() + 40)
        return u's';
    if (std::max({color.red(), color.green(), color.blue()}) < 60)
        return u'k';
    if (std::min({color.red(), color.green(), color.blue()}) > 190)
        return u'w';
    return u'o';
}

struct Probe {
    const char* key;
    double x;
    double y;
    char expected;
    const char* what;
};

void expectSeen(const std::vector<Probe>& probes) {
    for (const Probe& probe : probes)
        EXPECT_EQ(seen(animal(QString::fromUtf8(probe.key)), probe.x, probe.y), QLatin1Char(probe.expected))
            << probe.key << ", " << probe.what << " at " << probe.x << ", " << probe.y;
}

void expectNear(const QColor& color, int r, int g, int b, int alpha = 255) {
    EXPECT_NEAR(color.red(), r, 2);
    EXPECT_NEAR(color.green(), g, 2);
    EXPECT_NEAR(color.blue(), b, 2);
    EXPECT_NEAR(color.alpha(), alpha, 2);
}

} // namespace

TEST(Animals, HaveThirtyFiveKeys) {
    EXPECT_EQ(
        known().join(u' '),
        QStringLiteral("dragon gecko gecko-crested skink uromastyx tegu iguana snake-python snake-colubrid "
                       "snake-banded chameleon-veiled chameleon-panther tortoise-small tortoise-large turtle "
                       "axolotl frog-pacman frog-tree budgie cockatiel grey tarantula crab ferret fox skunk "
                       "glider hedgehog chinchilla degu rabbit guineapig rat hamster gerbil"));
}

TEST(Animals, AllDrawSomethingOfTheirOwn) {
    std::set<QByteArray> pictures;
    for (const QString& key : known()) {
        const QImage image = animal(key).scaled(64, 64, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        int counted = 0;
        for (int y = 0; y < 64; y += 2)
            for (int x = 0; x < 64; x += 2)
                counted += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
        EXPECT_GE(counted, 60) << key.toStdString();
        pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(pictures.size(), 35U);
    EXPECT_EQ(animal(QStringLiteral("Dragon")), animal(QStringLiteral("nothing")));
}

TEST(Primitives, TurnWithTheClock) {
    const QPainterPath turned = rot(ell(60, 50, 10, 4), std::numbers::pi / 2, 50, 50);
    EXPECT_NEAR(turned.boundingRect().center().x(), 50, 1e-6);
    EXPECT_NEAR(turned.boundingRect().center().y(), 60, 1e-6);
    EXPECT_NEAR(turned.boundingRect().width(), 4, 1e-6);
}

TEST(Primitives, ShadeFromWhiteToNothingToBlack) {
    QPainterPath square;
    square.addRect(0, 0, 100, 100);
    const QImage image = painted([&](QPainter& painter) { shade(painter, square, red); });
    expectNear(colorAt(image, 50, 0.2), 210, 79, 79); // 0.18 of white
    expectNear(colorAt(image, 50, 25), 205, 59, 59);  // half of it: no grey comes in
    expectNear(colorAt(image, 50, 50), 200, 40, 40);
    expectNear(colorAt(image, 50, 75), 172, 34, 34);
    expectNear(colorAt(image, 50, 99.8), 144, 29, 29); // 0.28 of black
    const QImage strong = painted([&](QPainter& painter) { shade(painter, square, red, 0.5, 0.5); });
    expectNear(colorAt(strong, 50, 0.2), 228, 148, 148);
    expectNear(colorAt(strong, 50, 99.8), 100, 20, 20);
}

TEST(Primitives, StrokeWithTheirCaps) {
    const QImage round = painted([](QPainter& painter) { line(painter, {{20, 50}, {80, 50}}, red, 10); });
    EXPECT_EQ(seen(round, 16, 50), u'p');
    EXPECT_EQ(seen(round, 14, 50), u'.');
    EXPECT_EQ(seen(round, 16, 46), u'.');
    EXPECT_EQ(seen(round, 50, 45.5), u'p');
    EXPECT_EQ(seen(round, 50, 44.5), u'.');
    const QImage flat = painted([](QPainter& painter) {
        line(painter, {{20, 50}, {80, 50}}, red, 10, Qt::FlatCap);
    });
    EXPECT_EQ(seen(flat, 19.5, 50), u'.');
    EXPECT_EQ(seen(flat, 20.5, 50), u'p');
    const QImage bent = painted([](QPainter& painter) {
        curve(painter, {20, 50}, {50, 10}, {80, 50}, red, 6);
    });
    EXPECT_EQ(seen(bent, 50, 30), u'p'); // halfway to the control
    EXPECT_EQ(seen(bent, 50, 26), u'.');
    EXPECT_EQ(seen(bent, 18.5, 51.5), u'p');
    const QPen pen = mitered(red, 2);
    EXPECT_EQ(pen.capStyle(), Qt::FlatCap);
    EXPECT_EQ(pen.joinStyle(), Qt::SvgMiterJoin);
    EXPECT_EQ(pen.miterLimit(), 10);
}

TEST(Primitives, MakeAnEyeOfThreeCircles) {
    const QImage image = painted([](QPainter& painter) { eye(painter, 50, 50, 10, blue); });
    EXPECT_EQ(seen(image, 50 - 3.5, 50 - 4), u'w');
    EXPECT_EQ(seen(image, 50 - 3.5 + 4, 50 - 4), u'k');
    EXPECT_EQ(seen(image, 50, 59), u'k');
    EXPECT_EQ(seen(image, 50, 61), u's');
    EXPECT_EQ(seen(image, 50, 63.5), u's');
    EXPECT_EQ(seen(image, 50, 64.5), u'.');
    const QImage plain = painted([](QPainter& painter) { eye(painter, 50, 50); });
    EXPECT_EQ(seen(plain, 50, 52.2), u'k');
    EXPECT_EQ(seen(plain, 50, 53), u'.');
}

TEST(Animals, OfTheLizardSkeletonDifferInTheirParts) {
    expectSeen({
        {"tegu", 20, 68, 'p', "a thin tail"},
        {"gecko", 24, 71.5, 'p', "a fat tail"},
        {"tegu", 24, 71.5, '.', "a thin tail"},
        {"gecko", 19, 64, 's', "a tail ring"},
        {"tegu", 19, 64, 's', "a tail ring"},
        {"dragon", 19, 64, 'p', "no tail ring"},
        {"dragon", 32, 74, 'p', "a far foot"},
        {"dragon", 36, 74, 'p', "a near foot"},
        {"dragon", 60, 74, 'p', "a near foot"},
        {"skink", 60, 74.5, '.', "short legs"},
        {"gecko", 50, 52, 's', "a spot"},
        {"tegu", 46.5, 58, 's', "a band"},
        {"tegu", 50, 58, 'p', "between bands"},
        {"dragon", 51, 47, 's', "a spike"},
        {"gecko", 51, 47, '.', "no spike"},
        {"gecko-crested", 51, 48, 's', "a crest"},
        {"gecko-crested", 77, 44.2, 's', "the brow"},
        {"dragon", 78.5, 62, 's', "the beard"},
        {"gecko", 78.5, 62, '.', "no beard"},
        {"iguana", 77, 62, 's', "the dewlap"},
        {"tegu", 77, 62, '.', "no dewlap"},
        {"iguana", 77, 44.2, 's', "the brow"},
        {"tegu", 77, 44, '.', "no brow"},
        {"gecko", 80.5, 51, 'k', "the pupil"},
        {"gecko", 80, 52.8, 's', "the ring of the eye"},
        {"skink", 92, 56.5, 's', "the blue tongue"},
        {"tegu", 92, 56.5, '.', "no tongue"},
    });
}

TEST(Animals, OfTheReptilesAreWholeAndPlaced) {
    expectSeen({
        {"snake-python", 53, 62, 'p', "the body beside its blotches"},
        {"snake-banded", 77, 33, 'k', "the dark head"},
        {"snake-python", 77, 34, 'p', "the head"},
        {"snake-python", 82.4, 31.2, 'k', "the pupil"},
        {"snake-python", 92, 31.3, 'p', "the tongue"},
        {"snake-python", 96.5, 28.5, 'p', "its upper end"},
        {"snake-python", 96, 32.3, 'p', "its lower end"},
        {"chameleon-veiled", 10, 70, 'o', "the branch"},
        {"chameleon-veiled", 26, 72, 'p', "the coil's right side"},
        {"chameleon-veiled", 20, 78, 'p', "the coil's lower side"},
        {"chameleon-veiled", 20, 72, '.', "the middle of the coil"},
        {"chameleon-veiled", 40, 62, 'p', "a leg"},
        {"chameleon-veiled", 71, 26, 'p', "the tall casque"},
        {"chameleon-panther", 71, 26, '.', "the low casque"},
        {"chameleon-veiled", 50, 49.3, 's', "the stripe"},
        {"chameleon-panther", 40.3, 47, 's', "a bar"},
        {"chameleon-veiled", 40.3, 47, 'p', "no bar"},
        {"tortoise-small", 34, 70, 's', "a leg"},
        {"tortoise-small", 80, 62, 's', "the head"},
        {"tortoise-large", 48, 36, 'p', "the high shell"},
        {"tortoise-small", 48, 36, '.', "the low shell"},
        {"tortoise-small", 42, 52, 's', "the corner of a scute"},
        {"turtle", 10, 71.6, 's', "the water"},
        {"turtle", 62, 65.5, 'p', "a flipper"},
        {"turtle", 76, 55, 'p', "the flash at the ear"},
        {"turtle", 83, 58, 's', "the jaw"},
        {"turtle", 44, 62, 's', "the rim"},
        {"turtle", 44, 51.5, 's', "a mark of the shell"},
    });
}

TEST(Animals, OfTheOthersAreWholeAndPlaced) {
    expectSeen({
        {"axolotl", 12, 60, 'p', "the fin"},
        {"axolotl", 37.5, 70.3, 'p', "a leg"},
        {"axolotl", 57.5, 70.3, 'p', "a leg"},
        {"axolotl", 56, 49.4, 's', "the first gill"},
        {"axolotl", 60.5, 41.8, 's', "the last gill"},
        {"axolotl", 80.5, 52.8, 'k', "the pupil"},
        {"frog-pacman", 52, 66, 's', "a blotch"},
        {"frog-pacman", 37, 37.7, 'p', "the bump of an eye"},
        {"frog-pacman", 40, 44.6, 's', "the ring"},
        {"frog-pacman", 85, 60, '.', "beside the body"},
        {"frog-tree", 23, 74.5, 'p', "a toe pad"},
        {"frog-tree", 77, 74.5, 'p', "a toe pad"},
        {"frog-tree", 50, 65, 's', "the belly"},
        {"frog-tree", 62, 46.3, 'o', "the golden ring"},
        {"budgie", 84, 76, 'o', "the perch"},
        {"budgie", 25, 86, 's', "the long tail"},
        {"grey", 25, 86.5, '.', "the short tail"},
        {"grey", 30, 79, 'p', "the red tail"},
        {"budgie", 58, 50, 'p', "the body"},
        {"budgie", 46, 66, 's', "the wing"},
        {"budgie", 64, 42, 's', "the head"},
        {"grey", 64, 42, 'p', "the head"},
        {"grey", 70, 35, 'w', "the patch at the eye"},
        {"cockatiel", 57, 13, 'o', "the crest"},
        {"budgie", 57, 13, '.', "no crest"},
        {"cockatiel", 68, 39, 'p', "the cheek"},
        {"grey", 75, 36, 'k', "the beak"},
        {"budgie", 76, 36, 'o', "the beak"},
        {"budgie", 71.5, 30, 's', "the cere"},
        {"tarantula", 77, 30, 'p', "the foot of the last upper leg"},
        {"tarantula", 77, 79.5, 'p', "the foot of the last lower leg"},
        {"tarantula", 32, 56, 'o', "the mark on the abdomen"},
        {"tarantula", 20, 56, 'p', "the abdomen"},
        {"tarantula", 74, 50.4, 'p', "a fang"},
        {"tarantula", 61.4, 51.4, 'k', "an eye"},
        {"crab", 38, 34, 's', "the shell"},
        {"crab", 77, 75, 'p', "a leg"},
        {"crab", 83, 56.3, 'p', "the claw"},
        {"crab", 64, 39, 'k', "an eye"},
        {"crab", 67.2, 44, 'p', "its stalk"},
        {"crab", 76, 39.3, 'p', "the feeler"},
    });
}

TEST(Animals, OfTheMammalSkeletonDifferInTheirParts) {
    expectSeen({
        {"ferret", 7, 73, 'p', "the tail"},
        {"ferret", 76, 55, 'o', "the mask"},
        {"ferret", 81.4, 54.8, 'k', "the eye"},
        {"fox", 14, 66, 'p', "the tail"},
        {"fox", 7, 73, 'w', "its tip"},
        {"fox", 64, 22, 'p', "an ear"},
        {"fox", 74, 56, 's', "the cheek"},
        {"skunk", 20.5, 40, 'w', "the stripe of the tail"},
        {"skunk", 50, 43.5, 'w', "the stripe of the back"},
        {"glider", 11, 86, 'p', "the tail"},
        {"glider", 52, 68, 's', "the belly"},
        {"hedgehog", 47.9, 41, 's', "a quill behind"},
        {"hedgehog", 44.1, 41, 'p', "the one before"},
        {"hedgehog", 46, 79, 'p', "the body"},
        {"chinchilla", 14, 50, 'p', "the tail"},
        {"chinchilla", 72, 52, 's', "the cheek"},
        {"degu", 6, 58, 'k', "the tuft"},
        {"gerbil", 4, 58, 'p', "the tuft"},
        {"rabbit", 21, 60, 'w', "the puff"},
        {"rabbit", 70, 6, 'p', "a long ear"},
        {"guineapig", 30, 58, 's', "the round patch"},
        {"hamster", 54, 71, 's', "the big belly"},
        {"hamster", 20, 60, '.', "no tail"},
        {"guineapig", 14, 60, '.', "no tail"},
        {"rat", 50, 68, 's', "the belly"},
        {"rabbit", 50, 68, 'p', "no patch"},
        {"degu", 93.5, 52, 'k', "a dark nose"},
        {"rat", 93.5, 52, 'p', "a pink nose"},
        {"rat", 86, 50, 'p', "the snout"},
        {"guineapig", 88, 58, '.', "no snout"},
        {"degu", 98, 48.5, 'w', "a whisker"},
        {"ferret", 98, 55.3, '.', "no whisker"},
    });
}

TEST(Animals, TurnTheirPartsTheRightWay) {
    expectSeen({
        {"snake-python", 86.5, 30, 'p', "the nose goes up"},
        {"snake-python", 86.5, 36, '.', "and not down"},
        {"budgie", 43.5, 73.5, 'p', "the body leans back"},
        {"budgie", 58.5, 72.5, '.', "and not forward"},
        {"budgie", 39, 70, 's', "the wing leans with it"},
        {"crab", 65.5, 63, 'p', "the body is lower behind"},
        {"crab", 65.5, 57, '.', "than in front"},
    });
}

TEST(Animals, AreRoundAndClosedWhereTheyShouldBe) {
    expectSeen({
        {"tegu", 38.15, 49.15, '.', "the rounded corner of a band"},
        {"tegu", 39.5, 49.3, 's', "its end"},
        {"tortoise-small", 30.6, 72.4, '.', "the rounded corner of a leg"},
        {"tortoise-small", 32, 72, 's', "its end"},
        {"tortoise-small", 54, 41.2, 's', "the last edge of a scute"},
        {"rat", 76, 54, 'p', "head and snout are one shape"},
    });
}

TEST(Animals, AreKnownToTheLibrary) {
    qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data");
    std::set<QString> designs;
    for (const Species& species : CareLibrary::shared().species()) {
        EXPECT_TRUE(known().contains(species.art)) << species.id.toStdString();
        designs.insert(species.art);
    }
    EXPECT_EQ(designs.size(), 35U);
}

} // namespace ormiva::testing
