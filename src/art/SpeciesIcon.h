#pragma once

#include "CrispItem.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// The drawing of a species, a square of `size` points. It says nothing to a screen reader; the texts beside
/// it do.
/// The base is spelled in full for the tools that describe types to QML.
class SpeciesIcon : public ormiva::CrispItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString art READ art WRITE setArt NOTIFY artChanged FINAL)
    Q_PROPERTY(QStringList palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL)
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged FINAL)
    Q_PROPERTY(bool badge READ badge WRITE setBadge NOTIFY badgeChanged FINAL)

public:
    explicit SpeciesIcon(QQuickItem* parent = nullptr);

    const QString& art() const { return m_art; }
    void setArt(const QString& art);
    /// Body colour and second colour; what is missing is taken from a green and a sand of the program's own.
    const QStringList& palette() const { return m_palette; }
    void setPalette(const QStringList& palette);
    double size() const { return m_size; }
    void setSize(double size);
    bool badge() const { return m_badge; }
    void setBadge(bool badge);

    void paint(QPainter* painter) override;

    /// Paints the icon into the square of `edge` units at the origin.
    static void paintIcon(QPainter& painter, double edge, const QString& art, const QStringList& palette,
                          bool badge);

Q_SIGNALS:
    void artChanged();
    void paletteChanged();
    void sizeChanged();
    void badgeChanged();

private:
    QString m_art;
    QStringList m_palette;
    double m_size = 0;
    bool m_badge = true;
};

} // namespace ormiva
