#include "VLZoom.h"

#include "PrefsInFile.h"
#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva::testing {

TEST(VLZoom, HasTheseLimitsAndLevels) {
    EXPECT_EQ(VLZoom::key, QStringLiteral("vlk.zoom"));
    EXPECT_EQ(VLZoom::min, 0.85);
    EXPECT_EQ(VLZoom::max, 2.0);
    EXPECT_EQ(VLZoom::step, 0.15);
    EXPECT_EQ(VLZoom::levels(), (QList<int>{85, 100, 115, 130, 150, 175, 200}));
    EXPECT_EQ(VLZoom::levelTitle(115), QStringLiteral("115%"));
}

TEST(VLZoom, ClampsToTwoDecimalPlacesWithinTheLimits) {
    EXPECT_EQ(VLZoom::clamp(1.234), 1.23);
    EXPECT_EQ(VLZoom::clamp(1.9 + VLZoom::step), 2.0);
    EXPECT_EQ(VLZoom::clamp(2.0 + VLZoom::step), 2.0);
    EXPECT_EQ(VLZoom::clamp(0.9 - VLZoom::step), 0.85);
    EXPECT_EQ(VLZoom::clamp(1.0 + VLZoom::step), 1.15);
}

TEST(VLZoom, IsOneUntilSomethingIsStored) {
    const PrefsInFile prefs;
    EXPECT_EQ(VLZoom::value(), 1.0);
    OMPrefs::setValue(VLZoom::key, 0);
    EXPECT_EQ(VLZoom::value(), 1.0);
    OMPrefs::setValue(VLZoom::key, QStringLiteral("large"));
    EXPECT_EQ(VLZoom::value(), 1.0);
    OMPrefs::setValue(VLZoom::key, QStringLiteral("nan"));
    EXPECT_EQ(VLZoom::value(), 1.0);
}

TEST(VLZoom, StoresWhatItIsGivenClamped) {
    PrefsInFile prefs;
    VLZoom::setValue(3.0);
    EXPECT_EQ(VLZoom::value(), 2.0);
    VLZoom::setValue(0.5);
    EXPECT_EQ(VLZoom::value(), 0.85);
    VLZoom::setValue(1.45);
    prefs.startAgain();
    EXPECT_EQ(VLZoom::value(), 1.45);
}

TEST(VLZoom, ReadsClampedWithoutRepairingWhatIsStored) {
    const PrefsInFile prefs;
    OMPrefs::setValue(VLZoom::key, 1.234);
    EXPECT_EQ(VLZoom::value(), 1.23);
    OMPrefs::setValue(VLZoom::key, 7.5);
    EXPECT_EQ(VLZoom::value(), 2.0);
    EXPECT_EQ(OMPrefs::value(VLZoom::key).toDouble(), 7.5);
}

} // namespace ormiva::testing
