#pragma once

#include "CrispItem.h"

#include <QColor>

namespace ormiva {

/// One of the symbols that the program draws itself, in one colour.
/// The base is spelled in full for the tools that describe types to QML.
class DrawnSymbol : public ormiva::CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY looksChanged FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged FINAL)

public:
    explicit DrawnSymbol(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void looksChanged();

private:
    QString m_name;
    QColor m_color;
};

} // namespace ormiva
