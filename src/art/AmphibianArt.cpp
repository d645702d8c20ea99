#include "Animals.h"
#include "Primitives.h"

#include <cmath>

namespace ormiva::ArtPainter {

namespace {

void gills(QPainter& context, const QColor& s) {
    int i = 0;
    for (const double angle : {-3.1, -2.65, -2.2}) {
        const QPointF root(68, 50 + 2 * i++);
        const QPointF stalk(14 * std::cos(angle), 14 * std::sin(angle));
        line(context, {root, root + stalk}, s, 2.4);
        for (int j = 1; j <= 3; ++j) {
            const QPointF barb = root + stalk * j / 4;
            line(context, {barb, barb + QPointF(-3, -2.5)}, at(s, 0.9), 1.4);
        }
    }
}

void hornedFrog(QPainter& context, const QColor& p, const QColor& s) {
    shade(context, ell(50, 60, 62, 40), p);
    for (const QPointF& blotch : {QPointF(36, 56), QPointF(52, 66), QPointF(62, 52), QPointF(42, 68)})
        context.fillPath(ell(blotch.x(), blotch.y(), 8, 5), at(s, 0.85));
    for (const double x : {40.0, 62.0})
        shade(context, ell(x, 42, 13, 11), p);
    for (const double x : {40.0, 62.0})
        eye(context, x, 41, 3, s);
    curve(context, {28, 62}, {52, 74}, {76, 60}, at(Qt::black, 0.5), 1.6);
}

void treeFrog(QPainter& context, const QColor& p, const QColor& s) {
    line(context, {{30, 62}, {24, 72}}, p, 5);
    line(context, {{70, 62}, {76, 72}}, p, 5);
    for (const double x : {23.0, 77.0})
        context.fillPath(ell(x, 73, 5, 5), p);
    shade(context, ell(50, 58, 46, 30), p);
    context.fillPath(ell(50, 65, 30, 12), at(s, 0.75));
    for (const double x : {38.0, 62.0})
        shade(context, ell(x, 43, 16, 14), p);
    for (const double x : {38.0, 62.0})
        eye(context, x, 42, 3.6, rgb(0.95, 0.8, 0.3));
    curve(context, {36, 55}, {50, 62}, {64, 55}, at(Qt::black, 0.4), 1.4);
}

} // namespace

void axolotl(QPainter& context, const QColor& p, const QColor& s) {
    QPainterPath fin({36, 56});
    fin.quadTo(18, 44, 6, 60);
    fin.quadTo(18, 70, 36, 64);
    fin.closeSubpath();
    shade(context, fin, at(p, 0.9));
    line(context, {{40, 62}, {38, 70}, {35, 72}}, p, 3.5);
    line(context, {{60, 62}, {58, 70}, {55, 72}}, p, 3.5);
    shade(context, ell(52, 58, 40, 15), p);
    shade(context, ell(75, 55, 24, 19), p);
    gills(context, s);
    eye(context, 80, 52, 1.7);
    curve(context, {78, 60}, {83, 63}, {87, 59}, at(Qt::black, 0.4), 1.2);
}

void frog(QPainter& context, const QColor& p, const QColor& s, bool pacman) {
    if (pacman)
        hornedFrog(context, p, s);
    else
        treeFrog(context, p, s);
}

} // namespace ormiva::ArtPainter
