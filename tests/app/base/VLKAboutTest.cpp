#include "VLKAbout.h"

#include "Printers.h"
#include "UserCalendar.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

TEST(VLKAbout, TellsTheVersionOfTheProject) {
    EXPECT_EQ(VLKAbout::version(), u"Version "_qs + QStringLiteral(ORMIVA_PROJECT_VERSION));
}

TEST(VLKAbout, ClosesWithTheYearOfTheClock) {
    using namespace std::chrono;
    for (const auto& [moment, line] :
         {std::pair(sys_days(2026y / 12 / 31) + 22h, u"© 2026 Ventrel (VLK)"_qs),
          std::pair(sys_days(2026y / 12 / 31) + 23h, u"© 2027 Ventrel (VLK)"_qs)}) {
        UserCalendar::setSurroundings(
            {[moment] { return Instant(moment); }, u"Europe/Berlin"_qs, u"th_TH"_qs});
        EXPECT_EQ(VLKAbout::closingLine(), line);
    }
    UserCalendar::setSurroundings({});
}

} // namespace
} // namespace ormiva
