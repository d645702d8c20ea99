#include "OMTestRun.h"

#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

QString printed(const std::function<void()>& body) {
    ::testing::internal::CaptureStdout();
    body();
    return QString::fromStdString(::testing::internal::GetCapturedStdout());
}

TEST(OMTestRun, CountsAndPrintsItsChecks) {
    OMTestRun run;
    EXPECT_EQ(run.summary(), u"ALL 0 CHECKS PASSED"_qs);
    EXPECT_EQ(printed([&] {
                  run.begin(u"Backup and restore"_qs);
                  run.check(true, u"one — “two”"_qs);
                  run.check(true, u"three"_qs);
              }),
              u"== Backup and restore\nPASS  one — “two”\nPASS  three\n"_qs);
    EXPECT_EQ(run.summary(), u"ALL 2 CHECKS PASSED"_qs);
    EXPECT_EQ(printed([&] { run.check(false, u"four"_qs); }), u"FAIL  four\n"_qs);
    EXPECT_EQ(run.passed, 2);
    EXPECT_EQ(run.failed, 1);
    EXPECT_EQ(run.summary(), u"1 FAILED, 2 passed"_qs);
}

} // namespace
} // namespace ormiva
