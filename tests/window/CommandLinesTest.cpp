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

const QString preferences = QStringLiteral("THEME|rainforest-canopy\nZOOM|1.0\nUNIT|g\n");

QStringList words(const char* line) {
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(CommandLines, ToolsNeedNoDisplayAndTouchNothing) {
    EXPECT_EQ(run(words("--om-child-prefs")).output, preferences);
    EXPECT_EQ(run(words("--om-snapshots pictures")), notBuilt(QStringLiteral("--om-snapshots")));
    const TemporaryFolder folder;
    const QString sheet = folder.file(QStringLiteral("sheet.pdf"));
    const QStringList arguments = {QStringLiteral("--om-example-care-sheet"), sheet};
    EXPECT_EQ(run(arguments), (Outcome{0, QStringLiteral("wrote %1\n").arg(sheet), {}, {}}));
    EXPECT_TRUE(folder.read(QStringLiteral("sheet.pdf")).startsWith("%PDF-"));
}

TEST(CommandLines, TheSelfTestPassesAndLeavesNothingBehind) {
    const TemporaryFolder home;
    const QByteArray settings("[General]\nom.weightUnit=oz\n");
    home.write(QStringLiteral("com.ventrel.ormiva.ini"), settings);
    const QByteArray records = "these are the keeper's records";
    home.write(QStringLiteral("Pets.sqlite"), records);
    Program program(home.path(), {},
                    {QStringLiteral("OM_DB_PATH=") + home.file(QStringLiteral("Pets.sqlite")),
                     QStringLiteral("OM_SELFTEST_MUTATE=redflag"), QStringLiteral("TMPDIR=") + home.path()});
    program.start(words("--selftest"));
    const auto status = program.status(120'000);
    const QString output = program.output();
    EXPECT_EQ(status, 0) << output.toStdString();
    const QStringList lines = output.trimmed().split(u'\n');
    EXPECT_TRUE(lines.first().startsWith(QStringLiteral("VLK Ormiva self-test — ")))
        << lines.first().toStdString();
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral(" — MUTATION \"redflag\": failures are EXPECTED")));
    EXPECT_EQ(lines.last(),
              QStringLiteral("ALL %1 CHECKS PASSED").arg(lines.filter(QStringLiteral("PASS  ")).size()));
    EXPECT_GE(lines.filter(QStringLiteral("PASS  ")).size(), 90);
    EXPECT_EQ(lines.filter(QStringLiteral("== ")).size(), 12);
    EXPECT_EQ(home.read(QStringLiteral("Pets.sqlite")), records);
    EXPECT_EQ(home.read(QStringLiteral("com.ventrel.ormiva.ini")), settings);
    EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("om-selftest-*")}), QStringList());
    EXPECT_FALSE(QDir(home.path()).exists(QStringLiteral("VLK Ormiva/Pets.sqlite")));
}

TEST(CommandLines, TheSelfTestFailsOnContentThatIsMissing) {
    const Outcome outcome = run(words("--selftest"), words("OM_DATA_DIR=/nowhere"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.output.contains(QStringLiteral("FAIL  the library holds 30 to 40 species (0)")));
    EXPECT_TRUE(outcome.output.trimmed().section(u'\n', -1).contains(QStringLiteral(" FAILED, ")));
}

TEST(CommandLines, TheChildEntryIsAskedFirst) {
    EXPECT_EQ(run(words("--selftest --om-child-prefs")).output, preferences);
}

TEST(CommandLines, AFlagWithoutItsPathIsNoToolRun) {
    EXPECT_EQ(run(words("--om-child-write")), noDisplay);
    EXPECT_EQ(run(words("--om-snapshots")), noDisplay);
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
