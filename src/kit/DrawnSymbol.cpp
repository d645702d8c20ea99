#include "DrawnSymbol.h"

#include "SymbolDrawing.h"

#include <QPainter>

namespace ormiva {

DrawnSymbol::DrawnSymbol(QQuickItem* parent)
    : CrispItem(parent) {
    connect(this, &DrawnSymbol::looksChanged, this, [this] { update(); });
}

void DrawnSymbol::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->scale(width() / 24, height() / 24);
    painter->fillPath(SymbolDrawing::shape(m_name), m_color);
}

} // namespace ormiva
