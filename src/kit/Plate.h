#pragma once

#include "PlateStyle.h"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A rounded rectangle, the ground of buttons, rows and cards. With the software scene graph it is painted
/// straight to the window, with smooth edges at every zoom; Qt's own Rectangle puts rounded corners together
/// from stored pictures there, which turn coarse when they are scaled.
class Plate : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor fill READ upper WRITE setFill NOTIFY styleChanged FINAL)
    Q_PROPERTY(QColor upper READ upper WRITE setUpper NOTIFY styleChanged FINAL)
    Q_PROPERTY(QColor lower READ lower WRITE setLower NOTIFY styleChanged FINAL)
    Q_PROPERTY(QColor rim READ rim WRITE setRim NOTIFY styleChanged FINAL)
    Q_PROPERTY(double rimWidth READ rimWidth WRITE setRimWidth NOTIFY styleChanged FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY styleChanged FINAL)

public:
    explicit Plate(QQuickItem* parent = nullptr);

    QColor upper() const { return m_style.top; }
    QColor lower() const { return m_style.bottom; }
    QColor rim() const { return m_style.rim; }
    double rimWidth() const { return m_style.rimWidth; }
    double radius() const { return m_style.radius; }
    /// One colour from top to bottom.
    void setFill(const QColor& color);
    void setUpper(const QColor& color) { set(m_style.top, color); }
    void setLower(const QColor& color) { set(m_style.bottom, color); }
    void setRim(const QColor& color) { set(m_style.rim, color); }
    void setRimWidth(double width) { set(m_style.rimWidth, width); }
    void setRadius(double radius) { set(m_style.radius, radius); }

Q_SIGNALS:
    void styleChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    template <typename Value>
    void set(Value& place, const Value& value) {
        if (place == value)
            return;
        place = value;
        update();
        Q_EMIT styleChanged();
    }
    QSGNode* paintedNode(QSGNode* old) const;
    QSGNode* texturedNode(QSGNode* old) const;

    PlateStyle m_style;
};

} // namespace ormiva
