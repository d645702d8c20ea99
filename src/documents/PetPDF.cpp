#include "PetPDF.h"

#include "CairoCanvas.h"
#include "LogAnalysis.h"
#include "OMInfo.h"
#include "PDFFlow.h"
#include "PetPages.h"

namespace ormiva::PetPDF {

namespace {

QString footer() {
    return QStringLiteral("%1 · %2 · %3 · printed %4")
        .arg(OMInfo::appName, OMInfo::creditLine, OMInfo::website.host(), OMDay::today().iso());
}

void profile(PDFFlow& flow, const Pet& pet, const QList<WeightEntry>& weights) {
    const auto line = [&](const QString& label, const QString& value) {
        if (!value.isEmpty())
            flow.longText(label + value, PDFFlow::bodyA);
    };
    line(QStringLiteral("Sex: "), pet.sex);
    if (pet.birthday)
        line(QStringLiteral("Born: "), QStringLiteral("%1 (%2)").arg(pet.birthday->iso(), pet.ageText()));
    if (pet.acquired)
        line(QStringLiteral("Acquired: "), pet.acquired->iso());
    line(QStringLiteral("Markings: "), pet.markings);
    if (!weights.isEmpty())
        line(QStringLiteral("Latest weight: "),
             QStringLiteral("%1 g on %2").arg(PetPages::grams(weights.last()), weights.last().day.iso()));
    line(QStringLiteral("Enclosure: "), pet.enclosure);
    line(QStringLiteral("Owner notes: "), pet.notes);
}

void weightSection(PDFFlow& flow, const QList<WeightEntry>& weights) {
    PetPages::section(flow, QStringLiteral("Weight (grams)"));
    flow.chart(PetPages::chartPoints(weights), QStringLiteral("grams"));
    QList<QStringList> rows;
    for (qsizetype i = weights.size() - 1; i >= 0; --i) {
        const auto older = i > 0 ? std::optional(weights.at(i - 1)) : std::nullopt;
        rows.append({weights.at(i).day.iso(), PetPages::grams(weights.at(i)),
                     LogAnalysis::changeText(weights.at(i), older), weights.at(i).note});
    }
    flow.table({QStringLiteral("Date"), QStringLiteral("Weight (g)"), QStringLiteral("Change"),
                QStringLiteral("Note")},
               rows, {1.1, 1.0, 1.4, 3.0});
}

void medicationSection(PDFFlow& flow, const QList<Medication>& medications) {
    PetPages::section(flow, QStringLiteral("Medications (exactly as prescribed by the vet)"), 50);
    flow.text(OMInfo::doseNote, PDFFlow::smallA);
    QList<QStringList> rows;
    for (const Medication& medication : medications) {
        const QString start = medication.start ? medication.start->iso() : QString();
        const QString end = medication.end ? QStringLiteral("to ") + medication.end->iso() : QString();
        rows.append({medication.name, medication.instructions, medication.prescribedBy,
                     PetPages::joined({start, end}, QStringLiteral(" "))});
    }
    flow.table({QStringLiteral("Medicine"), QStringLiteral("Vet's instructions"),
                QStringLiteral("Prescribed by"), QStringLiteral("Dates")},
               rows, {1.4, 3.0, 1.4, 1.5});
}

void visitSection(PDFFlow& flow, const QList<VetVisit>& visits) {
    PetPages::section(flow, QStringLiteral("Vet visits"));
    QList<QStringList> rows;
    for (const VetVisit& visit : visits) {
        const QString followUp =
            visit.followUp.isEmpty() ? QString() : QStringLiteral("Follow-up: ") + visit.followUp;
        rows.append({visit.day.iso(), PetPages::joined({visit.clinic, visit.vet}, QStringLiteral("\n")),
                     visit.reason, PetPages::joined({visit.findings, followUp}, QStringLiteral("\n"))});
    }
    flow.table({QStringLiteral("Date"), QStringLiteral("Clinic / vet"), QStringLiteral("Reason"),
                QStringLiteral("Findings & follow-up")},
               rows, {1.0, 1.6, 1.8, 3.0});
}

void feedingSection(PDFFlow& flow, const QList<FeedingEntry>& feedings) {
    PetPages::section(flow, QStringLiteral("Feeding log"));
    QList<QStringList> rows;
    for (const FeedingEntry& meal : feedings)
        rows.append({meal.day.iso(), meal.food, meal.amount,
                     meal.ate ? QStringLiteral("Yes") : QStringLiteral("Refused"), meal.note});
    flow.table({QStringLiteral("Date"), QStringLiteral("Offered"), QStringLiteral("Amount"),
                QStringLiteral("Ate?"), QStringLiteral("Note")},
               rows, {1.0, 2.0, 1.2, 0.8, 2.5});
}

/// Animals that shed or molt have the section in any case, all others when something was logged.
void shedSection(PDFFlow& flow, const std::optional<Species>& species, const QList<ShedEntry>& sheds) {
    using enum SpeciesGroup;
    const bool always = species && (species->group == Reptile || species->group == Amphibian ||
                                    species->group == Invertebrate);
    if (!always && sheds.isEmpty())
        return;
    PetPages::section(flow, species && species->group == Invertebrate ? QStringLiteral("Molt log")
                                                                      : QStringLiteral("Shed log"));
    QList<QStringList> rows;
    for (const ShedEntry& shed : sheds)
        rows.append({shed.day.iso(), PetPages::shedResult(shed), shed.note});
    flow.table({QStringLiteral("Date"), QStringLiteral("Result"), QStringLiteral("Note")}, rows,
               {1.0, 1.5, 4.0});
}

} // namespace

QByteArray make(const Pet& pet, OMStore& store) {
    const QString title = pet.name + QStringLiteral(" — records for the vet");
    PDFFlow flow(footer(), std::make_unique<CairoCanvas>(PdfInfo{
                               title, QStringLiteral("A keeper's records of a pet"), UserCalendar::now()}));
    const std::optional<Species> species = pet.species();
    const QList<WeightEntry> weights = store.weights(pet.id);

    const double belowPhoto = flow.y + PetPages::photoRoom;
    PetPages::photo(flow, pet);
    flow.longText(title, PDFFlow::titleA);
    flow.longText(PetPages::speciesLine(pet, species), PDFFlow::h2A);
    profile(flow, pet, weights);
    if (flow.page() == 1)
        flow.y = std::max(flow.y, belowPhoto);
    flow.text(QStringLiteral(
                  "Prepared by the owner with %1. These are the owner's own records, not a medical record "
                  "or a diagnosis.")
                  .arg(OMInfo::appName),
              PDFFlow::smallA);

    weightSection(flow, weights);
    medicationSection(flow, store.medications(pet.id));
    visitSection(flow, store.visits(pet.id));
    feedingSection(flow, store.feedings(pet.id));
    shedSection(flow, species, store.sheds(pet.id));
    return flow.finish();
}

QString fileName(const Pet& pet) {
    return pet.name + QStringLiteral(" - records for the vet.pdf");
}

} // namespace ormiva::PetPDF
