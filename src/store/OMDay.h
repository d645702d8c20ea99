#pragma once

#include "UserCalendar.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QObject>

#include <compare>
#include <optional>

class QJsonValue;

namespace ormiva {

/// A calendar day, with no time of day and no time zone: the only kind of date in the records. All arithmetic
/// goes through the user's calendar from noon to noon, so a change of the clocks never shifts a result.
struct OMDay {
    Q_GADGET
    Q_PROPERTY(qint64 y MEMBER y)
    Q_PROPERTY(int m MEMBER m)
    Q_PROPERTY(int d MEMBER d)
    Q_PROPERTY(QString iso READ iso)
    Q_PROPERTY(QString display READ display)

public:
    qint64 y = 0;
    int m = 1; ///< 1 to 12
    int d = 1; ///< 1 to 31, not checked against the month

    /// The day of `instant` in the user's calendar and time zone.
    static OMDay of(Instant instant);
    static OMDay today();
    /// Three numbers between "-", the second 1 to 12 and the third 1 to 31; pieces that aren't numbers are
    /// dropped. Absent for everything else.
    static std::optional<OMDay> fromIso(const QString& text);
    /// From an object with the integer members "y", "m", "d"; absent for everything else.
    static std::optional<OMDay> fromJson(const QJsonValue& json);

    /// "%04d-%02d-%02d": the form in which every day is stored.
    QString iso() const;
    /// The object with the members "y", "m", "d", in that order.
    QByteArray toJson() const;
    /// Noon of the day; an overflowing day is normalised. Years are clamped to those of `UserCalendar`.
    Instant date() const;
    /// The day `days` days later, or the same one when that leaves the years of `UserCalendar`.
    OMDay adding(qint64 days) const;
    /// Whole days from this day to `other`, positive when `other` is later.
    qint64 daysTo(const OMDay& other) const;
    /// The day in the medium date style of the user's locale.
    QString display() const;
    OMDay firstOfMonth() const { return {y, m, 1}; }

    friend auto operator<=>(const OMDay&, const OMDay&) = default;
    friend size_t qHash(const OMDay& day, size_t seed = 0) { return qHashMulti(seed, day.y, day.m, day.d); }
};

} // namespace ormiva
