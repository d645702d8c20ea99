#pragma once

#include "ChoiceModel.h"

namespace ormiva {

/// The species of the care library, by name as the user's locale sorts.
class SpeciesChoices : public ormiva::ChoiceModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString species READ species WRITE setSpecies NOTIFY valueChanged FINAL)

public:
    explicit SpeciesChoices(QObject* parent = nullptr);

    /// The id of the chosen species, empty for none. One that the library doesn't know stays as it is.
    QString species() const { return value().toString(); }
    void setSpecies(const QString& id) { setValue(id); }

protected:
    QList<Choice> entries() const override;
};

} // namespace ormiva
