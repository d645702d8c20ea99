#include "OMDay.h"

#include "Numbers.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

namespace ormiva {

namespace {

bool isMonthAndDay(qint64 month, qint64 day) {
    return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

} // namespace

OMDay OMDay::of(Instant instant) {
    const UserCalendar::Fields fields = UserCalendar::fields(instant);
    return {fields.year, fields.month, fields.day};
}

OMDay OMDay::today() {
    return of(UserCalendar::now());
}

std::optional<OMDay> OMDay::fromIso(const QString& text) {
    QList<qint64> numbers;
    for (const QString& piece : text.split(u'-', Qt::SkipEmptyParts))
        if (const auto number = Numbers::parseInteger(piece))
            numbers.append(*number);
    if (numbers.size() != 3 || !isMonthAndDay(numbers.at(1), numbers.at(2)))
        return std::nullopt;
    return OMDay{numbers.at(0), static_cast<int>(numbers.at(1)), static_cast<int>(numbers.at(2))};
}

std::optional<OMDay> OMDay::fromJson(const QJsonValue& json) {
    const auto integer = [&](const QString& key) -> std::optional<qint64> {
        const QJsonValue value = json.toObject().value(key);
        const qint64 number = value.toInteger();
        // A number that is no integer, or too large for one, reads as 0.
        if (!value.isDouble() || static_cast<double>(number) != value.toDouble())
            return std::nullopt;
        return number;
    };
    const auto y = integer(QStringLiteral("y"));
    const auto m = integer(QStringLiteral("m"));
    const auto d = integer(QStringLiteral("d"));
    if (!y || !m || !d || !isMonthAndDay(*m, *d))
        return std::nullopt;
    return OMDay{*y, static_cast<int>(*m), static_cast<int>(*d)};
}

QString OMDay::iso() const {
    return QString::asprintf("%04lld-%02d-%02d", static_cast<long long>(y), m, d);
}

QByteArray OMDay::toJson() const {
    // QJsonObject would sort the members by name.
    return QByteArrayLiteral("{\"y\":") + QByteArray::number(y) + QByteArrayLiteral(",\"m\":") +
           QByteArray::number(m) + QByteArrayLiteral(",\"d\":") + QByteArray::number(d) + '}';
}

Instant OMDay::date() const {
    return UserCalendar::noon(y, m, d);
}

OMDay OMDay::adding(qint64 days) const {
    const auto moved = UserCalendar::addingDays(date(), days);
    return moved ? of(*moved) : *this;
}

qint64 OMDay::daysTo(const OMDay& other) const {
    return UserCalendar::wholeDays(date(), other.date());
}

QString OMDay::display() const {
    return UserCalendar::mediumDate(date());
}

} // namespace ormiva
