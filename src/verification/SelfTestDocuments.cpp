// The self-test's sections on what is printed and exported.

#include "CareSheetPDF.h"
#include "DoseScanner.h"
#include "OMCSV.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "PetPDF.h"
#include "SampleData.h"
#include "SelfTestSections.h"

#include <QFile>
#include <QProcess>

#include <algorithm>

namespace ormiva::OMSelfTest {

namespace {

/// The words of a document, one blank between any two. Empty when it can't be read.
QString textOf(const QByteArray& pdf, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.flush())
        return {};
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), QStringLiteral("-enc"),
                                               QStringLiteral("UTF-8"), path, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitStatus() != QProcess::NormalExit || reader.exitCode() != 0)
        return {};
    return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
}

Pet savedPet(OMStore& store, const QString& name, const QString& speciesID) {
    Pet pet;
    pet.name = name;
    pet.speciesID = speciesID;
    store.save(pet);
    return pet;
}

Pet samplePet(OMStore& store, const QString& name) {
    const QList<Pet> pets = store.pets();
    const auto found = std::ranges::find(pets, name, &Pet::name);
    return found == pets.end() ? Pet() : *found;
}

/// Runs checks on a store with the sample pets.
void onSamples(OMTestRun& run, const QString& path, const std::function<void(OMStore&)>& checks) {
    try {
        OMStore store(path);
        SampleData::add(store);
        checks(store);
    } catch (const Failure& failure) {
        run.check(false, QStringLiteral("the sample pets can be worked with: %1").arg(failure.description()));
    }
}

void checkRecords(OMTestRun& run, OMStore& store, const QString& pdf) {
    const Pet pepper = samplePet(store, QStringLiteral("Pepper (sample)"));
    const QByteArray document = PetPDF::make(pepper, store);
    run.check(document.startsWith("%PDF-") && document.trimmed().endsWith("%%EOF"),
              QStringLiteral("the records for the vet are a whole PDF document"));
    const QString text = textOf(document, pdf);
    run.check(text.startsWith(QStringLiteral("Pepper (sample) — records for the vet Ferret")),
              QStringLiteral("its text can be searched, and begins with the pet"));
    const QList<WeightEntry> weights = store.weights(pepper.id);
    run.check(weights.size() == 6 &&
                  std::ranges::all_of(weights,
                                      [&](const WeightEntry& weight) {
                                          return text.contains(weight.day.iso() + u' ' +
                                                               QString::number(weight.grams, 'f', 1));
                                      }),
              QStringLiteral("every weight is printed with its day"));
    run.check(text.contains(QStringLiteral("-17.0 g (-2.0%) eating less")),
              QStringLiteral("a change and a note stand beside their weight"));
    run.check(text.contains(QStringLiteral("Exactly as written on the vet's label (sample)")),
              QStringLiteral("medicines are printed as the vet wrote them"));
    run.check(text.contains(OMInfo::doseNote), QStringLiteral("the no-dose note stands with the medicines"));
    run.check(text.contains(QStringLiteral("Follow-up: Weigh weekly")),
              QStringLiteral("vet visits are printed with their follow-up"));
    run.check(!text.contains(QStringLiteral("Shed log")),
              QStringLiteral("a mammal without sheds has no shed log"));
    run.check(
        textOf(PetPDF::make(savedPet(store, QStringLiteral("Empty"), QStringLiteral("tarantula")), store),
               pdf)
            .contains(QStringLiteral("Molt log Date Result Note None recorded.")),
        QStringLiteral("a tarantula without records has an empty molt log"));
}

