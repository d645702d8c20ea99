#include "VLUI.h"

#include "OMThemes.h"
#include "PrefsInFile.h"
#include "Printers.h"
#include "VLKThemes.h"

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

double contrast(const QColor& a, const QColor& b) {
    return VLKTheme::RGB::contrast({a.redF(), a.greenF(), a.blueF()}, {b.redF(), b.greenF(), b.blueF()});
}

class VLUITest : public ::testing::Test {
protected:
    VLUITest() { VLKThemes::registerThemes(OMThemes::extras()); }

    PrefsInFile m_prefs;
};

} // namespace

TEST_F(VLUITest, WritesReadablyOnEveryAccent) {
    const VLUI ui(nullptr);
    int themes = 0;
    for (const VLKTheme& theme : VLKThemes::all()) {
        const QColor accent = color(theme.accent);
        EXPECT_GE(contrast(ui.inkOn(accent), accent), 4.5) << theme.id.toStdString();
        // The two ends of a prominent button.
        EXPECT_GE(contrast(ui.inkOn(accent), ui.mix(accent, Qt::white, 0.05)), 4.5) << theme.id.toStdString();
        EXPECT_GE(contrast(ui.inkOn(accent), ui.mix(accent, Qt::black, 0.05)), 4.5) << theme.id.toStdString();
        ++themes;
    }
    EXPECT_EQ(themes, 8);
    EXPECT_EQ(ui.inkOn(ui.emergency()), QColor(Qt::white));
}

TEST_F(VLUITest, KeepsWhiteWhereItCanBeRead) {
    const VLUI ui(nullptr);
    EXPECT_EQ(ui.inkOn(QColor(0x2E, 0x7D, 0x32)), QColor(Qt::white)); // 5.1 to 1
    EXPECT_EQ(ui.inkOn(QColor(0x5A, 0xA9, 0xFF)), QColor(Qt::black)); // white is 2.5 to 1
    EXPECT_EQ(ui.inkOn(Qt::black), QColor(Qt::white));
    EXPECT_EQ(ui.inkOn(Qt::white), QColor(Qt::black));
}

} // namespace ormiva::testing
