#include "OMMutation.h"
#include "Printers.h"
#include "SelfTestSections.h"
#include "SymptomChecker.h"

#include <gtest/gtest.h>

#include <functional>

// Each fault that the self-test can be built with makes one of its checks fail, on the content that ships.

namespace ormiva {
namespace {

class SelfTestFaults : public ::testing::Test {
protected:
    SelfTestFaults() { qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data"); }
    ~SelfTestFaults() override {
        OMMutation::active.clear();
        SymptomChecker::mutateIgnoreRedFlags = false;
    }

    /// The lines of a section's failed checks.
    static QStringList failures(void (*section)(OMTestRun&)) {
        OMTestRun run;
        ::testing::internal::CaptureStdout();
        section(run);
        const QString output = QString::fromStdString(::testing::internal::GetCapturedStdout());
        EXPECT_GE(run.passed, 5);
        return output.split(u'\n').filter(u"FAIL  "_qs);
    }
};

TEST_F(SelfTestFaults, AreAbsentUnlessABuildFillsTheSet) {
    qputenv("OM_SELFTEST_MUTATE", "dose");
    for (const auto section : {OMSelfTest::contentTests, OMSelfTest::doseTests, OMSelfTest::symptomTests,
                               OMSelfTest::searchTests, OMSelfTest::artTests})
        EXPECT_EQ(failures(section), QStringList());
    qunsetenv("OM_SELFTEST_MUTATE");
}

TEST_F(SelfTestFaults, OfDosesAreNoticed) {
    OMMutation::active = {u"dose"_qs};
    const QStringList failed = failures(OMSelfTest::doseTests);
    ASSERT_EQ(failed.size(), 1);
    EXPECT_TRUE(failed.first().startsWith(u"FAIL  no dose amounts in ") &&
                failed.first().endsWith(u": mutation"));
}

TEST_F(SelfTestFaults, OfSourcesAreNoticed) {
    OMMutation::active = {u"missing-source"_qs};
    const QStringList failed = failures(OMSelfTest::contentTests);
    ASSERT_EQ(failed.size(), 1);
    EXPECT_TRUE(failed.first().startsWith(u"FAIL  every section cites a source: "));
}

TEST_F(SelfTestFaults, OfTheSearchAreNoticed) {
    OMMutation::active = {u"search"_qs};
    EXPECT_EQ(failures(OMSelfTest::searchTests),
              QStringList({u"FAIL  \"bearded\" finds the bearded dragon first"_qs}));
}

TEST_F(SelfTestFaults, OfRedFlagsAreNoticed) {
    SymptomChecker::mutateIgnoreRedFlags = true;
    const QStringList failed = failures(OMSelfTest::symptomTests);
    ASSERT_GE(failed.size(), 1);
    EXPECT_TRUE(failed.first().startsWith(u"FAIL  every red flag of every species is an emergency ("));
}

} // namespace
} // namespace ormiva
