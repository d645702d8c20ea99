#include "LogEntries.h"

namespace ormiva {

const QStringList& WeightEntry::columns() {
    static const QStringList names = {QStringLiteral("pet_id"), QStringLiteral("day"),
                                      QStringLiteral("grams"), QStringLiteral("note")};
    return names;
}

WeightEntry WeightEntry::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")).value_or(0),
        .day = Records::requiredDay(row, QStringLiteral("day")),
        .grams = row.real(QStringLiteral("grams")).value_or(0),
        .note = row.str(QStringLiteral("note")),
    };
}

SQLArguments WeightEntry::columnValues() const {
    return {petID, day.iso(), grams, note};
}

void WeightEntry::validate(OMStore& store) const {
    Records::requirePet(store, petID);
    // The same sentence for a weight that is too large or not a number.
    Records::require(grams > 0 && grams < 500'000,
                     QStringLiteral("Please enter a weight greater than zero."));
}

const QStringList& FeedingEntry::columns() {
    static const QStringList names = {QStringLiteral("pet_id"), QStringLiteral("day"),
                                      QStringLiteral("food"),   QStringLiteral("amount"),
                                      QStringLiteral("ate"),    QStringLiteral("note")};
    return names;
}

FeedingEntry FeedingEntry::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")).value_or(0),
        .day = Records::requiredDay(row, QStringLiteral("day")),
        .food = row.str(QStringLiteral("food")),
        .amount = row.str(QStringLiteral("amount")),
        .ate = row.boolean(QStringLiteral("ate")),
        .note = row.str(QStringLiteral("note")),
    };
}

SQLArguments FeedingEntry::columnValues() const {
    return {petID, day.iso(), food, amount, ate, note};
}

void FeedingEntry::validate(OMStore& store) const {
    Records::requirePet(store, petID);
    Records::require(!Records::isBlank(food), QStringLiteral("Please say what was offered."));
}

const QStringList& ShedEntry::columns() {
    static const QStringList names = {QStringLiteral("pet_id"), QStringLiteral("day"),
                                      QStringLiteral("complete"), QStringLiteral("note")};
    return names;
}

ShedEntry ShedEntry::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")).value_or(0),
        .day = Records::requiredDay(row, QStringLiteral("day")),
        .complete = row.boolean(QStringLiteral("complete")),
        .note = row.str(QStringLiteral("note")),
    };
}

SQLArguments ShedEntry::columnValues() const {
    return {petID, day.iso(), complete, note};
}

void ShedEntry::validate(OMStore& store) const {
    Records::requirePet(store, petID);
}

} // namespace ormiva
