#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// Places its visible children in rows of equal, flexible columns. All children of a row are as high as the
/// tallest of them.
class OMGrid : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int columns MEMBER m_columns NOTIFY settingsChanged FINAL)
    Q_PROPERTY(double spacing MEMBER m_spacing NOTIFY settingsChanged FINAL)

public:
    explicit OMGrid(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void settingsChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void updatePolish() override;
    void componentComplete() override;

private:
    void place();
    QList<QQuickItem*> shownChildren() const;

    int m_columns = 2;
    double m_spacing = 14;
    bool m_placing = false;
};

} // namespace ormiva
