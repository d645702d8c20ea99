#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The fixed facts of the application for QML, where they are called `OMInfo`.
class Facts final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(OMInfo)
    QML_SINGLETON
    Q_PROPERTY(QString appName READ appName CONSTANT FINAL)
    Q_PROPERTY(QString creditLine READ creditLine CONSTANT FINAL)
    Q_PROPERTY(QString notAVet READ notAVet CONSTANT FINAL)
    Q_PROPERTY(QString doseNote READ doseNote CONSTANT FINAL)

public:
    QString appName() const;
    QString creditLine() const;
    QString notAVet() const;
    QString doseNote() const;
};

} // namespace ormiva
