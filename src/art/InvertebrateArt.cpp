#include "Animals.h"
#include "Primitives.h"

#include <cmath>

namespace ormiva::ArtPainter {

namespace {

/// One leg with the lighter segment to its foot.
void leg(QPainter& context, const QColor& p, const QColor& s, const QPointF& hip, const QPointF& knee,
         const QPointF& foot) {
    line(context, {hip, knee, foot}, p, 3.8);
    line(context, {knee, foot}, at(s, 0.45), 1);
}

QPainterPath spiral() {
    constexpr int steps = 56; // Until 4.4 times pi is passed.
    QPainterPath path({38, 50});
    for (int i = 1; i <= steps; ++i) {
        const double turn = 0.25 * i;
        const double radius = 2 + 0.62 * i;
        path.lineTo(38 + radius * std::cos(turn), 50 + 0.85 * radius * std::sin(turn));
    }
    return path;
}

} // namespace

void tarantula(QPainter& context, const QColor& p, const QColor& s) {
    for (int i = 0; i < 4; ++i)
        leg(context, p, s, {52.0 + 4 * i, 54}, {38.0 + 11 * i, 34 - 1.5 * i}, {32.0 + 15 * i, 32.0 - i});
    for (int i = 0; i < 4; ++i)
        leg(context, p, s, {52.0 + 4 * i, 54}, {38.0 + 11 * i, 58 + 1.5 * i}, {32.0 + 15 * i, 76.0 + i});
    shade(context, ell(32, 56, 30, 26), p);
    context.fillPath(ell(32, 56, 14, 10), at(s, 0.55));
    shade(context, ell(58, 54, 22, 18), p);
    context.fillPath(ell(58, 54, 8, 6), at(s, 0.4));
    line(context, {{66, 52}, {71, 50}}, p, 3);
    line(context, {{70, 54}, {75, 50}}, p, 3);
    eye(context, 61, 51, 1.1);
    eye(context, 63.5, 51, 1.1);
}

void crab(QPainter& context, const QColor& p, const QColor& s) {
    shade(context, ell(38, 50, 46, 42), s);
    context.strokePath(spiral(), mitered(at(Qt::black, 0.3), 1.6));
    line(context, {{58, 60}, {64, 70}, {68, 76}}, p, 3);
    line(context, {{58, 63}, {68, 70}, {73, 76}}, p, 3);
    line(context, {{58, 66}, {72, 70}, {78, 76}}, p, 3);
    shade(context, rot(ell(72, 60, 16, 11), -0.2, 72, 60), p);
    line(context, {{78, 58}, {84, 56}}, p, 3);
    for (const double x : {62.0, 66.0})
        line(context, {{x, 52}, {x + 2, 40}}, p, 2);
    for (const double x : {64.0, 68.0})
        context.fillPath(ell(x, 39, 4, 4), gray(0.08));
    line(context, {{64, 50}, {80, 36}}, at(p, 0.7), 1);
}

} // namespace ormiva::ArtPainter
