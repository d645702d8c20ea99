#include "Animals.h"
#include "Primitives.h"

#include <cmath>
#include <numbers>

namespace ormiva::ArtPainter {

namespace {

const QColor pink = rgb(0.96, 0.68, 0.7);
const QColor dark = gray(0.08);

struct Oval {
    double x, y, w, h;
};
struct Ear {
    double x, y, w, h;
    double turn; ///< radians about its own centre
};
enum class Patch { none, belly, stripe, dorsal, quills, round, bigBelly };
enum class HeadMark { none, cheek, mask, stripe };

struct Measures {
    Oval body;
    Oval head;
    QList<Ear> ears;
    Patch patch;
    HeadMark mark;
    double eye; ///< radius
    bool snout;
    bool pinkNose;
    bool pinkFeet;
    bool whiskers;
};

const Measures& measuresOf(MammalKind kind) {
    // Degu, rat and gerbil have the same body, head and ear.
    static const Oval body = {46, 60, 46, 32};
    static const Oval head = {72, 50, 24, 21};
    static const Ear ear = {66, 41, 10, 10, -0.3};
    static const Measures ferret = {{44, 62, 62, 20},
                                    {78, 56, 20, 15},
                                    {{73, 49, 7, 7, -0.3}},
                                    Patch::belly,
                                    HeadMark::mask,
                                    2.2,
                                    true,
                                    false,
                                    false,
                                    false};
    static const Measures fox = {{46, 60, 40, 26},
                                 {70, 50, 24, 21},
                                 {{64, 30, 13, 30, -0.35}, {76, 28, 13, 30, 0.25}},
                                 Patch::belly,
                                 HeadMark::cheek,
                                 2.2,
                                 true,
                                 false,
                                 false,
                                 true};
    static const Measures skunk = {{46, 60, 46, 30},
                                   head,
                                   {{70, 40, 8, 8, -0.2}},
                                   Patch::stripe,
                                   HeadMark::stripe,
                                   2.2,
                                   true,
                                   false,
                                   false,
                                   true};
    static const Measures glider = {{50, 60, 36, 30},
                                    {70, 50, 22, 20},
                                    {{62, 39, 9, 12, -0.4}, {74, 38, 9, 12, 0.3}},
                                    Patch::dorsal,
                                    HeadMark::none,
                                    3.2,
                                    false,
                                    false,
                                    false,
                                    true};
    static const Measures hedgehog = {{46, 62, 54, 36},
                                      {74, 60, 20, 16},
                                      {{70, 53, 6, 6, -0.2}},
                                      Patch::quills,
                                      HeadMark::none,
                                      2.2,
                                      true,
                                      false,
                                      true,
                                      false};
    static const Measures chinchilla = {{46, 58, 44, 38},
                                        {68, 44, 26, 24},
                                        {{60, 30, 14, 16, -0.4}, {72, 28, 14, 16, 0.2}},
                                        Patch::none,
                                        HeadMark::cheek,
                                        3.2,
                                        false,
                                        false,
                                        false,
                                        true};
    static const Measures degu = {body, head, {ear}, Patch::belly, HeadMark::none,
                                  2.2,  true, false, false,        true};
    static const Measures rabbit = {{46, 62, 46, 36},
                                    {70, 46, 24, 21},
                                    {{62, 22, 9, 30, -0.35}, {70, 20, 9, 32, -0.05}},
                                    Patch::none,
                                    HeadMark::none,
                                    2.2,
                                    false,
                                    true,
                                    false,
                                    true};
    static const Measures guineapig = {{46, 62, 58, 34},
                                       {74, 56, 24, 22},
                                       {{68, 46, 9, 7, -0.6}},
                                       Patch::round,
                                       HeadMark::none,
                                       2.2,
                                       false,
                                       true,
                                       false,
                                       true};
    static const Measures rat = {body, head, {ear}, Patch::belly, HeadMark::none,
                                 2.2,  true, true,  true,         true};
    static const Measures hamster = {{48, 60, 48, 38},
                                     {68, 52, 26, 24},
                                     {{60, 41, 9, 9, -0.4}, {74, 40, 9, 9, 0.3}},
                                     Patch::bigBelly,
                                     HeadMark::cheek,
                                     2.2,
                                     false,
                                     true,
                                     false,
                                     true};
    static const Measures gerbil = {body, head, {ear}, Patch::belly, HeadMark::none,
                                    2.2,  true, false, false,        true};
    switch (kind) {
    case MammalKind::ferret:
        return ferret;
    case MammalKind::fox:
        return fox;
    case MammalKind::skunk:
        return skunk;
    case MammalKind::glider:
        return glider;
    case MammalKind::hedgehog:
        return hedgehog;
    case MammalKind::chinchilla:
        return chinchilla;
    case MammalKind::degu:
        return degu;
    case MammalKind::rabbit:
        return rabbit;
    case MammalKind::guineapig:
        return guineapig;
    case MammalKind::rat:
        return rat;
    case MammalKind::hamster:
        return hamster;
    case MammalKind::gerbil:
        return gerbil;
    }
    Q_UNREACHABLE();
}

void foxTail(QPainter& context, const QColor& p) {
    QPainterPath path({28, 58});
    path.quadTo(8, 52, 6, 74);
    path.quadTo(18, 80, 28, 66);
    path.closeSubpath();
    shade(context, path, p);
    context.fillPath(ell(8, 73, 7, 5), at(Qt::white, 0.9));
}

void skunkTail(QPainter& context, const QColor& p) {
    QPainterPath path({30, 56});
    path.cubicTo(6, 54, 4, 26, 26, 22);
    path.quadTo(30, 40, 34, 58);
    path.closeSubpath();
    shade(context, path, p);
    curve(context, {26, 28}, {14, 40}, {28, 52}, at(Qt::white, 0.9), 4);
}

void chinchillaTail(QPainter& context, const QColor& p) {
    QPainterPath path({26, 66});
    path.quadTo(8, 64, 12, 44);
    path.quadTo(22, 54, 30, 70);
    path.closeSubpath();
    shade(context, path, p);
}

void tail(QPainter& context, const QColor& p, MammalKind kind) {
    switch (kind) {
    case MammalKind::ferret:
        return curve(context, {16, 62}, {8, 68}, {6, 76}, p, 6);
    case MammalKind::fox:
        return foxTail(context, p);
    case MammalKind::skunk:
        return skunkTail(context, p);
    case MammalKind::glider:
        return curve(context, {32, 64}, {14, 78}, {10, 90}, p, 7);
    case MammalKind::chinchilla:
        return chinchillaTail(context, p);
    case MammalKind::degu:
        curve(context, {26, 62}, {10, 70}, {6, 60}, p, 3);
        return context.fillPath(ell(6, 58, 6, 6), gray(0.12));
    case MammalKind::rabbit:
        return context.fillPath(ell(24, 60, 10, 10), at(Qt::white, 0.95));
    case MammalKind::rat:
        return curve(context, {24, 64}, {10, 78}, {4, 70}, pink, 2.6);
    case MammalKind::gerbil:
        curve(context, {26, 62}, {8, 72}, {4, 60}, p, 3);
        return context.fillPath(ell(4, 58, 6, 7), p);
    case MammalKind::hedgehog:
    case MammalKind::guineapig:
    case MammalKind::hamster:
        return;
    }
}

void feet(QPainter& context, const QColor& p, const Measures& m) {
    const QColor color = m.pinkFeet ? pink : at(p, 0.85);
    const double y = m.body.y + m.body.h / 2 - 1;
    context.fillPath(ell(m.body.x - 0.25 * m.body.w, y, 9, 5), color);
    context.fillPath(ell(m.body.x + 0.22 * m.body.w, y, 9, 5), color);
}

/// The point of the body's ellipse at `angle`, its half axes scaled to shares of the whole width and height.
QPointF onBody(const Oval& body, double angle, double shareX, double shareY) {
    return {body.x + shareX * body.w * std::cos(angle), body.y + shareY * body.h * std::sin(angle)};
}

void quillsBehind(QPainter& context, const QColor& p, const QColor& s, const Oval& body) {
    for (int i = 0; i < 26; ++i) {
        const double angle = std::numbers::pi * (1 + i / 25.0);
        line(context, {onBody(body, angle, 0.42, 0.42), onBody(body, angle, 0.62, 0.66)}, i % 2 == 0 ? p : s,
             2.2);
    }
}

void quillsOnBody(QPainter& context, const QColor& s, const Oval& body) {
    for (int i = 0; i < 14; ++i) {
        const double angle = std::numbers::pi * (1.05 + i / 15.0);
        line(context, {onBody(body, angle, 0.2, 0.2), onBody(body, angle, 0.45, 0.45)}, at(s, 0.7), 1.2);
    }
}

void patch(QPainter& context, const QColor& s, const Measures& m) {
    switch (m.patch) {
    case Patch::none:
        return;
    case Patch::belly:
        return context.fillPath(
            ell(m.body.x + 4, m.body.y + 0.26 * m.body.h, 0.6 * m.body.w, 0.35 * m.body.h), at(s, 0.75));
    case Patch::stripe:
        return curve(context, {30, 50}, {50, 40}, {70, 44}, at(Qt::white, 0.92), 5);
    case Patch::dorsal:
        line(context, {{52, 45}, {72, 42}}, at(gray(0.1), 0.8), 2.5);
        return context.fillPath(ell(52, 66, 22, 10), at(s, 0.85));
    case Patch::quills:
        return quillsOnBody(context, s, m.body);
    case Patch::round:
        return context.fillPath(ell(36, 56, 18, 18), at(s, 0.9));
    case Patch::bigBelly:
        return context.fillPath(ell(54, 68, 26, 14), at(s, 0.9));
    }
}

void ears(QPainter& context, const QColor& p, const QList<Ear>& ears) {
    for (const Ear& ear : ears) {
        shade(context, rot(ell(ear.x, ear.y, ear.w, ear.h), ear.turn, ear.x, ear.y), p);
        const QPainterPath inner = ell(ear.x, ear.y + 0.06 * ear.h, 0.55 * ear.w, 0.62 * ear.h);
        context.fillPath(rot(inner, ear.turn, ear.x, ear.y), at(pink, 0.85));
    }
}

void head(QPainter& context, const QColor& p, const Measures& m) {
    const auto& [x, y, w, h] = m.head;
    QPainterPath path = ell(x, y, w, h);
    path.setFillRule(Qt::WindingFill); // The snout and the head are one shape.
    if (m.snout) {
        path.moveTo(x - 2, y - 0.35 * h);
        path.quadTo(x + 0.6 * w, y - 0.2 * h, x + 0.85 * w, y + 2);
        path.quadTo(x + 0.5 * w, y + 0.45 * h, x - 2, y + 0.4 * h);
        path.closeSubpath();
    }
    shade(context, path, p);
}

void headMark(QPainter& context, const QColor& s, const Measures& m) {
    const auto& [x, y, w, h] = m.head;
    switch (m.mark) {
    case HeadMark::none:
        return;
    case HeadMark::cheek:
        return context.fillPath(ell(x + 4, y + 0.2 * h, 0.55 * w, 0.4 * h), at(s, 0.8));
    case HeadMark::mask:
        return context.fillPath(ell(x + 2, y - 1, 12, 6), at(gray(0.15), 0.75));
    case HeadMark::stripe:
        return line(context, {{68, 42}, {80, 49}}, at(Qt::white, 0.9), 2.5);
    }
}

void face(QPainter& context, const Measures& m) {
    const auto& [x, y, w, h] = m.head;
    eye(context, x + 0.15 * w, y - 0.12 * h, m.eye);
    const double nose = x + (m.snout ? 0.85 : 0.48) * w;
    context.fillPath(ell(nose, y + 2, 3.4, 2.8), m.pinkNose ? pink : dark);
    if (!m.whiskers)
        return;
    line(context, {{nose - 1, y + 0.5}, {nose + 9, y - 2.5}}, at(Qt::white, 0.45), 0.6);
    line(context, {{nose - 1, y + 3.5}, {nose + 9, y + 6.5}}, at(Qt::white, 0.45), 0.6);
}

} // namespace

void mammal(QPainter& context, const QColor& p, const QColor& s, MammalKind kind) {
    const Measures& m = measuresOf(kind);
    tail(context, p, kind);
    feet(context, p, m);
    if (m.patch == Patch::quills)
        quillsBehind(context, p, s, m.body);
    shade(context, ell(m.body.x, m.body.y, m.body.w, m.body.h), m.patch == Patch::quills ? at(p, 0.95) : p);
    patch(context, s, m);
    ears(context, p, m.ears);
    head(context, p, m);
    headMark(context, s, m);
    face(context, m);
}

} // namespace ormiva::ArtPainter
