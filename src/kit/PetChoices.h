#pragma once

#include "ChoiceModel.h"

namespace ormiva {

/// The pets in the order of the store, as "{name} ({species name})". It follows the records.
class PetChoices : public ormiva::ChoiceModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double petID READ petIDForQml WRITE setPetIDForQml NOTIFY valueChanged FINAL)

public:
    explicit PetChoices(QObject* parent = nullptr);

    /// The id of the chosen pet, 0 for none. One that the records don't have stays as it is.
    qint64 petID() const { return value().toLongLong(); }
    void setPetID(qint64 id) { setValue(id); }
    /// The numbers of QML hold every id up to 2^53.
    double petIDForQml() const { return static_cast<double>(petID()); }
    void setPetIDForQml(double id) { setPetID(static_cast<qint64>(id)); }

protected:
    QList<Choice> entries() const override;
};

} // namespace ormiva
