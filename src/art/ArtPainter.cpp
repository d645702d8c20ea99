#include "ArtPainter.h"

#include "Animals.h"
#include "Primitives.h"
#include "VLKitTheme.h"

#include <QLinearGradient>

namespace ormiva::ArtPainter {

namespace {

using Paint = void (*)(QPainter&, const QColor&, const QColor&);

struct Drawing {
    QString key;
    Paint paint;
};

const QList<Drawing>& drawings() {
    static const QList<Drawing> all = {
        {QStringLiteral("dragon"), [](QPainter& c, const QColor& p,
                                      const QColor& s) { lizard(c, p, s, {.beard = true, .spikes = true}); }},
        {QStringLiteral("gecko"), [](QPainter& c, const QColor& p,
                                     const QColor& s) { lizard(c, p, s, {.spots = true, .fatTail = true}); }},
        {QStringLiteral("gecko-crested"),
         [](QPainter& c, const QColor& p, const QColor& s) { lizard(c, p, s, {.crest = true}); }},
        {QStringLiteral("skink"),
         [](QPainter& c, const QColor& p, const QColor& s) {
             lizard(c, p, s, {.bands = true, .isShort = true});
             blueTongue(c);
         }},
        {QStringLiteral("uromastyx"),
         [](QPainter& c, const QColor& p, const QColor& s) {
             lizard(c, p, s, {.spots = true, .fatTail = true, .spikes = true, .isShort = true});
         }},
        {QStringLiteral("tegu"),
         [](QPainter& c, const QColor& p, const QColor& s) { lizard(c, p, s, {.bands = true}); }},
        {QStringLiteral("iguana"),
         [](QPainter& c, const QColor& p, const QColor& s) {
             lizard(c, p, s, {.bands = true, .crest = true, .dewlap = true});
         }},
        {QStringLiteral("snake-python"),
         [](QPainter& c, const QColor& p, const QColor& s) { snake(c, p, s, SnakePattern::blotch); }},
        {QStringLiteral("snake-colubrid"),
         [](QPainter& c, const QColor& p, const QColor& s) { snake(c, p, s, SnakePattern::saddle); }},
        {QStringLiteral("snake-banded"),
         [](QPainter& c, const QColor& p, const QColor& s) { snake(c, p, s, SnakePattern::band); }},
        {QStringLiteral("chameleon-veiled"),
         [](QPainter& c, const QColor& p, const QColor& s) { chameleon(c, p, s, true); }},
        {QStringLiteral("chameleon-panther"),
         [](QPainter& c, const QColor& p, const QColor& s) { chameleon(c, p, s, false); }},
        {QStringLiteral("tortoise-small"),
         [](QPainter& c, const QColor& p, const QColor& s) { tortoise(c, p, s, false); }},
        {QStringLiteral("tortoise-large"),
         [](QPainter& c, const QColor& p, const QColor& s) { tortoise(c, p, s, true); }},
        {QStringLiteral("turtle"), [](QPainter& c, const QColor& p, const QColor& s) { turtle(c, p, s); }},
        {QStringLiteral("axolotl"), [](QPainter& c, const QColor& p, const QColor& s) { axolotl(c, p, s); }},
        {QStringLiteral("frog-pacman"),
         [](QPainter& c, const QColor& p, const QColor& s) { frog(c, p, s, true); }},
        {QStringLiteral("frog-tree"),
         [](QPainter& c, const QColor& p, const QColor& s) { frog(c, p, s, false); }},
        {QStringLiteral("budgie"),
         [](QPainter& c, const QColor& p, const QColor& s) { bird(c, p, s, BirdKind::budgie); }},
        {QStringLiteral("cockatiel"),
         [](QPainter& c, const QColor& p, const QColor& s) { bird(c, p, s, BirdKind::cockatiel); }},
        {QStringLiteral("grey"),
         [](QPainter& c, const QColor& p, const QColor& s) { bird(c, p, s, BirdKind::grey); }},
        {QStringLiteral("tarantula"),
         [](QPainter& c, const QColor& p, const QColor& s) { tarantula(c, p, s); }},
        {QStringLiteral("crab"), [](QPainter& c, const QColor& p, const QColor& s) { crab(c, p, s); }},
        {QStringLiteral("ferret"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::ferret); }},
        {QStringLiteral("fox"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::fox); }},
        {QStringLiteral("skunk"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::skunk); }},
        {QStringLiteral("glider"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::glider); }},
        {QStringLiteral("hedgehog"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::hedgehog); }},
        {QStringLiteral("chinchilla"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::chinchilla); }},
        {QStringLiteral("degu"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::degu); }},
        {QStringLiteral("rabbit"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::rabbit); }},
        {QStringLiteral("guineapig"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::guineapig); }},
        {QStringLiteral("rat"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::rat); }},
        {QStringLiteral("hamster"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::hamster); }},
        {QStringLiteral("gerbil"),
         [](QPainter& c, const QColor& p, const QColor& s) { mammal(c, p, s, MammalKind::gerbil); }},
    };
    return all;
}

} // namespace

void badge(QPainter& context, const VLKTheme& theme) {
    const QPainterPath plate = ell(50, 50, 98, 98);
    context.fillPath(plate,
                     radial({42, 30}, 4, 70, at(color(theme.panelTop), 0.95), color(theme.panelBottom)));

    const QColor warm = QColor::fromRgbF(1.0F, 0.85F, 0.55F);
    context.fillPath(plate, radial({38, 20}, 2, 50, at(warm, 0.22), at(warm, 0)));

    // Qt counts angles against the clock, the canvas with it: 25° to 155° downward is -25° over -130°.
    QPainterPath segment;
    const QRectF circle(1, 1, 98, 98);
    segment.arcMoveTo(circle, -25);
    segment.arcTo(circle, -25, -130);
    segment.closeSubpath();
    context.fillPath(segment, at(Qt::black, 0.22));

    QLinearGradient rim(50, 0, 50, 100);
    rim.setColorAt(0, at(Qt::white, 0.45));
    rim.setColorAt(1, at(Qt::black, 0.5));
    // The stroke as a shape: Qt's SVG files have no pens with a gradient.
    QPainterPathStroker pen;
    pen.setWidth(1.6);
    context.fillPath(pen.createStroke(ell(50, 50, 97, 97)), rim);
}

const QStringList& known() {
    static const QStringList keys = [] {
        QStringList all;
        for (const Drawing& drawing : drawings())
            all.append(drawing.key);
        return all;
    }();
    return keys;
}

void draw(const QString& key, QPainter& context, const QColor& primary, const QColor& secondary) {
    for (const Drawing& drawing : drawings())
        if (drawing.key == key)
            return drawing.paint(context, primary, secondary);
    context.fillPath(ell(50, 52, 40, 40), primary);
    eye(context, 58, 48);
}

} // namespace ormiva::ArtPainter
