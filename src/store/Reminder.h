#pragma once

#include "OMRecord.h"
#include "ReminderKind.h"

namespace ormiva {

/// Something to be done every so many days.
struct Reminder {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(QVariant petID READ petIDForQml)
    Q_PROPERTY(QString kind READ kindForQml)
    Q_PROPERTY(QString symbol READ symbolForQml)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString displayTitle READ displayTitle)
    Q_PROPERTY(qint64 everyDays MEMBER everyDays)
    Q_PROPERTY(ormiva::OMDay start MEMBER start)
    Q_PROPERTY(qint64 hour MEMBER hour)
    Q_PROPERTY(qint64 minute MEMBER minute)
    Q_PROPERTY(QVariant lastDone READ lastDoneForQml)
    Q_PROPERTY(bool active MEMBER active)

public:
    qint64 id = 0;               ///< 0 means not yet stored
    std::optional<qint64> petID; ///< absent: for no one pet
    ReminderKind kind = ReminderKind::Feeding;
    QString title; ///< empty: the kind's title is used
    // A damaged row can hold any number in these four.
    qint64 everyDays = 1; ///< 1 to 3,650
    OMDay start = OMDay::today();
    qint64 hour = 9;   ///< 0 to 23
    qint64 minute = 0; ///< 0 to 59
    std::optional<OMDay> lastDone;
    bool active = true;

    /// `title` as stored, or the kind's title when it is blank.
    QString displayTitle() const;
    QVariant petIDForQml() const { return petID ? QVariant(*petID) : QVariant(); }
    QString kindForQml() const { return info(kind).id; }
    QString symbolForQml() const { return info(kind).symbol; }
    QVariant lastDoneForQml() const { return Records::toVariant(lastDone); }

    static QString table() { return QStringLiteral("reminder"); }
    static const QStringList& columns();
    static Reminder fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const Reminder&, const Reminder&) = default;
};

} // namespace ormiva
