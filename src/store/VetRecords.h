#pragma once

#include "OMRecord.h"

namespace ormiva {

/// A visit to the vet.
struct VetVisit {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 petID MEMBER petID)
    Q_PROPERTY(ormiva::OMDay day MEMBER day)
    Q_PROPERTY(QString clinic MEMBER clinic)
    Q_PROPERTY(QString vet MEMBER vet)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString findings MEMBER findings)
    Q_PROPERTY(QString followUp MEMBER followUp)

public:
    qint64 id = 0; ///< 0 means not yet stored
    qint64 petID = 0;
    OMDay day = OMDay::today();
    QString clinic;
    QString vet;
    QString reason;
    QString findings;
    QString followUp;

    static QString table() { return QStringLiteral("vet_visit"); }
    static const QStringList& columns();
    static VetVisit fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const VetVisit&, const VetVisit&) = default;
};

/// A medicine that a vet prescribed. There is no dose field of any kind: `instructions` is what the label
/// says.
struct Medication {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 petID MEMBER petID)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString instructions MEMBER instructions)
    Q_PROPERTY(QString prescribedBy MEMBER prescribedBy)
    Q_PROPERTY(QVariant start READ startForQml)
    Q_PROPERTY(QVariant end READ endForQml)
    Q_PROPERTY(QString notes MEMBER notes)
    Q_PROPERTY(bool isCurrent READ isCurrent)

public:
    qint64 id = 0;
    qint64 petID = 0;
    QString name;
    QString instructions;
    QString prescribedBy;
    std::optional<OMDay> start = OMDay::today();
    std::optional<OMDay> end;
    QString notes;

    /// Without an end, or with one that is not before today.
    bool isCurrent() const { return !end || *end >= OMDay::today(); }
    QVariant startForQml() const { return Records::toVariant(start); }
    QVariant endForQml() const { return Records::toVariant(end); }

    static QString table() { return QStringLiteral("medication"); }
    static const QStringList& columns();
    static Medication fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const Medication&, const Medication&) = default;
};

} // namespace ormiva
