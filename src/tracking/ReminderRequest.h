#pragma once

#include "UserCalendar.h"

#include <QString>

namespace ormiva {

/// One planned notification.
struct ReminderRequest {
    QString id; ///< "om.rem.{reminder id}.{fire in whole seconds since 1970}"
    qint64 reminderID = 0;
    Instant fire;
    QString title;
    QString body;

    friend bool operator==(const ReminderRequest&, const ReminderRequest&) = default;
};

} // namespace ormiva
