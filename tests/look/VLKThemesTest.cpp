#include "InstalledThemes.h"

namespace ormiva {
namespace {

// What there is before anybody registers anything: taken before any test runs.
const QList<VLKTheme> atFirst = VLKThemes::all();
const QString defaultAtFirst = VLKThemes::defaultID();

const QList<QStringList> builtIn = {
    {u"cobalt-gunmetal"_qs, u"Cobalt Gunmetal"_qs, u"masculine"_qs, u"14181F"_qs, u"353C48"_qs, u"1C2129"_qs,
     u"F2F5FA"_qs, u"A3AEC0"_qs, u"2F7BF2"_qs},
    {u"candy-red-titanium"_qs, u"Candy Red Titanium"_qs, u"masculine"_qs, u"1A1616"_qs, u"403736"_qs,
     u"231D1D"_qs, u"FAF3F2"_qs, u"C2AAA7"_qs, u"D3262E"_qs},
    {u"rose-gold"_qs, u"Rose Gold"_qs, u"feminine"_qs, u"24161D"_qs, u"4A3039"_qs, u"2C1B23"_qs, u"FFF2F5"_qs,
     u"D6AFBC"_qs, u"E0789A"_qs},
    {u"lavender-pearl"_qs, u"Lavender Pearl"_qs, u"feminine"_qs, u"1C1726"_qs, u"40375A"_qs, u"241D33"_qs,
     u"F6F2FF"_qs, u"BDB1DA"_qs, u"9B7BE8"_qs},
    {u"midnight-black"_qs, u"Midnight Black"_qs, u"black"_qs, u"050506"_qs, u"26272B"_qs, u"0E0E10"_qs,
     u"FFFFFF"_qs, u"9C9EA6"_qs, u"5AA9FF"_qs},
    {u"brushed-gray"_qs, u"Brushed Gray"_qs, u"gray"_qs, u"3A3D42"_qs, u"6A6E75"_qs, u"45484E"_qs,
     u"FFFFFF"_qs, u"D9DCE1"_qs, u"1F6FD1"_qs},
};

using Themes = testing::InstalledThemes;

QStringList idsOfAll() {
    QStringList ids;
    for (const VLKTheme& theme : VLKThemes::all())
        ids.append(theme.id);
    return ids;
}

VLKTheme theme(const QString& id, const QString& name) {
    VLKTheme theme;
    theme.id = id;
    theme.name = name;
    return theme;
}

TEST(VLKThemes, BuiltInAreSixInOrder) {
    EXPECT_EQ(testing::rows(VLKThemes::builtIn()), builtIn);
}

TEST(VLKThemes, AreAtFirstTheBuiltInOnesWithCobaltAsDefault) {
    EXPECT_EQ(testing::rows(atFirst), builtIn);
    EXPECT_EQ(defaultAtFirst, u"cobalt-gunmetal"_qs);
}

TEST_F(Themes, AreEightOnceInstalled) {
    EXPECT_EQ(idsOfAll(), QStringList({u"cobalt-gunmetal"_qs, u"candy-red-titanium"_qs, u"rose-gold"_qs,
                                       u"lavender-pearl"_qs, u"midnight-black"_qs, u"brushed-gray"_qs,
                                       u"rainforest-canopy"_qs, u"desert-stone"_qs}));
}

TEST_F(Themes, AreNotAddedTwice) {
    const QStringList before = idsOfAll();
    VLKThemes::registerThemes(OMThemes::extras());
    VLKThemes::registerThemes(
        {theme(u"rose-gold"_qs, u"Impostor"_qs), theme(u"desert-stone"_qs, u"Impostor"_qs)});
    VLKThemes::registerThemes({});
    EXPECT_EQ(idsOfAll(), before);
    EXPECT_EQ(VLKThemes::named(u"rose-gold"_qs).name, u"Rose Gold"_qs);
    EXPECT_EQ(VLKThemes::named(u"desert-stone"_qs).name, u"Desert Stone"_qs);
}

TEST_F(Themes, AreFoundByTheirIds) {
    for (const VLKTheme& theme : VLKThemes::all())
        EXPECT_EQ(testing::row(VLKThemes::named(theme.id)), testing::row(theme));
}

TEST_F(Themes, AreTheDefaultWhereTheIdIsUnknownAndElseTheFirst) {
    EXPECT_EQ(VLKThemes::named(u"no-such-theme"_qs).id, u"rainforest-canopy"_qs);
    EXPECT_EQ(VLKThemes::named(u"Rose-Gold"_qs).id, u"rainforest-canopy"_qs);
    VLKThemes::setDefaultID(u"no-such-default"_qs);
    EXPECT_EQ(VLKThemes::defaultID(), u"no-such-default"_qs);
    EXPECT_EQ(VLKThemes::named(u"no-such-theme"_qs).id, u"cobalt-gunmetal"_qs);
}

TEST_F(Themes, BeginWithTheDefaultLook) {
    EXPECT_EQ(VLKThemes::key, u"vlk.theme"_qs);
    EXPECT_EQ(VLKThemes::currentID(), u"rainforest-canopy"_qs);
    EXPECT_EQ(VLKThemes::current().id, u"rainforest-canopy"_qs);
    VLKThemes::setDefaultID(u"brushed-gray"_qs);
    EXPECT_EQ(VLKThemes::current().id, u"brushed-gray"_qs);
}

TEST_F(Themes, AreEachCurrentWhenStored) {
    ASSERT_EQ(VLKThemes::all().size(), 8);
    for (const QString& id : idsOfAll()) {
        VLKThemes::setCurrentID(id);
        EXPECT_EQ(VLKThemes::current().id, id);
        EXPECT_EQ(OMPrefs::value(u"vlk.theme"_qs).toString(), id);
    }
}

TEST_F(Themes, AreKeptAcrossAStart) {
    VLKThemes::setCurrentID(u"rose-gold"_qs);
    m_prefs.startAgain();
    EXPECT_EQ(VLKThemes::currentID(), u"rose-gold"_qs);
    EXPECT_EQ(VLKThemes::current().id, u"rose-gold"_qs);
}

TEST_F(Themes, ShowTheDefaultForAnUnknownStoredIdWithoutRepairingIt) {
    for (const QString& id : {u"no-such-theme"_qs, u""_qs, u"a, b"_qs}) {
        VLKThemes::setCurrentID(id);
        m_prefs.startAgain();
        EXPECT_EQ(VLKThemes::current().id, u"rainforest-canopy"_qs);
        EXPECT_EQ(VLKThemes::currentID(), id);
    }
}

} // namespace
} // namespace ormiva
