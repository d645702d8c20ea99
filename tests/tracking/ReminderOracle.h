#pragma once

#include "Reminder.h"

#include <QTimeZone>

#include <chrono>
#include <optional>
#include <vector>

namespace ormiva::testing {

/// The planner once more, slow and plain: it walks minute by minute through a table of the zone's offsets,
/// which Qt reads from the machine's zone files and not from the library that the program uses.
class ReminderOracle {
public:
    /// Knows the zone's offsets from `firstYear` to `lastYear`.
    ReminderOracle(const QString& zone, int firstYear, int lastYear);

    std::optional<Instant> nextDue(const Reminder& reminder, Instant now) const;
    QList<Instant> occurrences(const Reminder& reminder, Instant from, Instant to) const;
    /// The moments at which the zone changes its offset.
    std::vector<Instant> changes() const;

private:
    using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;

    LocalTime local(Instant instant) const;
    /// Walks from well before until the clocks show `wanted` or more.
    Instant firstAt(LocalTime wanted) const;
    std::chrono::local_days dayOf(Instant instant) const;
    /// The reminder's time on the day that begins at `day`.
    Instant at(const Reminder& reminder, std::chrono::local_days day) const;

    struct Change {
        Instant at;
        std::chrono::seconds offset;
    };
    std::vector<Change> m_changes;
};

} // namespace ormiva::testing
