// The program started with one command line after the other, where there is no display: what it prints, how
// it ends, and that nothing of the user's is touched.

#include "Desktop.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

struct Outcome {
    std::optional<int> status;
    QString output;
    QString errors;
    QStringList files; ///< what is in the home afterwards

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << "status " << outcome.status.value_or(-1) << "\nout: " << outcome.output.toStdString()
                   << "err: " << outcome.errors.toStdString()
                   << "files: " << outcome.files.join(u' ').toStdString();
    }
};

Outcome run(const QStringList& arguments, const QStringList& variables = {}) {
    const TemporaryFolder home;
    Program program(home.path(), {}, variables);
    program.start(arguments);
    Outcome outcome;
    outcome.status = program.status();
    outcome.output = program.output();
    outcome.errors = program.errors();
    outcome.files = QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    return outcome;
}

Outcome notBuilt(const QString& flag) {
    return {70, flag + QStringLiteral(" is not part of this version of Ormiva yet.\n"), {}, {}};
}

const Outcome noDisplay = {
    1, {}, QStringLiteral("Ormiva needs a graphical desktop, and none could be reached.\n"), {}};

QStringList words(const char* line) {
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(CommandLines, ToolsNeedNoDisplayAndTouchNothing) {
    EXPECT_EQ(run(words("--selftest")), notBuilt(QStringLiteral("--selftest")));
    EXPECT_EQ(run(words("--om-child-prefs")), notBuilt(QStringLiteral("--om-child-prefs")));
    EXPECT_EQ(run(words("--om-child-write records.sqlite")), notBuilt(QStringLiteral("--om-child-write")));
    EXPECT_EQ(run(words("--om-child-read records.sqlite")), notBuilt(QStringLiteral("--om-child-read")));
    EXPECT_EQ(run(words("--om-snapshots pictures")), notBuilt(QStringLiteral("--om-snapshots")));
    EXPECT_EQ(run(words("--om-example-care-sheet sheet.pdf")),
              notBuilt(QStringLiteral("--om-example-care-sheet")));
}

TEST(CommandLines, ToolsDoNotLookAtTheRecordsOrTheContent) {
    EXPECT_EQ(run(words("--selftest"), words("OM_DB_PATH=/nowhere/x.sqlite OM_DATA_DIR=/nowhere")),
              notBuilt(QStringLiteral("--selftest")));
}

TEST(CommandLines, TheChildEntryIsAskedFirst) {
    EXPECT_EQ(run(words("--selftest --om-child-prefs")), notBuilt(QStringLiteral("--om-child-prefs")));
}

TEST(CommandLines, AFlagWithoutItsPathIsNoToolRun) {
    EXPECT_EQ(run(words("--om-child-write")), noDisplay);
    EXPECT_EQ(run(words("--om-snapshots")), noDisplay);
    EXPECT_EQ(run(words("--selftest --om-example-care-sheet")), notBuilt(QStringLiteral("--selftest")));
}

TEST(CommandLines, WithoutADisplayOneSentenceSaysSo) {
    EXPECT_EQ(run({}), noDisplay);
    EXPECT_EQ(run(words("--unknown")), noDisplay);
}

TEST(CommandLines, ADeadDisplayIsNoDisplay) {
    EXPECT_EQ(run({}, words("DISPLAY=:9871")), noDisplay);
    EXPECT_EQ(run({}, words("WAYLAND_DISPLAY=wayland-9871")), noDisplay);
    EXPECT_EQ(run({}, words("QT_QPA_PLATFORM=xcb DISPLAY=:9871")), noDisplay);
    EXPECT_EQ(run({}, words("QT_QPA_PLATFORM=no-such-platform")), noDisplay);
}

} // namespace ormiva::testing
