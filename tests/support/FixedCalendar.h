#pragma once

#include "UserCalendar.h"

#include <QString>

namespace ormiva::testing {

/// A moment given in UTC.
Instant utc(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);

/// Stops the program's clock and fixes its zone and its locale of dates, until the end of the scope.
class FixedCalendar {
public:
    explicit FixedCalendar(Instant now, const QString& zone = QStringLiteral("UTC"),
                           const QString& locale = QStringLiteral("en_US"));
    ~FixedCalendar();
    FixedCalendar(const FixedCalendar&) = delete;
    FixedCalendar& operator=(const FixedCalendar&) = delete;
};

} // namespace ormiva::testing
