#include "PetAvatar.h"
#include "SpeciesIcon.h"

#include "CareLibrary.h"
#include "MadePhotos.h"
#include "PrefsInFile.h"
#include "Printers.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

constexpr int edge = 80;

QImage drawn(const std::function<void(QPainter&)>& paint, int pixels = edge) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(pixels / double(edge), pixels / double(edge));
    paint(painter);
    return image;
}

QImage avatar(const Pet& pet, int pixels = edge) {
    return drawn([&](QPainter& painter) { PetAvatar::paintAvatar(painter, edge, pet); }, pixels);
}

Pet petOf(const QString& speciesID, std::optional<QByteArray> photo = {}) {
    Pet pet;
    pet.name = u"Nova"_qs;
    pet.speciesID = speciesID;
    pet.photo = std::move(photo);
    return pet;
}

/// A wide picture in three stripes: red, green, blue.
QImage stripes(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 3, height, Qt::red);
    painter.fillRect(2 * width / 3, 0, width, height, Qt::blue);
    return image;
}

class PetAvatarTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data"); }

private:
    PrefsInFile m_prefs;
};

} // namespace

TEST_F(PetAvatarTest, FillsTheCircleWithTheMiddleOfThePhoto) {
    const QImage image = avatar(petOf(u"budgie"_qs, encoded(stripes(900, 300), "PNG")));
    EXPECT_EQ(image.pixelColor(40, 40), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(4, 40), QColor(0, 255, 0)); // cut to the square in the middle
    EXPECT_EQ(image.pixelColor(76, 40), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(image.pixelColor(9, 9).alpha(), 0);
    EXPECT_EQ(image.pixelColor(14, 14).alpha(), 255);
}

TEST_F(PetAvatarTest, HasAWhitishBorderInsideTheEdgeOfAPhoto) {
    QImage black(200, 200, QImage::Format_RGB32);
    black.fill(Qt::black);
    const QImage image = avatar(petOf(u"budgie"_qs, encoded(black, "PNG")), 10 * edge);
    // 1.2 points of white at 0.4, at ten pixels a point.
    EXPECT_EQ(image.pixelColor(400, 6), QColor(102, 102, 102));
    EXPECT_EQ(image.pixelColor(400, 10), QColor(102, 102, 102));
    EXPECT_EQ(image.pixelColor(400, 14), QColor(0, 0, 0));
    EXPECT_EQ(image.pixelColor(794, 400), QColor(102, 102, 102));
}

TEST_F(PetAvatarTest, ShowsAPhotoUpright) {
    // As stored the stripes stand side by side; upright red is above and blue below.
    const QImage image =
        avatar(petOf(u"budgie"_qs, withSegments(encoded(stripes(300, 300), "JPEG", 95), orientationNote(6))));
    EXPECT_GT(image.pixelColor(40, 10).red(), 200);
    EXPECT_GT(image.pixelColor(40, 40).green(), 200);
    EXPECT_GT(image.pixelColor(40, 70).blue(), 200);
}

TEST_F(PetAvatarTest, ShowsTheSpeciesOnItsBadgeWithoutAPhoto) {
    const Species dragon = *CareLibrary::shared().species(u"bearded-dragon"_qs);
    const QImage expected = drawn(
        [&](QPainter& painter) { SpeciesIcon::paintIcon(painter, edge, dragon.art, dragon.palette, true); });
    EXPECT_EQ(avatar(petOf(dragon.id)), expected);
    EXPECT_EQ(avatar(petOf(dragon.id, QByteArray())), expected);
    EXPECT_EQ(avatar(petOf(dragon.id, QByteArray("no picture"))), expected);
}

TEST_F(PetAvatarTest, IsGreyForASpeciesThatTheLibraryDoesNotHold) {
    for (const std::optional<QByteArray>& photo : {std::optional<QByteArray>(), {QByteArray("no picture")}}) {
        const QImage image = avatar(petOf(u"dodo"_qs, photo));
        EXPECT_EQ(image.pixelColor(40, 40), QColor(0x8E, 0x8E, 0x93));
        EXPECT_EQ(image.pixelColor(40, 1), QColor(0x8E, 0x8E, 0x93));
        EXPECT_EQ(image.pixelColor(5, 5).alpha(), 0);
    }
}

} // namespace ormiva::testing
