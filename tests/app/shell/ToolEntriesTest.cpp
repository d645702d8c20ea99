#include "ToolEntries.h"

#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

struct Outcome {
    std::optional<int> status;
    std::string output;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << (outcome.status ? std::to_string(*outcome.status) : "no status") << ", \""
                   << outcome.output << '"';
    }
};

Outcome run(const char* line) {
    ::testing::internal::CaptureStdout();
    const auto status = runTool(QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts));
    return {status, ::testing::internal::GetCapturedStdout()};
}

Outcome notBuilt(const std::string& flag) {
    return {70, flag + " is not part of this version of Ormiva yet.\n"};
}

const Outcome window = {std::nullopt, ""};

} // namespace

TEST(ToolEntries, EachFlagHasItsEntry) {
    EXPECT_EQ(run("--om-child-write /tmp/x"), notBuilt("--om-child-write"));
    EXPECT_EQ(run("--om-child-read /tmp/x"), notBuilt("--om-child-read"));
    EXPECT_EQ(run("--om-child-prefs"), notBuilt("--om-child-prefs"));
    EXPECT_EQ(run("--om-snapshots /tmp/x"), notBuilt("--om-snapshots"));
    EXPECT_EQ(run("--om-example-care-sheet /tmp/x"), notBuilt("--om-example-care-sheet"));
    EXPECT_EQ(run("--selftest"), notBuilt("--selftest"));
}

TEST(ToolEntries, AFlagIsFoundAnywhere) {
    EXPECT_EQ(run("a --b --selftest c"), notBuilt("--selftest"));
    EXPECT_EQ(run("a --om-snapshots /tmp/x c"), notBuilt("--om-snapshots"));
}

TEST(ToolEntries, TheOrderOfTheEntriesDecidesNotThatOfTheFlags) {
    EXPECT_EQ(run("--selftest --om-child-prefs"), notBuilt("--om-child-prefs"));
    EXPECT_EQ(run("--om-child-prefs --om-child-read /tmp/x --om-child-write /tmp/x"),
              notBuilt("--om-child-write"));
    EXPECT_EQ(run("--selftest --om-example-care-sheet a --om-snapshots b"), notBuilt("--om-snapshots"));
    EXPECT_EQ(run("--selftest --om-example-care-sheet a"), notBuilt("--om-example-care-sheet"));
}

TEST(ToolEntries, WithoutItsPathAFlagCountsAsNotGiven) {
    EXPECT_EQ(run("--om-child-write"), window);
    EXPECT_EQ(run("--om-child-read"), window);
    EXPECT_EQ(run("--om-snapshots"), window);
    EXPECT_EQ(run("--om-example-care-sheet"), window);
    EXPECT_EQ(run("--selftest --om-child-write"), notBuilt("--selftest"));
}

TEST(ToolEntries, WhateverStandsBehindAFlagIsItsPath) {
    EXPECT_EQ(run("--om-snapshots --om-child-prefs"), notBuilt("--om-child-prefs"));
    EXPECT_EQ(run("--om-child-write --selftest"), notBuilt("--om-child-write"));
}

TEST(ToolEntries, UnknownFlagsAreIgnored) {
    EXPECT_EQ(run(""), window);
    EXPECT_EQ(run("--unknown --Selftest -selftest --selftest=1"), window);
}

} // namespace ormiva::testing
