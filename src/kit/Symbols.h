#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The icons behind the symbol names that records, screens and fields carry.
class Symbols final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The character of the icon font, empty for a symbol that the program draws itself. A name that nobody
    /// knows gives a question mark in a circle.
    Q_INVOKABLE static QString glyph(const QString& name);
    /// True for a symbol that the program draws itself.
    Q_INVOKABLE static bool isDrawn(const QString& name);
};

} // namespace ormiva
