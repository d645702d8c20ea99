#include "ThemePrinters.h"

namespace ormiva {
namespace {

using RGB = VLKTheme::RGB;

constexpr RGB black{0, 0, 0};
constexpr RGB white{1, 1, 1};

TEST(RGB, IsMadeOf24Bits) {
    EXPECT_EQ(RGB::hex(0x336699), (RGB{51 / 255.0, 102 / 255.0, 153 / 255.0}));
    EXPECT_EQ(RGB::hex(0x000000), black);
    EXPECT_EQ(RGB::hex(0xFFFFFF), white);
    EXPECT_EQ(RGB::hex(0x010000), (RGB{1 / 255.0, 0, 0}));
    EXPECT_EQ(RGB::hex(0x0000FF), (RGB{0, 0, 1}));
}

TEST(RGB, IsEqualByAllThreeFields) {
    EXPECT_EQ((RGB{0.1, 0.2, 0.3}), (RGB{0.1, 0.2, 0.3}));
    EXPECT_NE((RGB{0.1, 0.2, 0.3}), (RGB{0.9, 0.2, 0.3}));
    EXPECT_NE((RGB{0.1, 0.2, 0.3}), (RGB{0.1, 0.9, 0.3}));
    EXPECT_NE((RGB{0.1, 0.2, 0.3}), (RGB{0.1, 0.2, 0.9}));
}

TEST(RGB, HasALuminance) {
    EXPECT_DOUBLE_EQ(black.luminance(), 0);
    EXPECT_DOUBLE_EQ(white.luminance(), 1);
    EXPECT_DOUBLE_EQ((RGB{1, 0, 0}).luminance(), 0.2126);
    EXPECT_DOUBLE_EQ((RGB{0, 1, 0}).luminance(), 0.7152);
    EXPECT_DOUBLE_EQ((RGB{0, 0, 1}).luminance(), 0.0722);
    // (0.5 + 0.055) / 1.055 raised to 2.4
    EXPECT_NEAR((RGB{0.5, 0.5, 0.5}).luminance(), 0.21404114048223255, 1e-15);
}

TEST(RGB, HasALuminanceInProportionForVeryDarkChannels) {
    EXPECT_DOUBLE_EQ((RGB{0.03928, 0.03928, 0.03928}).luminance(), 0.03928 / 12.92);
    EXPECT_DOUBLE_EQ((RGB{0.01, 0, 0}).luminance(), 0.2126 * 0.01 / 12.92);
    EXPECT_NE((RGB{0.0393, 0.0393, 0.0393}).luminance(), 0.0393 / 12.92);
}

TEST(RGB, HasAContrastInEitherOrder) {
    EXPECT_DOUBLE_EQ(RGB::contrast(black, white), 21);
    EXPECT_DOUBLE_EQ(RGB::contrast(white, black), 21);
    EXPECT_DOUBLE_EQ(RGB::contrast(white, white), 1);
    EXPECT_DOUBLE_EQ(RGB::contrast({1, 0, 0}, black), 0.2626 / 0.05);
    EXPECT_NEAR(RGB::contrast(RGB::hex(0x767676), white), 4.54, 0.005);
}

TEST(VLKTheme, ListsItsFamilies) {
    const QStringList expected = {u"masculine"_qs, u"feminine"_qs, u"black"_qs, u"gray"_qs, u"extra"_qs};
    EXPECT_EQ(QStringList(VLKTheme::families().begin(), VLKTheme::families().end()), expected);
    using enum VLKTheme::Family;
    int order = 0;
    for (const VLKTheme::Family family : {Masculine, Feminine, Black, Gray, Extra})
        EXPECT_EQ(static_cast<int>(family), order++);
}

TEST(VLKTheme, IsEqualByItsId) {
    VLKTheme a;
    a.id = u"a"_qs;
    VLKTheme other = a;
    other.name = u"Another"_qs;
    other.bg = white;
    EXPECT_EQ(a, other);
    other.id = u"b"_qs;
    EXPECT_FALSE(a == other);
}

TEST(VLKTheme, IsPaintedInItsColoursWithAWhiteRim) {
    VLKTheme theme;
    theme.bg = RGB::hex(0x010203);
    theme.panelTop = RGB::hex(0x040506);
    theme.panelBottom = RGB::hex(0x070809);
    theme.text = RGB::hex(0x0A0B0C);
    theme.dim = RGB::hex(0x0D0E0F);
    theme.accent = RGB::hex(0xF0F1F2);
    const VLKitTheme kit = theme.kitTheme();
    EXPECT_EQ(kit.bg, QColor(1, 2, 3));
    EXPECT_EQ(kit.panelTop, QColor(4, 5, 6));
    EXPECT_EQ(kit.panelBottom, QColor(7, 8, 9));
    EXPECT_EQ(kit.text, QColor(10, 11, 12));
    EXPECT_EQ(kit.dim, QColor(13, 14, 15));
    EXPECT_EQ(kit.accent, QColor(240, 241, 242));
    EXPECT_EQ(kit.rim.name(), u"#ffffff"_qs);
    EXPECT_NEAR(kit.rim.alphaF(), 0.25, 1e-4);
    for (const QColor& color : {kit.bg, kit.panelTop, kit.panelBottom, kit.text, kit.dim, kit.accent})
        EXPECT_EQ(color.alphaF(), 1);
}

} // namespace
} // namespace ormiva
