#include "Symbols.h"

#include "CareField.h"
#include "Printers.h"
#include "ReminderKind.h"
#include "Screen.h"
#include "SpeciesGroup.h"
#include "SymbolDrawing.h"
#include "SymptomData.h"

#include <QFontInfo>
#include <QRawFont>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

const QString family = QStringLiteral("Material Design Icons");

/// Every symbol that a record, a screen or a page asks for.
QStringList wanted() {
    QStringList names = {QStringLiteral("magnifyingglass"),
                         QStringLiteral("xmark.circle.fill"),
                         QStringLiteral("info.circle.fill"),
                         QStringLiteral("text.book.closed.fill"),
                         QStringLiteral("checkmark"),
                         QStringLiteral("plus"),
                         QStringLiteral("calendar"),
                         QStringLiteral("chevron.left"),
                         QStringLiteral("chevron.left.2"),
                         QStringLiteral("chevron.right"),
                         QStringLiteral("chevron.right.2"),
                         QStringLiteral("chevron.up.chevron.down"),
                         QStringLiteral("exclamationmark.triangle.fill")};
    for (const ScreenInfo& screen : allScreens())
        names.append(screen.symbol);
    for (const CareFieldInfo& field : allCareFields())
        names.append(field.symbol);
    for (const SpeciesGroupInfo& group : allSpeciesGroups())
        names.append(group.symbol);
    for (const UrgencyInfo& urgency : allUrgencies())
        names.append(urgency.symbol);
    return names;
}

} // namespace

TEST(Symbols, KnowsEverySymbolThatIsAskedFor) {
    const QString unknown = Symbols::glyph(QStringLiteral("no such symbol"));
    ASSERT_EQ(unknown.size(), 1);
    for (const QString& name : wanted())
        EXPECT_TRUE(Symbols::isDrawn(name) || Symbols::glyph(name) != unknown) << name.toStdString();
}

TEST(Symbols, TakesItsGlyphsFromTheInstalledIconFont) {
    QFont font(family);
    font.setPixelSize(24);
    ASSERT_EQ(QFontInfo(font).family(), family);
    const QRawFont raw = QRawFont::fromFont(font);
    for (const QString& name : wanted()) {
        if (!Symbols::isDrawn(name)) {
            EXPECT_TRUE(raw.supportsCharacter(Symbols::glyph(name).front())) << name.toStdString();
        }
    }
}

TEST(Symbols, DrawsWhatTheFontDoesNotHave) {
    for (const char16_t* text :
         {u"lizard.fill", u"bird.fill", u"hand.raised.fill", u"cross.case.fill", u"staroflife.fill"}) {
        const QString name = QString::fromUtf16(text);
        EXPECT_TRUE(Symbols::isDrawn(name));
        EXPECT_EQ(Symbols::glyph(name), QString());
        const QRectF bounds = SymbolDrawing::shape(name).boundingRect();
        EXPECT_TRUE(QRectF(0, 0, 24, 24).contains(bounds)) << name.toStdString();
        EXPECT_GT(bounds.width(), 14) << name.toStdString();
        EXPECT_GT(bounds.height(), 14) << name.toStdString();
    }
    EXPECT_TRUE(SymbolDrawing::shape(QStringLiteral("plus")).isEmpty());
}

} // namespace ormiva::testing
