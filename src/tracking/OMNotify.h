#pragma once

#include "ReminderRequest.h"

#include <QList>

/// The reminders as the desktop's notifications.
namespace ormiva::OMNotify {

/// Off in tool modes, which must never plan a real notification.
inline bool enabled = true;
/// The requests of the last plan.
inline QList<ReminderRequest> lastPlan;

} // namespace ormiva::OMNotify
