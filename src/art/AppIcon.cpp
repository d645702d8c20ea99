#include "AppIcon.h"

#include "ArtPainter.h"
#include "OMThemes.h"

#include <QIconEngine>
#include <QPixmap>

#include <algorithm>

namespace ormiva::AppIcon {

namespace {

const VLKTheme& rainforest() {
    const QList<VLKTheme>& themes = OMThemes::extras();
    const auto canopy = std::find_if(themes.begin(), themes.end(),
                                     [](const VLKTheme& theme) { return theme.id == OMThemes::canopyID; });
    Q_ASSERT(canopy != themes.end());
    return *canopy;
}

class Engine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int edge = std::min(rect.width(), rect.height());
        painter->save();
        painter->translate(rect.x() + (rect.width() - edge) / 2.0, rect.y() + (rect.height() - edge) / 2.0);
        AppIcon::paint(*painter, edge);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, {{0, 0}, size}, mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new Engine; }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> all;
        for (const int edge : sizes)
            all.append({edge, edge});
        return all;
    }
};

} // namespace

void paint(QPainter& painter, double edge) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(edge / 100, edge / 100);
    ArtPainter::badge(painter, rainforest());
    ArtPainter::draw(QStringLiteral("chameleon-veiled"), painter, QColor::fromRgb(0x6FA64B),
                     QColor::fromRgb(0xE2C14A));
    painter.restore();
}

QIcon icon() {
    return QIcon(new Engine);
}

} // namespace ormiva::AppIcon
