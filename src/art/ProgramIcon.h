#pragma once

#include "CrispItem.h"

#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The program's icon as an item. It says nothing to a screen reader.
/// The base is spelled in full for the tools that describe types to QML.
class ProgramIcon : public ormiva::CrispItem {
    Q_OBJECT
    QML_ELEMENT

public:
    using CrispItem::CrispItem;

    void paint(QPainter* painter) override;
};

} // namespace ormiva
