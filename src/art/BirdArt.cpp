#include "Animals.h"
#include "Primitives.h"

namespace ormiva::ArtPainter {

namespace {

/// What tells the kinds apart.
struct Plumage {
    QList<QPointF> tail;
    QColor tailColor;
    QColor wing;
    QColor head;
    QColor beak;
};

Plumage plumageOf(BirdKind kind, const QColor& p, const QColor& s) {
    const QList<QPointF> longTail = {{36, 62}, {14, 92}, {24, 94}, {46, 66}};
    const QColor horn = rgb(0.95, 0.82, 0.55);
    switch (kind) {
    case BirdKind::budgie:
        return {longTail, s, at(s, 0.9), s, horn};
    case BirdKind::cockatiel:
        return {longTail, at(s, 0.8), at(s, 0.6), rgb(0.98, 0.88, 0.45), horn};
    case BirdKind::grey:
        return {{{36, 62}, {24, 82}, {34, 86}, {46, 66}}, rgb(0.82, 0.1, 0.12), at(p, 0.75), p, gray(0.1)};
    }
    Q_UNREACHABLE();
}

void headMarks(QPainter& context, BirdKind kind, const QColor& headColor) {
    switch (kind) {
    case BirdKind::budgie:
        for (const double y : {28.0, 31.0, 34.0})
            curve(context, {56, y}, {60, y - 2}, {64, y}, at(Qt::black, 0.55), 1);
        break;
    case BirdKind::cockatiel:
        curve(context, {62, 25}, {58, 12}, {52, 10}, headColor, 2.6);
        curve(context, {64, 25}, {61, 12}, {56, 10}, headColor, 2.6);
        curve(context, {66, 25}, {64, 12}, {60, 10}, headColor, 2.6);
        context.fillPath(ell(67, 38, 7, 6), rgb(0.95, 0.45, 0.15));
        break;
    case BirdKind::grey:
        context.fillPath(ell(68, 33, 12, 12), gray(0.93));
        context.fillPath(ell(67, 31, 5.88, 5.88), gray(0.95));
        break;
    }
}

} // namespace

void bird(QPainter& context, const QColor& p, const QColor& s, BirdKind kind) {
    const Plumage plumage = plumageOf(kind, p, s);
    line(context, {{14, 78}, {86, 76}}, rgb(0.45, 0.3, 0.18), 4.5);
    shade(context, polygon(plumage.tail), plumage.tailColor);
    shade(context, rot(ell(50, 56, 30, 40), 0.35, 50, 56), p);
    shade(context, rot(ell(45, 58, 15, 30), 0.45, 45, 58), plumage.wing);
    if (kind == BirdKind::budgie)
        for (const double y : {50.0, 54.5, 59.0, 63.5})
            curve(context, {40, y}, {45, y - 2}, {50, y + 1}, at(Qt::black, 0.6), 1.2);
    for (const double x : {50.0, 56.0})
        line(context, {{x, 70}, {x, 76}}, gray(0.5), 2);
    shade(context, ell(64, 34, 22, 21), plumage.head);
    headMarks(context, kind, plumage.head);
    eye(context, 67, 31, 2.1);
    QPainterPath beak({73, 31});
    beak.quadTo(81, 33, 76, 42);
    beak.lineTo(72, 38);
    beak.closeSubpath();
    context.fillPath(beak, plumage.beak);
    if (kind == BirdKind::budgie)
        context.fillPath(ell(72, 30, 4, 3), rgb(0.35, 0.45, 0.85));
}

} // namespace ormiva::ArtPainter
