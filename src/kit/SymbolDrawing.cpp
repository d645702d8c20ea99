#include "SymbolDrawing.h"

#include <QHash>
#include <QPainterPathStroker>
#include <QTransform>

namespace ormiva::SymbolDrawing {

namespace {

/// Uniting shapes turns their curves into short lines, of a length that is told in units. So they are put
/// together this much larger.
constexpr double enlarged = 20;

QPainterPath enlarge(const QPainterPath& path) {
    return QTransform::fromScale(enlarged, enlarged).map(path);
}

QPainterPath rounded(const QRectF& rect, double radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return enlarge(path);
}

QPainterPath disc(double x, double y, double width, double height) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), width / 2, height / 2);
    return enlarge(path);
}

QPainterPath turned(const QPainterPath& path, double degrees, QPointF pivot) {
    return QTransform()
        .translate(pivot.x() * enlarged, pivot.y() * enlarged)
        .rotate(degrees)
        .translate(-pivot.x() * enlarged, -pivot.y() * enlarged)
        .map(path);
}

/// The outline of a round brush led along `line`.
QPainterPath brushed(const QPainterPath& line, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width * enlarged);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(line);
}

QPainterPath curve(QPointF from, QPointF control, QPointF to) {
    QPainterPath line(from);
    line.quadTo(control, to);
    return enlarge(line);
}

/// A medical case: a bag with its handle, a cross cut out of it.
QPainterPath medicalCase() {
    const QPainterPath handle = rounded({7.5, 3, 9, 8}, 2.2).subtracted(rounded({9.3, 4.8, 5.4, 8}, 1));
    const QPainterPath cross =
        rounded({10.7, 9.4, 2.6, 8.2}, 0.5).united(rounded({7.9, 12.2, 8.2, 2.6}, 0.5));
    return handle.united(rounded({2, 6.5, 20, 14}, 2.6)).subtracted(cross);
}

/// The star of life without its staff: three bars across each other.
QPainterPath starOfLife() {
    const QPainterPath bar = rounded({9.6, 1.8, 4.8, 20.4}, 0.7);
    return bar.united(turned(bar, 60, {12, 12})).united(turned(bar, 120, {12, 12}));
}

QPainterPath raisedHand() {
    QPainterPath hand = rounded({6, 10.5, 13, 11}, 4.6);
    hand = hand.united(rounded({6, 4.6, 2.8, 11}, 1.4));
    hand = hand.united(rounded({9.4, 2.2, 2.8, 12}, 1.4));
    hand = hand.united(rounded({12.8, 2.9, 2.8, 12}, 1.4));
    hand = hand.united(rounded({16.2, 5.4, 2.8, 11}, 1.4));
    // The thumb leans away from the palm.
    return hand.united(brushed(curve({8, 18}, {4.6, 16.6}, {3.4, 13.2}), 2.7));
}

/// A bird on its feet, looking to the right.
QPainterPath bird() {
    QPainterPath body(QPointF(1.8, 19.4));
    body.cubicTo({5, 18.4}, {6, 14.5}, {8, 11});
    body.cubicTo({9.6, 8}, {11.2, 8}, {12, 6.6});
    body.cubicTo({13, 4}, {17.6, 3.2}, {19, 6.2});
    body.lineTo(22.6, 7.8);
    body.lineTo(19.2, 9);
    body.cubicTo({19.4, 14.6}, {15.8, 18}, {10.6, 17.6});
    body.cubicTo({7.4, 17.6}, {5.4, 19.6}, {1.8, 19.4});
    body.closeSubpath();
    const QPainterPath legs = brushed(curve({11.6, 17}, {11.8, 19}, {11.2, 21.4}), 1.2)
                                  .united(brushed(curve({14, 16.8}, {14.4, 19}, {14, 21.4}), 1.2));
    return enlarge(body).united(legs).subtracted(disc(16.2, 6.9, 1.5, 1.5));
}

/// A lizard from above, its tail curling to the left.
QPainterPath lizard() {
    QPainterPath shape = disc(15.2, 4.6, 5, 5.6);
    shape = shape.united(brushed(curve({14.6, 6}, {11, 9.4}, {12.4, 13.6}), 4.6));
    shape = shape.united(brushed(curve({12.4, 13}, {13.4, 18}, {9.4, 20}), 3));
    shape = shape.united(brushed(curve({10, 19.7}, {6.4, 22}, {3.4, 19.4}), 1.6));
    for (const QPainterPath& leg :
         {curve({13, 8}, {17.4, 9.2}, {19.4, 7.4}), curve({12.6, 8.6}, {9, 7.6}, {8, 4.8}),
          curve({12.6, 13.8}, {16.6, 13.6}, {18, 16.6}), curve({12.2, 13.6}, {8.8, 13}, {6.2, 14.8})})
        shape = shape.united(brushed(leg, 1.7));
    return shape;
}

const QHash<QString, QPainterPath>& shapes() {
    static const QHash<QString, QPainterPath> table = {
        {QStringLiteral("bird.fill"), bird()},
        {QStringLiteral("cross.case.fill"), medicalCase()},
        {QStringLiteral("hand.raised.fill"), raisedHand()},
        {QStringLiteral("lizard.fill"), lizard()},
        {QStringLiteral("staroflife.fill"), starOfLife()},
    };
    return table;
}

} // namespace

bool knows(const QString& name) {
    return shapes().contains(name);
}

QPainterPath shape(const QString& name) {
    return QTransform::fromScale(1 / enlarged, 1 / enlarged).map(shapes().value(name));
}

} // namespace ormiva::SymbolDrawing
