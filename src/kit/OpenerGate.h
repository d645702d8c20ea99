#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The opener of external addresses for QML, where it is called `Opener`.
class OpenerGate final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Opener)
    QML_SINGLETON

public:
    /// Opens `address` when it parses as an address with a scheme; gives whether it did.
    Q_INVOKABLE bool open(const QString& address) const;
};

} // namespace ormiva
