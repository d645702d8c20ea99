#pragma once

#include "CrispItem.h"

#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The habitat over the item's whole area. It is painted once for each size and theme into the item's
/// own picture, and only copied otherwise; it lies behind what the interface zoom scales. The base is spelled
/// in full for the tools that describe types to QML.
class HabitatBackground : public ormiva::CrispItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit HabitatBackground(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;
};

} // namespace ormiva
