#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// What the menus and their keys do, for QML, on the store and the panels of the run.
class Commands final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether there is a store for the commands that write records.
    Q_PROPERTY(bool hasStore READ hasStore CONSTANT FINAL)

public:
    bool hasStore() const;

    Q_INVOKABLE void newPet() const;
    Q_INVOKABLE void logWeight() const;
    Q_INVOKABLE void logMeal() const;
    Q_INVOKABLE void newReminder() const;
    Q_INVOKABLE void exportCareSheet() const;
    Q_INVOKABLE void exportRecords() const;
    Q_INVOKABLE void backUpNow() const;
};

} // namespace ormiva
