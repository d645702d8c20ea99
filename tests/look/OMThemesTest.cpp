#include "OMThemes.h"

#include "ThemePrinters.h"

namespace ormiva {
namespace {

using RGB = VLKTheme::RGB;

TEST(OMThemes, AreTheTwoHabitats) {
    const QList<QStringList> expected = {
        {u"rainforest-canopy"_qs, u"Rainforest Canopy"_qs, u"extra"_qs, u"0F2A1D"_qs, u"2C5A3F"_qs,
         u"173826"_qs, u"F4FFF6"_qs, u"BFE0C8"_qs, u"2E7D32"_qs},
        {u"desert-stone"_qs, u"Desert Stone"_qs, u"extra"_qs, u"2A2118"_qs, u"5C4A36"_qs, u"3A2E22"_qs,
         u"FFF8EC"_qs, u"E6D4B8"_qs, u"9A5B13"_qs},
    };
    EXPECT_EQ(testing::rows(OMThemes::extras()), expected);
}

TEST(OMThemes, AreKnownByTheirIds) {
    EXPECT_EQ(OMThemes::canopyID, u"rainforest-canopy"_qs);
    EXPECT_EQ(OMThemes::desertID, u"desert-stone"_qs);
}

TEST(OMThemes, AreReadable) {
    ASSERT_EQ(OMThemes::extras().size(), 2);
    for (const VLKTheme& theme : OMThemes::extras()) {
        EXPECT_GE(RGB::contrast(theme.text, theme.bg), 7.0) << theme.id.toStdString();
        EXPECT_GE(RGB::contrast(theme.text, theme.panelTop), 4.5) << theme.id.toStdString();
        EXPECT_GE(RGB::contrast(theme.dim, theme.panelBottom), 4.5) << theme.id.toStdString();
        EXPECT_GE(RGB::contrast({1, 1, 1}, theme.accent), 4.5) << theme.id.toStdString();
    }
}

} // namespace
} // namespace ormiva