void checkTable(OMTestRun& run, OMStore& store) {
    const Pet pepper = samplePet(store, QStringLiteral("Pepper (sample)"));
    const QList<QStringList> rows = OMCSV::parse(OMCSV::petRecords(pepper, store));
    const auto rowsOf = [&](const QString& section) {
        return std::ranges::count(rows, section, [](const QStringList& row) { return row.value(0); });
    };
    run.check(rows.value(0) ==
                  QStringList({QStringLiteral("Section"), QStringLiteral("Date"), QStringLiteral("Item"),
                               QStringLiteral("Detail"), QStringLiteral("Notes")}),
              QStringLiteral("the table begins with its header"));
    run.check(std::ranges::all_of(rows, [](const QStringList& row) { return row.size() == 5; }),
              QStringLiteral("every row of it has five fields"));
    run.check(rowsOf(QStringLiteral("Pet")) == 1 && rowsOf(QStringLiteral("Weight")) == 6 &&
                  rowsOf(QStringLiteral("Vet visit")) == 1 &&
                  rowsOf(QStringLiteral("Medication (as prescribed by vet)")) == 1 && rows.size() == 10,
              QStringLiteral("the pet, its weights, its visit and its medicine are in it"));
    const QStringList awkward = {QStringLiteral("a, \"b\"\nc"), QString(), QStringLiteral("plain")};
    run.check(OMCSV::parse(OMCSV::line(awkward)) == QList<QStringList>{awkward},
              QStringLiteral("commas, quotes and line breaks survive the table"));
}

} // namespace

void exportTests(OMTestRun& run, const QString& scratch) {
    onSamples(run, scratch + QStringLiteral("/exports.sqlite"), [&](OMStore& store) {
        checkRecords(run, store, scratch + QStringLiteral("/records.pdf"));
        checkTable(run, store);
    });
}

void careSheetTests(OMTestRun& run, const QString& scratch) {
    onSamples(run, scratch + QStringLiteral("/care-sheets.sqlite"), [&](OMStore& store) {
        const QString pdf = scratch + QStringLiteral("/care-sheet.pdf");
        const Instant now = UserCalendar::now();
        const auto sheetOf = [&](const Pet& pet) { return textOf(CareSheetPDF::make(pet, store, now), pdf); };
        const QString missing =
            QStringLiteral("Age: not recorded Latest weight: none logged yet Last vet visit: "
                           "none recorded");
        int whole = 0;
        int withDoses = 0;
        for (const Species& species : CareLibrary::shared().species()) {
            const Pet pet = savedPet(store, QStringLiteral("Rex"), species.id);
            const QString text = sheetOf(pet);
            whole += text.contains(missing) && text.contains(OMInfo::notAVet) ? 1 : 0;
            withDoses += DoseScanner::findings(text).isEmpty() ? 0 : 1;
            store.remove<Pet>(pet.id);
        }
        run.check(whole > 0 && whole == CareLibrary::shared().species().size(),
                  QStringLiteral("a sheet is printed for every species, and says what isn't recorded (%1)")
                      .arg(whole));
        run.check(withDoses == 0, QStringLiteral("no care sheet states a dose"));

        const Pet ziggy = samplePet(store, QStringLiteral("Ziggy (sample)"));
        const QString text = sheetOf(ziggy);
        run.check(text.startsWith(QStringLiteral("Ziggy (sample) — care sheet Bearded Dragon")),
                  QStringLiteral("its text can be searched, and begins with the pet"));
        run.check(text.contains(QStringLiteral("Latest weight: 421.0 g on ")),
                  QStringLiteral("in grams the weight is printed once"));
        OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("oz"));
        run.check(sheetOf(ziggy).contains(
                      QStringLiteral("Latest weight: 421.0 g (%1) on ").arg(OMPrefs::weightText(421))),
                  QStringLiteral("in ounces both are printed"));
        OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("g"));
        run.check(text.contains(QStringLiteral("All pets")),
                  QStringLiteral("a reminder for all pets is on every sheet"));
        run.check(text.contains(QStringLiteral("Temperature range")) && text.contains(QStringLiteral("°C")) &&
                      text.contains(QStringLiteral("Sources: ")),
                  QStringLiteral("the care basics stand with their sources"));
        run.check(sheetOf(CareSheetPDF::examplePet(store)).contains(QStringLiteral("Vet check-up: next due")),
                  QStringLiteral("the example pet's next check-up is printed"));
        Pet unknown = ziggy;
        unknown.speciesID = QStringLiteral("no-such-species");
        run.check(sheetOf(unknown).contains(QStringLiteral(
                      "This pet's species isn't in the care library, so no care basics can be printed.")),
                  QStringLiteral("a pet of an unknown species gets its sheet too"));
        run.check(CareSheetPDF::fileName(ziggy) == QStringLiteral("Ziggy (sample) - care sheet.pdf"),
                  QStringLiteral("the file is named after the pet"));
    });
}

} // namespace ormiva::OMSelfTest
