#pragma once

#include "OMRecord.h"

namespace ormiva {

/// A weighing.
struct WeightEntry {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 petID MEMBER petID)
    Q_PROPERTY(ormiva::OMDay day MEMBER day)
    Q_PROPERTY(double grams MEMBER grams)
    Q_PROPERTY(QString note MEMBER note)

public:
    qint64 id = 0; ///< 0 means not yet stored
    qint64 petID = 0;
    OMDay day = OMDay::today();
    double grams = 0; ///< more than 0, less than 500,000
    QString note;

    static QString table() { return QStringLiteral("weight"); }
    static const QStringList& columns();
    static WeightEntry fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const WeightEntry&, const WeightEntry&) = default;
};

/// A meal offered.
struct FeedingEntry {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 petID MEMBER petID)
    Q_PROPERTY(ormiva::OMDay day MEMBER day)
    Q_PROPERTY(QString food MEMBER food)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(bool ate MEMBER ate)
    Q_PROPERTY(QString note MEMBER note)

public:
    qint64 id = 0;
    qint64 petID = 0;
    OMDay day = OMDay::today();
    QString food;
    QString amount; ///< free text, never a number
    bool ate = true;
    QString note;

    static QString table() { return QStringLiteral("feeding"); }
    static const QStringList& columns();
    static FeedingEntry fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const FeedingEntry&, const FeedingEntry&) = default;
};

/// A shed, molt or skin slough.
struct ShedEntry {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 petID MEMBER petID)
    Q_PROPERTY(ormiva::OMDay day MEMBER day)
    Q_PROPERTY(bool complete MEMBER complete)
    Q_PROPERTY(QString note MEMBER note)

public:
    qint64 id = 0;
    qint64 petID = 0;
    OMDay day = OMDay::today();
    bool complete = true;
    QString note;

    static QString table() { return QStringLiteral("shed"); }
    static const QStringList& columns();
    static ShedEntry fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const ShedEntry&, const ShedEntry&) = default;
};

} // namespace ormiva
