#include "Reminder.h"

namespace ormiva {

QString Reminder::displayTitle() const {
    return Records::isBlank(title) ? info(kind).title : title;
}

const QStringList& Reminder::columns() {
    static const QStringList names = {
        QStringLiteral("pet_id"),     QStringLiteral("kind"),      QStringLiteral("title"),
        QStringLiteral("every_days"), QStringLiteral("start"),     QStringLiteral("hour"),
        QStringLiteral("minute"),     QStringLiteral("last_done"), QStringLiteral("active"),
    };
    return names;
}

Reminder Reminder::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .petID = row.integer(QStringLiteral("pet_id")),
        .kind = reminderKind(row.str(QStringLiteral("kind"))),
        .title = row.str(QStringLiteral("title")),
        .everyDays = row.integer(QStringLiteral("every_days")).value_or(1),
        .start = Records::requiredDay(row, QStringLiteral("start")),
        .hour = row.integer(QStringLiteral("hour")).value_or(9),
        .minute = row.integer(QStringLiteral("minute")).value_or(0),
        .lastDone = Records::optionalDay(row, QStringLiteral("last_done")),
        .active = row.boolean(QStringLiteral("active")),
    };
}

SQLArguments Reminder::columnValues() const {
    return {petID, info(kind).id, title, everyDays, start.iso(), hour, minute, Records::written(lastDone),
            active};
}

void Reminder::validate(OMStore& store) const {
    if (petID)
        Records::requirePet(store, *petID);
    Records::require(everyDays >= 1 && everyDays <= 3650, QStringLiteral("Repeat every 1 to 3,650 days."));
    Records::require(hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59,
                     QStringLiteral("Please choose a valid time."));
}

} // namespace ormiva
