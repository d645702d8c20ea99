#include "ArtPainter.h"
#include "HexColor.h"
#include "SpeciesIcon.h"

#include "OMThemes.h"
#include "PrefsInFile.h"
#include "Printers.h"
#include "VLKThemes.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

QImage icon(const QStringList& palette, bool badge, int edge = 100) {
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    SpeciesIcon::paintIcon(painter, edge, QStringLiteral("nothing"), palette, badge);
    return image;
}

QRgb bodyOf(const QImage& image) {
    return image.pixel(42, 60);
}

} // namespace

TEST(HexColor, ReadsSixDigitsWithHashesAtEitherEnd) {
    const QColor expected = QColor::fromRgb(0xA1, 0xB2, 0xC3);
    for (const char16_t* text : {u"A1B2C3", u"#A1B2C3", u"##A1B2C3#", u"a1b2c3", u"FFA1B2C3"})
        EXPECT_EQ(colorFromHexString(QString::fromUtf16(text)), expected)
            << QString::fromUtf16(text).toStdString();
}

TEST(HexColor, IsGreyForWhatItCannotRead) {
    for (const char16_t* text : {u"", u"#", u"xyz", u"A1 B2C3", u"0xA1B2", u"-12", u"1A1B2C3D4"})
        EXPECT_EQ(colorFromHexString(QString::fromUtf16(text)), QColor::fromRgb(0x777777))
            << QString::fromUtf16(text).toStdString();
}

TEST(HexColor, ReadsShortNumbersAsTheirValue) {
    EXPECT_EQ(colorFromHexString(QStringLiteral("FF")), QColor::fromRgb(0, 0, 255));
}

TEST(SpeciesIcon, TakesMissingColorsFromItsOwn) {
    EXPECT_EQ(bodyOf(icon({}, false)), QColor::fromRgb(0x6B8E5A).rgba());
    EXPECT_EQ(bodyOf(icon({QStringLiteral("102030")}, false)), QColor::fromRgb(0x102030).rgba());
}

TEST(SpeciesIcon, ShowsAPlainCreatureForAnUnknownKey) {
    const QImage image = icon({}, false);
    EXPECT_EQ(qAlpha(image.pixel(50, 30)), 0); // above the body, which begins at 32
    EXPECT_EQ(qAlpha(image.pixel(50, 34)), 255);
    EXPECT_EQ(qAlpha(image.pixel(72, 52)), 0);
    EXPECT_EQ(image.pixel(58, 48), QColor::fromRgbF(0.06F, 0.06F, 0.06F).rgba()); // the pupil
}

TEST(SpeciesIcon, ScalesWithItsSize) {
    EXPECT_EQ(qAlpha(icon({}, false, 200).pixel(100, 66)), 255);
    EXPECT_EQ(qAlpha(icon({}, false, 200).pixel(100, 60)), 0);
}

TEST(SpeciesIcon, PaintsTheBadgeInTheColorsOfTheTheme) {
    const PrefsInFile prefs;
    VLKThemes::registerThemes(OMThemes::extras());
    VLKThemes::setCurrentID(QStringLiteral("midnight-black"));
    const QImage black = icon({}, true);
    VLKThemes::setCurrentID(OMThemes::canopyID);
    const QImage canopy = icon({}, true);

    EXPECT_EQ(qAlpha(black.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(black.pixel(98, 98)), 0);
    EXPECT_GT(qAlpha(black.pixel(50, 20)), 240);
    EXPECT_GT(qGreen(canopy.pixel(20, 45)), qRed(canopy.pixel(20, 45)) + 20);
    EXPECT_LT(std::abs(qGreen(black.pixel(85, 60)) - qRed(black.pixel(85, 60))), 8);
    // The lower segment is darker than what lies just above its chord, which ends at about y = 71.
    EXPECT_LT(qGreen(canopy.pixel(50, 80)), qGreen(canopy.pixel(50, 68)) - 3);
}

} // namespace ormiva::testing
