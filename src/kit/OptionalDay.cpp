#include "OptionalDay.h"

namespace ormiva {

OptionalDay::OptionalDay(QObject* parent)
    : QObject(parent) {}

void OptionalDay::setDayFromQml(const QVariant& day) {
    set(day.metaType() == QMetaType::fromType<OMDay>() ? std::optional(day.value<OMDay>()) : std::nullopt);
}

void OptionalDay::turn(bool known) {
    if (known != m_day.has_value())
        set(known ? std::optional(OMDay::today()) : std::nullopt);
}

void OptionalDay::set(const std::optional<OMDay>& day) {
    if (m_day == day)
        return;
    m_day = day;
    Q_EMIT dayChanged();
}

} // namespace ormiva
