#pragma once

#include "OMDay.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace ormiva {

/// A day that may be left open.
class OptionalDay : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant day READ dayForQml WRITE setDayFromQml NOTIFY dayChanged FINAL)
    Q_PROPERTY(bool known READ known NOTIFY dayChanged FINAL)
    Q_PROPERTY(ormiva::OMDay shown READ shown NOTIFY dayChanged FINAL)

public:
    explicit OptionalDay(QObject* parent = nullptr);

    /// An OMDay, or an invalid value for none, which is `undefined` in QML.
    QVariant dayForQml() const { return m_day ? QVariant::fromValue(*m_day) : QVariant(); }
    /// Everything that is no day means none.
    void setDayFromQml(const QVariant& day);
    const std::optional<OMDay>& day() const { return m_day; }
    bool known() const { return m_day.has_value(); }
    /// The day, or today while there is none.
    OMDay shown() const { return m_day.value_or(OMDay::today()); }

    /// Makes it today, or leaves it open.
    Q_INVOKABLE void turn(bool known);
    Q_INVOKABLE void choose(const ormiva::OMDay& day) { set(day); }

Q_SIGNALS:
    void dayChanged();

private:
    void set(const std::optional<OMDay>& day);

    std::optional<OMDay> m_day;
};

} // namespace ormiva
