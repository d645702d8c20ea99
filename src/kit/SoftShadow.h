#pragma once

#include <QQuickImageProvider>

namespace ormiva {

/// The soft shadows of panels, as pictures that are stretched by their middle. Each is painted once and
/// shared by all panels, which costs far less than blurring.
class SoftShadow final : public QQuickImageProvider {
public:
    inline static const QString provider = QStringLiteral("ormiva-shadow");
    inline static const QString card = QStringLiteral("card");

    /// Points that the shadow reaches beyond its panel on each side.
    static constexpr int reach = 20;
    /// The radius of the panel's corners.
    static constexpr int corner = 16;

    SoftShadow();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace ormiva
