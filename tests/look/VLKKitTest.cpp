#include "VLKKit.h"

#include "InstalledThemes.h"

namespace ormiva {
namespace {

using Kit = testing::InstalledThemes;

TEST_F(Kit, KnowsTheApplicationsName) {
    EXPECT_EQ(VLKKit::appName(), u"VLK Ormiva"_qs);
    VLKKit::install(u"Another"_qs, {}, {});
    EXPECT_EQ(VLKKit::appName(), u"Another"_qs);
}

} // namespace
} // namespace ormiva
