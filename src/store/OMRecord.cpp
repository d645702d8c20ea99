#include "OMRecord.h"

#include "OMError.h"
#include "OMStore.h"

namespace ormiva::Records {

OMDay requiredDay(const SQLRow& row, const QString& column) {
    const auto day = OMDay::fromIso(row.str(column));
    return day ? *day : OMDay::today();
}

std::optional<OMDay> optionalDay(const SQLRow& row, const QString& column) {
    const auto text = row.string(column);
    return text ? OMDay::fromIso(*text) : std::nullopt;
}

SQLArgument written(const std::optional<OMDay>& day) {
    return day ? SQLArgument(day->iso()) : SQLArgument();
}

QString trimmed(const QString& text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text.at(from).isSpace())
        ++from;
    while (to > from && text.at(to - 1).isSpace())
        --to;
    return text.mid(from, to - from);
}

bool isBlank(const QString& text) {
    return trimmed(text).isEmpty();
}

void require(bool holds, const QString& message) {
    if (!holds)
        throw OMError::invalid(message);
}

void requirePet(OMStore& store, qint64 petID) {
    require(store.db().scalarInt(QStringLiteral("SELECT count(*) FROM pet WHERE id = ?"), {petID}) == 1,
            QStringLiteral("Please choose a pet."));
}

QVariant toVariant(const std::optional<OMDay>& day) {
    return day ? QVariant::fromValue(*day) : QVariant();
}

} // namespace ormiva::Records
