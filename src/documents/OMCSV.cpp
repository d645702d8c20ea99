#include "OMCSV.h"

#include "OMPrefs.h"
#include "PetPages.h"

#include <QTextBoundaryFinder>

namespace ormiva::OMCSV {

namespace {

bool needsQuotes(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; begin = end, end = finder.toNextBoundary()) {
        if (end - begin != 1)
            continue;
        const QChar character = text.at(begin);
        if (character == u',' || character == u'"' || character == u'\n' || character == u'\r')
            return true;
    }
    return false;
}

QString iso(const std::optional<OMDay>& day) {
    return day ? day->iso() : QString();
}

/// Collects fields and rows while the text is walked.
struct Table {
    QList<QStringList> rows;
    QStringList row;
    QString field;

    void endField() {
        row.append(field);
        field.clear();
    }
    void endRow() {
        endField();
        rows.append(row);
        row.clear();
    }
};

} // namespace

QString field(const QString& text) {
    if (!needsQuotes(text))
        return text;
    return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString line(const QStringList& fields) {
    QStringList written;
    for (const QString& text : fields)
        written.append(field(text));
    return written.join(u',');
}

QList<QStringList> parse(const QString& text) {
    Table table;
    bool inQuotes = false;
    // No mark of the format is half of a pair, so the walk may go by UTF-16 units.
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (inQuotes) {
            if (unit != u'"')
                table.field += unit;
            else if (i + 1 < text.size() && text.at(i + 1) == u'"')
                table.field += text.at(++i);
            else
                inQuotes = false;
        } else if (unit == u'"') {
            inQuotes = true;
        } else if (unit == u',') {
            table.endField();
        } else if (unit == u'\n') {
            table.endRow();
        } else if (unit != u'\r') {
            table.field += unit;
        }
    }
    if (!table.field.isEmpty() || !table.row.isEmpty())
        table.endRow();
    return table.rows;
}

QString petRecords(const Pet& pet, OMStore& store) {
    using PetPages::joined;
    const std::optional<Species> species = pet.species();
    QList<QStringList> rows = {
        {QStringLiteral("Section"), QStringLiteral("Date"), QStringLiteral("Item"), QStringLiteral("Detail"),
         QStringLiteral("Notes")},
        {QStringLiteral("Pet"), iso(pet.birthday), pet.name,
         QStringLiteral("%1 (%2)").arg(PetPages::speciesName(pet, species),
                                       species ? species->scientific : QString()),
         joined({pet.sex, pet.markings}, QStringLiteral("; "))},
    };
    for (const WeightEntry& weight : store.weights(pet.id))
        rows.append({QStringLiteral("Weight"), weight.day.iso(),
                     PetPages::grams(weight) + QStringLiteral(" g"), OMPrefs::weightText(weight.grams),
                     weight.note});
    for (const FeedingEntry& meal : store.feedings(pet.id))
        rows.append({QStringLiteral("Feeding"), meal.day.iso(), meal.food,
                     meal.ate ? meal.amount : meal.amount + QStringLiteral(" (refused)"), meal.note});
    for (const ShedEntry& shed : store.sheds(pet.id))
        rows.append(
            {QStringLiteral("Shed"), shed.day.iso(), PetPages::shedResult(shed), QString(), shed.note});
    for (const VetVisit& visit : store.visits(pet.id))
        rows.append({QStringLiteral("Vet visit"), visit.day.iso(), visit.reason,
                     joined({visit.clinic, visit.vet}, QStringLiteral(", ")),
                     joined({visit.findings, visit.followUp}, QStringLiteral(" | Follow-up: "))});
    for (const Medication& medication : store.medications(pet.id))
        rows.append({QStringLiteral("Medication (as prescribed by vet)"), iso(medication.start),
                     medication.name, medication.instructions,
                     joined({medication.prescribedBy,
                             medication.end ? QStringLiteral("until ") + medication.end->iso() : QString()},
                            QStringLiteral("; "))});
    QString document;
    for (const QStringList& row : rows)
        document += line(row) + QStringLiteral("\r\n");
    return document;
}

QString fileName(const Pet& pet) {
    return pet.name + QStringLiteral(" - records.csv");
}

} // namespace ormiva::OMCSV
