#pragma once

#include <QColor>
#include <QPainter>

/// The painters of the families. `p` is a species' body colour, `s` its second one. Each draws its shapes in
/// the order in which they cover each other.
namespace ormiva::ArtPainter {

/// What a lizard has beyond the common skeleton.
struct LizardParts {
    bool beard = false;
    bool spots = false;
    bool bands = false;
    bool fatTail = false;
    bool crest = false;
    bool dewlap = false;
    bool spikes = false;
    bool isShort = false;
};
enum class SnakePattern { blotch, saddle, band };
enum class BirdKind { budgie, cockatiel, grey };
enum class MammalKind {
    ferret,
    fox,
    skunk,
    glider,
    hedgehog,
    chinchilla,
    degu,
    rabbit,
    guineapig,
    rat,
    hamster,
    gerbil
};

void lizard(QPainter& context, const QColor& p, const QColor& s, const LizardParts& parts);
void snake(QPainter& context, const QColor& p, const QColor& s, SnakePattern pattern);
void chameleon(QPainter& context, const QColor& p, const QColor& s, bool tallCasque);
void tortoise(QPainter& context, const QColor& p, const QColor& s, bool big);
void turtle(QPainter& context, const QColor& p, const QColor& s);
void axolotl(QPainter& context, const QColor& p, const QColor& s);
void frog(QPainter& context, const QColor& p, const QColor& s, bool pacman);
void bird(QPainter& context, const QColor& p, const QColor& s, BirdKind kind);
void tarantula(QPainter& context, const QColor& p, const QColor& s);
void crab(QPainter& context, const QColor& p, const QColor& s);
void mammal(QPainter& context, const QColor& p, const QColor& s, MammalKind kind);

} // namespace ormiva::ArtPainter
