#include "OMColors.h"

#include "InstalledThemes.h"

namespace ormiva {
namespace {

class Colors : public testing::InstalledThemes {
protected:
    /// Reals of the table survive in a QColor as 16-bit steps.
    static void expectColor(const QColor& color, double red, double green, double blue) {
        EXPECT_NEAR(color.redF(), red, 1.0 / 65535);
        EXPECT_NEAR(color.greenF(), green, 1.0 / 65535);
        EXPECT_NEAR(color.blueF(), blue, 1.0 / 65535);
        EXPECT_EQ(color.alphaF(), 1);
        EXPECT_EQ(color.spec(), QColor::Rgb);
    }
};

TEST_F(Colors, AreFixedInEveryTheme) {
    for (const VLKTheme& theme : VLKThemes::all()) {
        VLKThemes::setCurrentID(theme.id);
        expectColor(OMColors::leaf(), 0.5, 0.84, 0.47);
        expectColor(OMColors::warmLight(), 1.0, 0.82, 0.52);
        expectColor(OMColors::stone(), 0.62, 0.6, 0.55);
        expectColor(OMColors::emergency(), 0.86, 0.18, 0.16);
        expectColor(OMColors::soon(), 0.93, 0.58, 0.12);
        expectColor(OMColors::monitor(), 0.24, 0.62, 0.4);
        expectColor(OMColors::alert(), 1.0, 0.55, 0.35);
    }
}

TEST_F(Colors, OfAnUrgencyAreThoseOfItsName) {
    EXPECT_EQ(OMColors::urgency(Urgency::Monitor), OMColors::monitor());
    EXPECT_EQ(OMColors::urgency(Urgency::Soon), OMColors::soon());
    EXPECT_EQ(OMColors::urgency(Urgency::Emergency), OMColors::emergency());
}

TEST_F(Colors, AreThoseOfTheCurrentTheme) {
    VLKThemes::setCurrentID(u"desert-stone"_qs);
    const OMColors colors;
    EXPECT_EQ(colors.bg(), QColor(0x2A, 0x21, 0x18));
    EXPECT_EQ(colors.panelTop(), QColor(0x5C, 0x4A, 0x36));
    EXPECT_EQ(colors.panelBottom(), QColor(0x3A, 0x2E, 0x22));
    EXPECT_EQ(colors.text(), QColor(0xFF, 0xF8, 0xEC));
    EXPECT_EQ(colors.dim(), QColor(0xE6, 0xD4, 0xB8));
    EXPECT_EQ(colors.accent(), QColor(0x9A, 0x5B, 0x13));
}

TEST_F(Colors, StayThoseOfTheMomentInWhichTheyWereTaken) {
    VLKThemes::setCurrentID(u"desert-stone"_qs);
    const OMColors before;
    VLKThemes::setCurrentID(u"midnight-black"_qs);
    EXPECT_EQ(before.t.id, u"desert-stone"_qs);
    EXPECT_EQ(before.bg(), QColor(0x2A, 0x21, 0x18));
    EXPECT_EQ(OMColors().bg(), QColor(0x05, 0x05, 0x06));
}

} // namespace
} // namespace ormiva
