#include "OMSelfTest.h"

#include "Failure.h"
#include "OMMutation.h"
#include "OMNotify.h"
#include "OMPrefs.h"
#include "OMSetup.h"
#include "Opener.h"
#include "SelfTestSections.h"
#include "SymptomChecker.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QUuid>

#include <array>

namespace ormiva::OMSelfTest {

namespace {

/// The preferences that the run changes, put back at its end: a value is written again, an absent one
/// removed.
class KeptPreferences {
public:
    KeptPreferences() {
        for (std::size_t i = 0; i < keys().size(); ++i)
            m_values.at(i) = OMPrefs::value(keys().at(i));
    }
    ~KeptPreferences() {
        for (std::size_t i = 0; i < keys().size(); ++i)
            try {
                if (m_values.at(i).isValid())
                    OMPrefs::setValue(keys().at(i), m_values.at(i));
                else
                    OMPrefs::remove(keys().at(i));
            } catch (const Failure& failure) {
                printLine(QStringLiteral("A preference could not be put back: ") + failure.description());
            }
    }
    KeptPreferences(const KeptPreferences&) = delete;
    KeptPreferences& operator=(const KeptPreferences&) = delete;

private:
    static const std::array<QString, 4>& keys() {
        static const std::array<QString, 4> all = {VLKThemes::key, OMPrefs::weightUnitKey, VLZoom::key,
                                                   OMPrefs::remindersKey};
        return all;
    }

    std::array<QVariant, 4> m_values;
};

QString banner(const QString& mutation) {
    QString text =
        QStringLiteral("VLK Ormiva self-test — ") + QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    if (!mutation.isEmpty())
        text += QStringLiteral(" — MUTATION \"%1\": failures are EXPECTED").arg(mutation);
    return text;
}

void runSections(OMTestRun& run, const QString& scratch) {
    run.begin(
        QStringLiteral("Care library: every species has every required field and at least 2 cited sources"));
    contentTests(run);
    run.begin(QStringLiteral(
        "No medicine doses anywhere (mg/kg-style scan of every care sheet, rule and Help topic)"));
    doseTests(run);
    run.begin(
        QStringLiteral("Symptom checker: red flags are emergencies; results are worded as possibilities"));
    symptomTests(run);
    run.begin(QStringLiteral("Species Library search (SQLite FTS5)"));
    searchTests(run);
    run.begin(QStringLiteral("My Pets records: create, check, edit, delete"));
    recordTests(run, scratch);
    run.begin(QStringLiteral(
        "Pet records, weight logs and reminders survive a real relaunch (separate app processes)"));
    relaunchTests(run, scratch);
    run.begin(QStringLiteral("Reminders: next due, overdue, notifications"));
    reminderTests(run, scratch);
    run.begin(QStringLiteral("Export a pet's records for the vet (PDF and CSV)"));
    exportTests(run, scratch);
    run.begin(QStringLiteral("Printable care sheet (PDF) for a pet"));
    careSheetTests(run, scratch);
    run.begin(QStringLiteral("Backup and restore"));
    backupTests(run, scratch);
    run.begin(QStringLiteral("Look: themes and zoom (and that they persist); Help; VLK wording"));
    lookAndHelpTests(run);
    run.begin(QStringLiteral("Species art: every species has a drawing of its own"));
    artTests(run);
}

} // namespace

int run() {
    const QString mutation = qEnvironmentVariable("OM_SELFTEST_MUTATE");
    SymptomChecker::mutateIgnoreRedFlags = OMMutation::on(QStringLiteral("redflag"));
    OMNotify::enabled = false;
    QList<QUrl> opened;
    Opener::open = [&opened](const QUrl& address) { opened.append(address); };

    OMTestRun run;
    printLine(banner(mutation));
    const QString scratch = QDir::tempPath() + QStringLiteral("/om-selftest-") +
                            QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    {
        const KeptPreferences preferences;
        try {
            OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("g"));
            OMPrefs::setValue(OMPrefs::remindersKey, true);
        } catch (const Failure& failure) {
            printLine(QStringLiteral("The preferences could not be changed for this run: ") +
                      failure.description());
        }
        OMSetup::configure();
        if (QDir().mkpath(scratch))
            runSections(run, scratch);
        else
            run.check(false, QStringLiteral("the scratch folder %1 can be made").arg(scratch));
        printLine(run.summary());
    }
    QDir(scratch).removeRecursively();
    return run.failed > 0 ? 1 : 0;
}

std::pair<int, QString> runChild(const QStringList& arguments) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    constexpr int patience = 60'000; // milliseconds; a child that takes longer hangs
    if (!child.waitForStarted() || !child.waitForFinished(patience) ||
        child.exitStatus() != QProcess::NormalExit) {
        child.kill();
        child.waitForFinished();
        return {-1, QString::fromUtf8(child.readAllStandardOutput())};
    }
    return {child.exitCode(), QString::fromUtf8(child.readAllStandardOutput())};
}

const QList<std::pair<OMDay, double>>& relaunchWeights() {
    static const QList<std::pair<OMDay, double>> weights = {
        {{2026, 8, 1}, 401.5}, {{2026, 8, 15}, 404.0}, {{2026, 9, 1}, 409.25}};
    return weights;
}

} // namespace ormiva::OMSelfTest
