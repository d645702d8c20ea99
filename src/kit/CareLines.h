#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A line of a care text.
struct CareLine {
    Q_GADGET
    QML_VALUE_TYPE(careLine)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool bullet MEMBER bullet)

public:
    QString text;
    bool bullet = false; ///< a row of a list; `text` is then without its mark

    friend bool operator==(const CareLine&, const CareLine&) = default;
};

/// The lines of `text`, one for each part between line feeds. A line whose first visible character is "•" is
/// a bullet row; every other line stays as it is, empty ones included.
QList<CareLine> careLines(const QString& text);

} // namespace ormiva
