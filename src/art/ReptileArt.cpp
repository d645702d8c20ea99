#include "Animals.h"
#include "Primitives.h"

#include <cmath>
#include <numbers>

namespace ormiva::ArtPainter {

namespace {

/// The dashes of a snake's pattern, in units of the canvas.
QPen patternPen(SnakePattern pattern, const QColor& s, double bodyWidth) {
    struct Look {
        QColor color;
        double width;
        Qt::PenCapStyle cap;
        double dash;
        double gap;
        double phase;
    };
    const auto look = [&]() -> Look {
        switch (pattern) {
        case SnakePattern::blotch:
            return {at(s, 0.95), 0.62 * bodyWidth, Qt::RoundCap, 5, 6, 2};
        case SnakePattern::saddle:
            return {at(s, 0.95), 0.85 * bodyWidth, Qt::FlatCap, 4, 5, 0};
        case SnakePattern::band:
            return {s, bodyWidth, Qt::FlatCap, 3, 4, 0};
        }
        Q_UNREACHABLE();
    }();
    QPen pen = mitered(look.color, look.width, look.cap);
    // Qt counts dashes in widths of the pen.
    pen.setDashPattern({look.dash / look.width, look.gap / look.width});
    pen.setDashOffset(look.phase / look.width);
    return pen;
}

} // namespace

void snake(QPainter& context, const QColor& p, const QColor& s, SnakePattern pattern) {
    QPainterPath body({14, 70});
    body.cubicTo(18, 86, 44, 82, 48, 62);
    body.cubicTo(52, 44, 30, 36, 66, 40);
    body.quadTo(70, 34, 76, 34);
    const double width = pattern == SnakePattern::blotch ? 12 : 10;
    context.strokePath(body, QPen(p, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    context.strokePath(body, mitered(at(Qt::white, 0.14), 0.35 * width, Qt::RoundCap));
    context.strokePath(body, patternPen(pattern, s, width));

    shade(context, rot(ell(80, 33, 17, 11), -0.25, 80, 33), pattern == SnakePattern::band ? gray(0.12) : p);
    eye(context, 82, 30.5, 1.8);
    QPainterPath tongue({88, 32});
    tongue.lineTo(94, 31);
    tongue.moveTo(94, 31);
    tongue.lineTo(97, 28);
    tongue.moveTo(94, 31);
    tongue.lineTo(97, 33);
    context.strokePath(tongue, mitered(rgb(0.85, 0.15, 0.2), 1.2));
}

void chameleon(QPainter& context, const QColor& p, const QColor& s, bool tallCasque) {
    line(context, {{8, 70}, {92, 64}}, rgb(0.45, 0.3, 0.18), 5);

    QPainterPath tail({32, 58});
    tail.quadTo(20, 56, 18, 66);
    // From -1.745 to 3.491 radians with the clock; Qt counts degrees against it.
    constexpr double degrees = 180 / std::numbers::pi;
    tail.arcTo(QRectF(14, 66, 12, 12), 1.745 * degrees, -(1.745 + 3.491) * degrees);
    context.strokePath(tail, mitered(p, 5, Qt::RoundCap));

    for (const double x : {38.0, 52.0, 60.0})
        line(context, {{x, 56}, {x + 3, 67}}, at(p, 0.85), 4.5);
    QPainterPath body({30, 56});
    body.quadTo(44, 26, 68, 44);
    body.quadTo(52, 70, 30, 56);
    shade(context, body, p);
    line(context, {{36, 52}, {62, 47}}, at(s, 0.85), tallCasque ? 2.5 : 3.5);
    if (!tallCasque)
        for (const double x : {40.0, 47.0, 54.0})
            line(context, {{x, 44}, {x + 1, 55}}, at(s, 0.7), 2);

    QPainterPath head({64, 46});
    head.lineTo(70, tallCasque ? 22 : 34);
    head.quadTo(84, 34, 84, 48);
    head.quadTo(74, 54, 64, 50);
    shade(context, head, p);
    eye(context, 76, 44, 2.4, at(s, 0.85));
    line(context, {{78, 50}, {84, 49}}, at(Qt::black, 0.4), 1);
}

void tortoise(QPainter& context, const QColor& p, const QColor& s, bool big) {
    for (const double x : {30.0, 64.0}) {
        QPainterPath leg;
        leg.addRoundedRect(x, 60, 9, 13, 4, 4);
        context.fillPath(leg, at(s, 0.9));
    }
    shade(context, ell(80, 58, 16, 12), s);
    eye(context, 83, 56, 1.8);

    const double top = big ? 22 : 30;
    QPainterPath shell({18, 64});
    shell.cubicTo(20, top, 76, top, 78, 64);
    shell.closeSubpath();
    shade(context, shell, p, 0.22, 0.32);
    for (const QPointF& center :
         {QPointF(48, big ? 40 : 44), QPointF(34, 52), QPointF(62, 52), QPointF(48, 57)}) {
        QList<QPointF> corners;
        for (int i = 0; i < 6; ++i) {
            const double angle = i * std::numbers::pi / 3;
            corners.append(center + QPointF(8 * std::cos(angle), 6.5 * std::sin(angle)));
        }
        context.strokePath(polygon(corners), mitered(at(s, 0.75), 1.6));
    }
    line(context, {{18, 64}, {78, 64}}, at(Qt::black, 0.35), 2);
}

void turtle(QPainter& context, const QColor& p, const QColor& s) {
    QPainterPath water({6, 72});
    water.cubicTo(30, 66, 70, 78, 94, 72);
    context.strokePath(water, mitered(at(rgb(0.45, 0.75, 0.95), 0.55), 2));
    for (const double x : {28.0, 62.0})
        context.fillPath(ell(x, 64, 12, 6), at(p, 0.85));
    shade(context, ell(78, 54, 16, 11), p);
    context.fillPath(ell(76, 55, 7, 3), rgb(0.86, 0.16, 0.12));
    line(context, {{70, 58}, {84, 58}}, at(s, 0.9), 1.2);
    eye(context, 81, 52, 1.7);

    QPainterPath shell({18, 62});
    shell.cubicTo(22, 38, 68, 38, 72, 62);
    shell.closeSubpath();
    shade(context, shell, p);
    for (const double x : {26.0, 34.0, 42.0, 50.0, 58.0})
        curve(context, {x, 60}, {x + 3, 50}, {x + 2, 46}, at(s, 0.75), 1.4);
    line(context, {{18, 62}, {72, 62}}, at(s, 0.9), 2.2);
}

} // namespace ormiva::ArtPainter
