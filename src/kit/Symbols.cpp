#include "Symbols.h"

#include "SymbolDrawing.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace ormiva {

namespace {

struct Entry {
    std::u16string_view name;
    char16_t glyph;
};

// Sorted by name. Behind each: what the icon is called in the font "Material Design Icons".
// clang-format off
constexpr auto table = std::to_array<Entry>({
    {u"ant.fill", u'\xf0e4'}, // bug
    {u"arrow.down.doc.fill", u'\xf21d'}, // file-export
    {u"arrow.triangle.swap", u'\xf4e1'}, // swap-horizontal
    {u"arrow.up.right.square", u'\xf3cc'}, // open-in-new
    {u"arrow.uturn.backward.circle.fill", u'\xf06f'}, // backup-restore
    {u"bell.badge.fill", u'\xf09e'}, // bell-ring
    {u"bell.fill", u'\xf09a'}, // bell
    {u"books.vertical.fill", u'\xf0bb'}, // book-multiple
    {u"building.columns.fill", u'\xf070'}, // bank
    {u"calendar", u'\xf0ed'}, // calendar
    {u"checklist", u'\xf5c7'}, // playlist-check
    {u"checkmark", u'\xf12c'}, // check
    {u"checkmark.circle.fill", u'\xf5e0'}, // check-circle
    {u"checkmark.seal.fill", u'\xf565'}, // verified
    {u"checkmark.square.fill", u'\xf132'}, // checkbox-marked
    {u"chevron.down", u'\xf140'}, // chevron-down
    {u"chevron.left", u'\xf141'}, // chevron-left
    {u"chevron.left.2", u'\xf13d'}, // chevron-double-left
    {u"chevron.right", u'\xf142'}, // chevron-right
    {u"chevron.right.2", u'\xf13e'}, // chevron-double-right
    {u"chevron.up.chevron.down", u'\xf54f'}, // unfold-more
    {u"clock.badge.exclamationmark.fill", u'\xf5ce'}, // clock-alert
    {u"clock.fill", u'\xf150'}, // clock
    {u"cross.circle.fill", u'\xf417'}, // plus-circle
    {u"drop.fill", u'\xf58c'}, // water
    {u"exclamationmark.triangle.fill", u'\xf026'}, // alert
    {u"externaldrive.fill", u'\xf2ca'}, // harddisk
    {u"eye.fill", u'\xf208'}, // eye
    {u"fork.knife", u'\xf4a3'}, // silverware
    {u"gearshape.fill", u'\xf493'}, // settings
    {u"hourglass", u'\xf51f'}, // timer-sand
    {u"house.fill", u'\xf2dc'}, // home
    {u"humidity.fill", u'\xf58e'}, // water-percent
    {u"info.circle.fill", u'\xf2fc'}, // information
    {u"leaf.fill", u'\xf32a'}, // leaf
    {u"list.clipboard.fill", u'\xf14e'}, // clipboard-text
    {u"magnifyingglass", u'\xf349'}, // magnify
    {u"nosign", u'\xf0ad'}, // block-helper
    {u"paintpalette.fill", u'\xf3d8'}, // palette
    {u"pawprint.fill", u'\xf3e9'}, // paw
    {u"phone.fill", u'\xf3f2'}, // phone
    {u"pills.fill", u'\xf402'}, // pill
    {u"plus", u'\xf415'}, // plus
    {u"puzzlepiece.fill", u'\xf431'}, // puzzle
    {u"ruler", u'\xf46d'}, // ruler
    {u"scalemass.fill", u'\xf473'}, // scale-bathroom
    {u"sparkles", u'\xf068'}, // auto-fix
    {u"square", u'\xf131'}, // checkbox-blank-outline
    {u"square.3.layers.3d", u'\xf1a7'}, // cube-outline
    {u"square.stack.3d.down.forward", u'\xf328'}, // layers
    {u"star.fill", u'\xf4ce'}, // star
    {u"stethoscope", u'\xf4d9'}, // stethoscope
    {u"sun.horizon.fill", u'\xf59a'}, // weather-sunset
    {u"sun.max.fill", u'\xf599'}, // weather-sunny
    {u"text.book.closed.fill", u'\xf5da'}, // book-open-page-variant
    {u"thermometer.medium", u'\xf50f'}, // thermometer
    {u"trash", u'\xf1c0'}, // delete
    {u"xmark.circle.fill", u'\xf159'}, // close-circle
});
// clang-format on
static_assert(std::ranges::is_sorted(table, {}, &Entry::name));

constexpr char16_t unknown = u'\xf2d7'; // help-circle

} // namespace

QString Symbols::glyph(const QString& name) {
    if (isDrawn(name))
        return {};
    const std::u16string wanted = name.toStdU16String();
    const auto found = std::ranges::lower_bound(table, wanted, {}, &Entry::name);
    return QChar(found != table.end() && found->name == wanted ? found->glyph : unknown);
}

bool Symbols::isDrawn(const QString& name) {
    return SymbolDrawing::knows(name);
}

} // namespace ormiva
