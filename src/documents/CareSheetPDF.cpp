#include "CareSheetPDF.h"

#include "CairoCanvas.h"
#include "LogAnalysis.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "PDFFlow.h"
#include "PetPages.h"
#include "ReminderPlanner.h"
#include "SymptomChecker.h"

#include <algorithm>

namespace ormiva::CareSheetPDF {

namespace {

const PdfTextStyle fieldHeading = {11, PdfWeight::Bold, {0.18, 0.42, 0.24}};
constexpr double fieldIndent = 8;

/// A reminder with its next moment.
struct Due {
    Reminder reminder;
    Instant at;

    QString time() const {
        const UserCalendar::Fields fields = UserCalendar::fields(at);
        return OMDay::of(at).iso() + QString::asprintf(" %02d:%02d", fields.hour, fields.minute);
    }
};

/// The active reminders for the pet and for no one pet, by their next moment.
QList<Due> dueFor(const Pet& pet, OMStore& store, Instant now) {
    QList<Due> due;
    for (const Reminder& reminder : store.reminders())
        if (!reminder.petID || reminder.petID == pet.id)
            if (const auto at = ReminderPlanner::nextDue(reminder, now))
                due.append({reminder, *at});
    std::ranges::stable_sort(due, {}, &Due::at);
    return due;
}

QString ageLine(const Pet& pet) {
    if (!pet.birthday)
        return QStringLiteral("Age: not recorded");
    const QString age = pet.ageText();
    return QStringLiteral("Age: %1 (born %2)")
        .arg(age.isEmpty() ? QStringLiteral("—") : age, pet.birthday->iso());
}

/// The weight in grams, and in the user's unit when that is another one.
QString weightLine(const QList<WeightEntry>& weights) {
    if (weights.isEmpty())
        return QStringLiteral("Latest weight: none logged yet");
    const WeightEntry& latest = weights.last();
    const QString unit = OMPrefs::weightUnit();
    const bool other = unit == QStringLiteral("oz") || unit == QStringLiteral("lb");
    const QString bracket =
        other ? QStringLiteral(" (%1)").arg(OMPrefs::weightText(latest.grams)) : QString();
    return QStringLiteral("Latest weight: %1 g%2 on %3")
        .arg(PetPages::grams(latest), bracket, latest.day.iso());
}

QString daysAgo(qint64 days) {
    if (days == 0)
        return QStringLiteral("today");
    return days == 1 ? QStringLiteral("1 day ago") : QStringLiteral("%1 days ago").arg(days);
}

QString visitLine(const QList<VetVisit>& visits, Instant now) {
    if (visits.isEmpty())
        return QStringLiteral("Last vet visit: none recorded");
    const VetVisit& visit = visits.first();
    QString line = QStringLiteral("Last vet visit: %1 (%2)")
                       .arg(visit.day.iso(), daysAgo(visit.day.daysTo(OMDay::of(now))));
    const QString who = PetPages::joined({visit.clinic, visit.vet}, QStringLiteral(", "));
    for (const QString& part : {who, visit.reason})
        if (!part.isEmpty())
            line += QStringLiteral(" — ") + part;
    return line;
}

void head(PDFFlow& flow, const Pet& pet, const std::optional<Species>& species) {
    const double belowPhoto = flow.y + PetPages::photoRoom;
    PetPages::photo(flow, pet);
    flow.longText(pet.name + QStringLiteral(" — care sheet"), PDFFlow::titleA);
    flow.longText(PetPages::speciesLine(pet, species), PDFFlow::h2A);
    if (species && !species->summary.isEmpty())
        flow.longText(species->summary, PDFFlow::bodyA);
    if (pet.photo && flow.page() == 1 && flow.y < belowPhoto)
        flow.space(belowPhoto - flow.y);
}

void about(PDFFlow& flow, const Pet& pet, const std::optional<Species>& species,
           const QList<WeightEntry>& weights, const QList<VetVisit>& visits, Instant now) {
    const auto line = [&](const QString& text) { flow.longText(text, PDFFlow::bodyA); };
    PetPages::section(flow, QStringLiteral("About ") + pet.name);
    line(QStringLiteral("Name: ") + pet.name);
    line(QStringLiteral("Species: ") + PetPages::speciesName(pet, species) +
         (species ? QStringLiteral(" (%1)").arg(species->scientific) : QString()));
    line(ageLine(pet));
    if (!pet.sex.isEmpty())
        line(QStringLiteral("Sex: ") + pet.sex);
    if (pet.acquired)
        line(QStringLiteral("Acquired: ") + pet.acquired->iso());
    line(weightLine(weights));
    if (!pet.markings.isEmpty())
        line(QStringLiteral("Markings: ") + pet.markings);
    if (!pet.enclosure.isEmpty())
        line(QStringLiteral("Enclosure: ") + pet.enclosure);
    line(visitLine(visits, now));
}

void weightLog(PDFFlow& flow, const QList<WeightEntry>& weights) {
    PetPages::section(flow, QStringLiteral("Weight log (grams)"));
    flow.chart(PetPages::chartPoints(weights), QStringLiteral("grams"));
    QList<QStringList> rows;
    for (const WeightEntry& weight : LogAnalysis::latestWeights(weights))
        rows.append({weight.day.iso(), PetPages::grams(weight), weight.note});
    flow.table({QStringLiteral("Date"), QStringLiteral("Weight (g)"), QStringLiteral("Note")}, rows,
               {1.1, 1.0, 4.0});
    if (const auto note = LogAnalysis::latestWeightsNote(weights))
        flow.text(*note, PDFFlow::smallA);
}

void reminderTable(PDFFlow& flow, const Pet& pet, const QList<Due>& due, Instant now) {
    PetPages::section(flow, QStringLiteral("Upcoming reminders"));
    QList<QStringList> rows;
    for (const Due& entry : due) {
        const qint64 days = entry.reminder.everyDays;
        rows.append({entry.reminder.displayTitle(),
                     days == 1 ? QStringLiteral("Every day") : QStringLiteral("Every %1 days").arg(days),
                     entry.time() + (entry.at < now ? QStringLiteral(" (OVERDUE)") : QString()),
                     entry.reminder.petID ? pet.name : QStringLiteral("All pets")});
    }
    flow.table({QStringLiteral("Reminder"), QStringLiteral("Repeats"), QStringLiteral("Next due"),
                QStringLiteral("For")},
               rows, {2.0, 1.3, 1.8, 1.2});
}

QString findAVet(const std::optional<Species>& species) {
    QStringList links;
    if (species)
        for (const SymptomChecker::VetLink& link : SymptomChecker::vetLinks(species->group))
            links.append(link.title + QStringLiteral(" — ") + link.url.toString());
    else
        links.append(OMInfo::aemv.toString());
    return QStringLiteral("Find an exotic-animal vet: ") + links.join(QStringLiteral("; "));
}

void vetReminders(PDFFlow& flow, const Pet& pet, const std::optional<Species>& species, const QList<Due>& due,
                  const QList<VetVisit>& visits, Instant now) {
    PetPages::section(flow, QStringLiteral("Vet-visit reminders"));
    bool any = false;
    for (const Due& entry : due) {
        if (entry.reminder.kind != ReminderKind::Vet)
            continue;
        any = true;
        flow.longText(QStringLiteral("%1: next due %2%3 (every %4 days)")
                          .arg(entry.reminder.displayTitle(), entry.time(),
                               entry.at < now ? QStringLiteral(" — OVERDUE") : QString())
                          .arg(entry.reminder.everyDays),
                      PDFFlow::bodyA);
    }
    if (!any)
        flow.longText(QStringLiteral(
                          "No vet check-up reminder is set for %1. Add one in My Pets → %1 → Reminders → Vet "
                          "check-up.")
                          .arg(pet.name),
                      PDFFlow::bodyA);
    if (!visits.isEmpty() && !visits.first().followUp.isEmpty())
        flow.longText(QStringLiteral("Follow-up from the last visit (%1): %2")
                          .arg(visits.first().day.iso(), visits.first().followUp),
                      PDFFlow::bodyA);
    flow.text(findAVet(species), PDFFlow::smallA);
}

/// The short names of the sources, each once.
QString sourceLabels(const CitedText& text) {
    QStringList labels;
    for (const QString& key : text.s)
        if (const auto source = CareLibrary::shared().source(key))
            labels.append(source->shortName());
    labels.removeDuplicates();
    return labels.join(QStringLiteral(", "));
}

void careBasics(PDFFlow& flow, const std::optional<Species>& species) {
    if (!species) {
        PetPages::section(flow, QStringLiteral("Care basics"));
        flow.text(
            QStringLiteral("This pet's species isn't in the care library, so no care basics can be printed."),
            PDFFlow::bodyA);
        return;
    }
    const auto roomOf = [&](const Field& field) {
        return flow.textHeight(field.heading, fieldHeading) +
               flow.textHeight(species->field(field.field).t, PDFFlow::bodyA, fieldIndent);
    };
    PetPages::section(flow, species->name + QStringLiteral(" care basics"), roomOf(fields().first()));
    if (species->limited && !species->limited->isEmpty())
        flow.longText(*species->limited, PDFFlow::smallA);
    for (const Field& field : fields()) {
        const CitedText text = species->field(field.field);
        if (text.t.isEmpty())
            continue;
        // A heading stays with its text, which is not split.
        flow.need(std::clamp(roomOf(field), 46.0, PDFFlow::bottom - PDFFlow::margin));
        flow.text(field.heading, fieldHeading);
        flow.longText(text.t, PDFFlow::bodyA, fieldIndent);
        if (const QString labels = sourceLabels(text); !labels.isEmpty())
            flow.longText(QStringLiteral("Sources: ") + labels, PDFFlow::smallA, fieldIndent);
        flow.space(3);
    }
}

void closing(PDFFlow& flow, Instant now) {
    flow.space(6);
    flow.text(OMInfo::notAVet, PDFFlow::smallA);
    flow.text(OMInfo::doseNote, PDFFlow::smallA);
    flow.text(QStringLiteral(
                  "Printed %1 with %2. Care basics are written in our own words from the sources listed in "
                  "Help → Sources & Credits.")
                  .arg(OMDay::of(now).iso(), OMInfo::appName),
              PDFFlow::smallA);
}

} // namespace

const QList<Field>& fields() {
    using enum CareField;
    static const QList<Field> list = {
        {Enclosure, QStringLiteral("Habitat — enclosure & minimum size")},
        {Temperature, QStringLiteral("Temperature range")},
        {Humidity, QStringLiteral("Humidity range & water")},
        {Lighting, QStringLiteral("Lighting & UVB")},
        {Diet, QStringLiteral("Diet")},
        {Schedule, QStringLiteral("Feeding schedule")},
        {Avoid, QStringLiteral("Foods to avoid")},
        {Handling, QStringLiteral("Handling & behavior")},
        {Warning, QStringLiteral("Common health warning signs")},
        {RedFlags, QStringLiteral("See an exotic vet NOW if…")},
    };
    return list;
}

const QString& footer() {
    static const QString text = QStringLiteral("VLK Ormiva by Ventrel — ") + OMInfo::website.toString();
    return text;
}

QByteArray make(const Pet& pet, OMStore& store, Instant now) {
    PDFFlow flow(footer(), std::make_unique<CairoCanvas>(PdfInfo{pet.name + QStringLiteral(" — care sheet"),
                                                                 QStringLiteral("A pet's care sheet"), now}));
    const std::optional<Species> species = pet.species();
    const QList<WeightEntry> weights = store.weights(pet.id);
    const QList<VetVisit> visits = store.visits(pet.id);
    const QList<Due> due = dueFor(pet, store, now);

    head(flow, pet, species);
    about(flow, pet, species, weights, visits, now);
    weightLog(flow, weights);
    reminderTable(flow, pet, due, now);
    vetReminders(flow, pet, species, due, visits, now);
    careBasics(flow, species);
    closing(flow, now);
    return flow.finish();
}

QString fileName(const Pet& pet) {
    return pet.name + QStringLiteral(" - care sheet.pdf");
}

} // namespace ormiva::CareSheetPDF
