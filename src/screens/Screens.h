#pragma once

#include "KitTypes.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A part of the side rail: a heading, which may be empty, and its screens.
struct RailGroup {
    Q_GADGET
    QML_VALUE_TYPE(railGroup)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QList<ormiva::ScreenInfo> screens READ screensForQml)

public:
    QString name;
    QList<ScreenInfo> screens;

    QList<ScreenInfo> screensForQml() const { return screens; }
};

/// The screens of the window for QML.
class Screens final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<ormiva::ScreenInfo> all READ all CONSTANT FINAL)
    Q_PROPERTY(QList<ormiva::RailGroup> groups READ groups CONSTANT FINAL)

public:
    QList<ScreenInfo> all() const;
    QList<RailGroup> groups() const;
    /// The screen of that id; the first one for an unknown id.
    Q_INVOKABLE ormiva::ScreenInfo named(const QString& id) const;
};

} // namespace ormiva
