#include "VetRecords.h"

namespace ormiva {

const QStringList& VetVisit::columns() {
    static const QStringList names = {
        QStringLiteral("pet_id"),    QStringLiteral("day"),    QStringLiteral("clinic"),
        QStringLiteral("vet"),       QStringLiteral("reason"), QStringLiteral("findings"),
        QStringLiteral("follow_up"),
    };
    return names;
}

VetVisit VetVisit::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")).value_or(0),
        .day = Records::requiredDay(row, QStringLiteral("day")),
        .clinic = row.str(QStringLiteral("clinic")),
        .vet = row.str(QStringLiteral("vet")),
        .reason = row.str(QStringLiteral("reason")),
        .findings = row.str(QStringLiteral("findings")),
        .followUp = row.str(QStringLiteral("follow_up")),
    };
}

SQLArguments VetVisit::columnValues() const {
    return {petID, day.iso(), clinic, vet, reason, findings, followUp};
}

void VetVisit::validate(OMStore& store) const {
    Records::requirePet(store, petID);
    Records::require(!Records::isBlank(reason) || !Records::isBlank(clinic),
                     QStringLiteral("Please enter the clinic or the reason for the visit."));
}

const QStringList& Medication::columns() {
    static const QStringList names = {
        QStringLiteral("pet_id"),        QStringLiteral("name"),  QStringLiteral("instructions"),
        QStringLiteral("prescribed_by"), QStringLiteral("start"), QStringLiteral("end_day"),
        QStringLiteral("notes"),
    };
    return names;
}

Medication Medication::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")).value_or(0),
        .name = row.str(QStringLiteral("name")),
        .instructions = row.str(QStringLiteral("instructions")),
        .prescribedBy = row.str(QStringLiteral("prescribed_by")),
        .start = Records::optionalDay(row, QStringLiteral("start")),
        .end = Records::optionalDay(row, QStringLiteral("end_day")),
        .notes = row.str(QStringLiteral("notes")),
    };
}

SQLArguments Medication::columnValues() const {
    return {petID, name, instructions, prescribedBy, Records::written(start), Records::written(end), notes};
}

void Medication::validate(OMStore& store) const {
    Records::requirePet(store, petID);
    Records::require(!Records::isBlank(name),
                     QStringLiteral("Please enter the medicine's name as it appears on the label."));
    Records::require(!start || !end || *end >= *start,
                     QStringLiteral("The end date is before the start date."));
}

} // namespace ormiva
