#include "FixedCalendar.h"

namespace ormiva::testing {

Instant utc(int year, int month, int day, int hour, int minute, int second) {
    using namespace std::chrono;
    const sys_days date = std::chrono::year(year) / month / day;
    return time_point_cast<milliseconds>(date + hours(hour) + minutes(minute) + seconds(second));
}

FixedCalendar::FixedCalendar(Instant now, const QString& zone, const QString& locale) {
    UserCalendar::setSurroundings({[now] { return now; }, zone, locale});
}

FixedCalendar::~FixedCalendar() {
    UserCalendar::setSurroundings({});
}

} // namespace ormiva::testing
