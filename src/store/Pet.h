#pragma once

#include "OMRecord.h"
#include "Species.h"

namespace ormiva {

/// An animal of the keeper's.
struct Pet {
    Q_GADGET
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString speciesID MEMBER speciesID)
    Q_PROPERTY(QString sex MEMBER sex)
    Q_PROPERTY(QVariant birthday READ birthdayForQml)
    Q_PROPERTY(QVariant acquired READ acquiredForQml)
    Q_PROPERTY(QString markings MEMBER markings)
    Q_PROPERTY(QString enclosure MEMBER enclosure)
    Q_PROPERTY(QString notes MEMBER notes)
    Q_PROPERTY(QString ageText READ ageText)

public:
    qint64 id = 0; ///< 0 means not yet stored
    QString name;
    QString speciesID; ///< the id of a species in the care library
    QString sex;
    std::optional<OMDay> birthday;
    std::optional<OMDay> acquired;
    std::optional<QByteArray> photo; ///< an encoded picture, opaque to the store
    QString markings;
    QString enclosure;
    QString notes;

    /// The care sheet, absent when the library doesn't hold the species.
    std::optional<Species> species() const;
    /// "under 1 month", "5 months", "3 yr 2 mo"; empty without a birthday.
    QString ageText() const;
    QVariant birthdayForQml() const { return Records::toVariant(birthday); }
    QVariant acquiredForQml() const { return Records::toVariant(acquired); }

    static QString table() { return QStringLiteral("pet"); }
    static const QStringList& columns();
    static Pet fromRow(const SQLRow& row);
    SQLArguments columnValues() const;
    void validate(OMStore& store) const;

    friend bool operator==(const Pet&, const Pet&) = default;
};

} // namespace ormiva
