#pragma once

#include "CrispItem.h"
#include "Pet.h"

#include <QtQml/qqmlregistration.h>

namespace ormiva {

struct PetForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::Pet)
    QML_VALUE_TYPE(pet)
};

/// A pet as a disc of `size` points: its photo, else the drawing of its species on the badge, else grey. It
/// says nothing to a screen reader; the texts beside it do.
/// The base is spelled in full for the tools that describe types to QML.
class PetAvatar : public ormiva::CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ormiva::Pet pet READ pet WRITE setPet NOTIFY petChanged FINAL)
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged FINAL)

public:
    explicit PetAvatar(QQuickItem* parent = nullptr);

    const Pet& pet() const { return m_pet; }
    void setPet(const Pet& pet);
    double size() const { return m_size; }
    void setSize(double size);

    void paint(QPainter* painter) override;

    /// Paints the disc into the square of `edge` units at the origin. A photo that can't be decoded is as
    /// none.
    static void paintAvatar(QPainter& painter, double edge, const Pet& pet);

Q_SIGNALS:
    void petChanged();
    void sizeChanged();

private:
    Pet m_pet;
    double m_size = 0;
};

} // namespace ormiva
