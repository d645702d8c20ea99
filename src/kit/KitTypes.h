#pragma once

#include "AppModel.h"
#include "OMDay.h"
#include "OMRender.h"
#include "Screen.h"
#include "SourceRef.h"
#include "Species.h"

#include <QObject>
#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

/// The types of the layers below as QML knows them.
namespace ormiva {

struct AppModelForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_SINGLETON

public:
    static AppModel* create(QQmlEngine*, QJSEngine*) {
        AppModel* model = &AppModel::shared();
        QQmlEngine::setObjectOwnership(model, QQmlEngine::CppOwnership);
        return model;
    }
};

class OMRenderForQml final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(OMRender)
    QML_SINGLETON
    Q_PROPERTY(bool snapshotMode READ snapshotMode CONSTANT FINAL)

public:
    bool snapshotMode() const { return OMRender::snapshotMode; }
};

struct OMDayForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::OMDay)
    QML_VALUE_TYPE(omDay)
};

struct ScreenInfoForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::ScreenInfo)
    QML_VALUE_TYPE(screenInfo)
};

struct SourceRefForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::SourceRef)
    QML_VALUE_TYPE(sourceRef)
};

struct SpeciesForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::Species)
    QML_VALUE_TYPE(species)
};

} // namespace ormiva
