#include "Animals.h"
#include "Primitives.h"

namespace ormiva::ArtPainter {

namespace {

QPainterPath triangle(double x, double base, double width, double tipX, double tipY) {
    return polygon({{x, base}, {tipX, tipY}, {x + width, base}});
}

void tail(QPainter& context, const QColor& p, const QColor& s, const LizardParts& parts) {
    QPainterPath path({34, 54});
    path.quadTo(14, 52, 7, 74);
    path.quadTo(parts.fatTail ? QPointF(26, 76) : QPointF(18, 70), {36, 64});
    path.closeSubpath();
    shade(context, path, p);
    if (!parts.bands && !parts.fatTail)
        return;
    line(context, {{26, 57}, {24, 66}}, at(s, 0.85), 2.4);
    line(context, {{20, 60}, {18, 68}}, at(s, 0.85), 2.4);
    line(context, {{14, 63}, {12, 70}}, at(s, 0.85), 2.4);
}

void legs(QPainter& context, const QColor& p, double drop) {
    for (const double x : {40.0, 64.0})
        line(context, {{x, 62}, {x - 4, 62 + drop}, {x - 8, 64 + drop}}, at(p, 0.75), 5);
    for (const double x : {44.0, 68.0})
        line(context, {{x, 62}, {x - 4, 62 + drop}, {x - 8, 64 + drop}}, p, 5);
}

void back(QPainter& context, const QColor& s, const LizardParts& parts) {
    if (parts.spots)
        for (const auto& [x, y] : std::initializer_list<std::pair<double, double>>{
                 {42, 55}, {50, 52}, {58, 56}, {47, 61}, {63, 52}, {55, 62}})
            context.fillPath(ell(x, y, 4.2, 3.6), at(s, 0.9));
    if (parts.bands)
        for (const double x : {38.0, 45.0, 52.0, 59.0, 66.0}) {
            QPainterPath band;
            band.addRoundedRect(x, 49, 3, 17, 1.5, 1.5);
            context.fillPath(band, at(s, 0.8));
        }
    if (parts.spikes)
        for (const double x : {36.0, 42.0, 48.0, 54.0, 60.0, 66.0})
            context.fillPath(triangle(x, 50, 6, x + 3, 44), at(s, 0.9));
    if (parts.crest)
        for (int i = 0; i < 9; ++i) {
            const double x = 40 + 4.5 * i;
            context.fillPath(triangle(x, 50, 4, x + 2, 45), s);
        }
}

void head(QPainter& context, const QColor& p, const QColor& s, const LizardParts& parts) {
    shade(context, ell(77, 52, 22, 15), p);
    if (parts.beard)
        for (int i = 0; i < 5; ++i)
            context.fillPath(triangle(70 + 3.5 * i, 57, 3.5, 71.5 + 3.5 * i, 64), at(s, 0.95));
    if (parts.dewlap) {
        QPainterPath path({72, 57});
        path.quadTo(76, 70, 82, 57);
        context.fillPath(path, at(s, 0.9));
    }
    if (parts.crest)
        line(context, {{73, 46}, {77, 44}, {82, 46}}, s, 1.6);
    eye(context, 80, 50, 2.2, at(s, 0.7));
    line(context, {{84, 55}, {88, 54}}, at(Qt::black, 0.45), 1);
}

} // namespace

void lizard(QPainter& context, const QColor& p, const QColor& s, const LizardParts& parts) {
    tail(context, p, s, parts);
    legs(context, p, parts.isShort ? 7 : 10);
    shade(context, parts.isShort ? ell(52, 58, 44, 22) : ell(52, 58, 42, 19), p);
    back(context, s, parts);
    head(context, p, s, parts);
}

} // namespace ormiva::ArtPainter
