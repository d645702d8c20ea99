#include "ToolEntries.h"

#include "OMSelfTest.h"
#include "OMStore.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>

// "--selftest" itself starts this program again, so it is tested with the real one.

namespace ormiva {
namespace {

using namespace ormiva::testing;

struct Outcome {
    std::optional<int> status;
    QString output;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << (outcome.status ? std::to_string(*outcome.status) : "no status") << ", \""
                   << outcome.output.toStdString() << '"';
    }
};

Outcome run(const QStringList& arguments) {
    ::testing::internal::CaptureStdout();
    const auto status = runTool(arguments);
    return {status, QString::fromStdString(::testing::internal::GetCapturedStdout())};
}

Outcome notBuilt(const QString& flag) {
    return {70, flag + u" is not part of this version of Ormiva yet.\n"_qs};
}

const Outcome window = {std::nullopt, QString()};
const QString write = u"--om-child-write"_qs;
const QString read = u"--om-child-read"_qs;
const QString prefs = u"--om-child-prefs"_qs;
const QString snapshots = u"--om-snapshots"_qs;
const QString sheet = u"--om-example-care-sheet"_qs;
const QString preferences = u"THEME|rainforest-canopy\nZOOM|1.0\nUNIT|g\n"_qs;

TEST(ToolEntries, TheChildrenWriteAndReadTheSameRecords) {
    const TemporaryFolder folder;
    const QString path = folder.file(u"relaunch.sqlite"_qs);
    const Outcome written = run({write, path});
    const QString digest = u"DIGEST|"_qs + OMStore(path).digest() + u'\n';
    EXPECT_EQ(written, (Outcome{0, digest}));
    EXPECT_EQ(
        run({read, path}),
        (Outcome{0,
                 u"pet|1\nweight|3\nfeeding|1\nshed|1\nvet_visit|1\nmedication|1\nreminder|1\nchecklist|1\n"
                 u"PET|Relaunch Rex|leopard-gecko|Male|2024-05-06|true\n"
                 u"WEIGHTS|2026-08-01=401.5,2026-08-15=404.0,2026-09-01=409.25\n"
                 u"REMINDER|uvb|182|10:15|2026-09-05|true\nMED|Med A|As the label says\n"_qs +
                     digest}));
}

TEST(ToolEntries, TheChildrenTellWhenTheRecordsCannotBeOpened) {
    const TemporaryFolder folder;
    const QString text = folder.write(u"text"_qs, "not a database, not a database");
    EXPECT_EQ(run({write, text}), (Outcome{3, QString()}));
    EXPECT_EQ(run({read, text}), (Outcome{3, QString()}));
    EXPECT_EQ(folder.read(u"text"_qs), QByteArray("not a database, not a database"));
}

TEST(ToolEntries, TheReadingChildFindsEmptyRecordsEmpty) {
    const TemporaryFolder folder;
    const Outcome empty = run({read, folder.file(u"new.sqlite"_qs)});
    EXPECT_EQ(empty.status, 0);
    EXPECT_TRUE(empty.output.startsWith(u"pet|0\nweight|0\n")) << empty;
    EXPECT_FALSE(empty.output.contains(u"PET|"));
}

TEST(ToolEntries, TheThirdChildTellsThePreferences) {
    EXPECT_EQ(run({prefs}), (Outcome{0, preferences}));
}

TEST(ToolEntries, AFlagIsFoundAnywhere) {
    EXPECT_EQ(run({u"a"_qs, prefs, u"c"_qs}), (Outcome{0, preferences}));
    EXPECT_EQ(run({u"a"_qs, snapshots, u"pictures"_qs, u"c"_qs}), notBuilt(snapshots));
    const TemporaryFolder folder;
    const QString path = folder.file(u"sheet.pdf"_qs);
    EXPECT_EQ(run({u"a"_qs, sheet, path, u"c"_qs}), (Outcome{0, u"wrote %1\n"_qs.arg(path)}));
    EXPECT_TRUE(folder.read(u"sheet.pdf"_qs).startsWith("%PDF-"));
}

TEST(ToolEntries, TheOrderOfTheEntriesDecidesNotThatOfTheFlags) {
    const TemporaryFolder folder;
    EXPECT_EQ(run({u"--selftest"_qs, prefs}), (Outcome{0, preferences}));
    const QString path = folder.file(u"a.sqlite"_qs);
    const Outcome written = run({prefs, read, folder.file(u"b.sqlite"_qs), write, path});
    EXPECT_EQ(written, (Outcome{0, u"DIGEST|"_qs + OMStore(path).digest() + u'\n'}));
    EXPECT_FALSE(QDir(folder.path()).exists(u"b.sqlite"_qs));
    EXPECT_EQ(run({u"--selftest"_qs, sheet, u"a"_qs, snapshots, u"b"_qs}), notBuilt(snapshots));
    const QString pdf = folder.file(u"a.pdf"_qs);
    EXPECT_EQ(run({u"--selftest"_qs, sheet, pdf}), (Outcome{0, u"wrote %1\n"_qs.arg(pdf)}));
}

TEST(ToolEntries, WithoutItsPathAFlagCountsAsNotGiven) {
    EXPECT_EQ(run({write}), window);
    EXPECT_EQ(run({read}), window);
    EXPECT_EQ(run({snapshots}), window);
    EXPECT_EQ(run({sheet}), window);
    const TemporaryFolder folder;
    const QString pdf = folder.file(u"a.pdf"_qs);
    EXPECT_EQ(run({sheet, pdf, write}), (Outcome{0, u"wrote %1\n"_qs.arg(pdf)}));
}

TEST(ToolEntries, WhateverStandsBehindAFlagIsItsPath) {
    EXPECT_EQ(run({snapshots, u"--selftest"_qs}), notBuilt(snapshots));
}

TEST(ToolEntries, UnknownFlagsAreIgnored) {
    EXPECT_EQ(run({}), window);
    EXPECT_EQ(run({u"--unknown"_qs, u"--Selftest"_qs, u"-selftest"_qs, u"--selftest=1"_qs}), window);
}

} // namespace
} // namespace ormiva
