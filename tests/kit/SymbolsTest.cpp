#include "Symbols.h"

#include "CareField.h"
#include "Printers.h"
#include "ReminderKind.h"
#include "Screen.h"
#include "SpeciesGroup.h"
#include "SymbolDrawing.h"
#include "SymptomData.h"

#include <QDirIterator>
#include <QFile>
#include <QFontInfo>
#include <QRawFont>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

const QString family = QStringLiteral("Material Design Icons");

/// The symbols that the pages name: what stands in quotation marks behind "symbol:", and behind "name:" in a
/// Symbol.
QStringList namedInPages() {
    static const QRegularExpression lines(
        QStringLiteral("\\bsymbol: (.*)|\\bSymbol \\{[^{}]*?\\bname: ([^\\n]*)"));
    static const QRegularExpression quoted(QStringLiteral("\"([^\"]+)\""));
    QStringList names;
    QDirIterator pages(QStringLiteral(ORMIVA_ROOT "/src"), {QStringLiteral("*.qml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (pages.hasNext()) {
        QFile page(pages.next());
        EXPECT_TRUE(page.open(QIODevice::ReadOnly));
        for (const auto& line : lines.globalMatch(QString::fromUtf8(page.readAll())))
            for (const auto& name : quoted.globalMatch(line.captured(1) + line.captured(2)))
                names.append(name.captured(1));
    }
    return names;
}

/// Every symbol that a record, a screen or a page asks for.
QStringList wanted() {
    QStringList names = namedInPages();
    for (const ScreenInfo& screen : allScreens())
        names.append(screen.symbol);
    for (const CareFieldInfo& field : allCareFields())
        names.append(field.symbol);
    for (const SpeciesGroupInfo& group : allSpeciesGroups())
        names.append(group.symbol);
    for (const ReminderKindInfo& kind : allReminderKinds())
        names.append(kind.symbol);
    for (const UrgencyInfo& urgency : allUrgencies())
        names.append(urgency.symbol);
    return names;
}

} // namespace

TEST(Symbols, AreFoundInThePages) {
    const QStringList names = namedInPages();
    for (const char16_t* name : {u"magnifyingglass", u"xmark.circle.fill", u"checkmark", u"pawprint.fill"})
        EXPECT_TRUE(names.contains(QString::fromUtf16(name))) << QString::fromUtf16(name).toStdString();
    EXPECT_GE(names.size(), 15);
}

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
