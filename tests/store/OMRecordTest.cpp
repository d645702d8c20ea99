#include "OMRecord.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::rowOf;

TEST(Trimming, TakesAwayUnicodesWhiteSpaceAtBothEnds) {
    const QString spaces =
        u" \t\n\v\f\r\u0085\u00a0\u1680\u2000\u2003\u2007\u2009\u2028\u2029\u202f\u205f\u3000"_qs;
    EXPECT_EQ(Records::trimmed(spaces + u"Gex"_qs + spaces), u"Gex"_qs);
    EXPECT_EQ(Records::trimmed(u"  Mr \u00a0 Gex "_qs), u"Mr \u00a0 Gex"_qs);
    EXPECT_EQ(Records::trimmed(u"Gex"_qs), u"Gex"_qs);
    EXPECT_EQ(Records::trimmed(spaces), QString());
    EXPECT_EQ(Records::trimmed(QString()), QString());
    for (const QChar space : spaces)
        EXPECT_TRUE(Records::isBlank(space)) << static_cast<int>(space.unicode());
}

TEST(Trimming, LeavesWhatIsNoWhiteSpace) {
    for (const QString& text : {u"x"_qs, u"\u200b"_qs, u"."_qs, u"🦎"_qs, u"\u0301"_qs})
        EXPECT_FALSE(Records::isBlank(text)) << text.toStdString();
}

TEST(RequiredDay, IsTodayWhereTheRowHasNone) {
    const testing::FixedCalendar calendar(testing::utc(2026, 3, 7));
    const OMDay today{2026, 3, 7};
    const QString day = u"day"_qs;
    EXPECT_EQ(Records::requiredDay(rowOf({{day, u"2024-02-03"_qs}}), day), (OMDay{2024, 2, 3}));
    EXPECT_EQ(Records::requiredDay(rowOf({{day, u"yesterday"_qs}}), day), today);
    EXPECT_EQ(Records::requiredDay(rowOf({{day, SQLNull()}}), day), today);
    EXPECT_EQ(Records::requiredDay(rowOf({{day, QByteArray("2024-02-03")}}), day), today);
    EXPECT_EQ(Records::requiredDay(rowOf({{day, qint64(20240203)}}), day), today);
    EXPECT_EQ(Records::requiredDay(SQLRow(), day), today);
}

TEST(OptionalDay, IsAbsentWhereTheRowHasNone) {
    const QString day = u"birthday"_qs;
    EXPECT_EQ(Records::optionalDay(rowOf({{day, u"2024-02-03"_qs}}), day), (OMDay{2024, 2, 3}));
    EXPECT_EQ(Records::optionalDay(rowOf({{day, u"2024-13-03"_qs}}), day), std::nullopt);
    EXPECT_EQ(Records::optionalDay(rowOf({{day, SQLNull()}}), day), std::nullopt);
    EXPECT_EQ(Records::optionalDay(rowOf({{day, QByteArray("2024-02-03")}}), day), std::nullopt);
    EXPECT_EQ(Records::optionalDay(SQLRow(), day), std::nullopt);
}

TEST(WrittenDay, IsIsoOrNull) {
    EXPECT_EQ(Records::written(OMDay{2026, 3, 7}).value(), SQLValue(u"2026-03-07"_qs));
    EXPECT_EQ(Records::written(std::nullopt).value(), SQLValue(SQLNull()));
}

TEST(RequirePet, CountsAFailedReadAsNoPet) {
    testing::MadeStore made;
    const Pet pet = made.addPet();
    EXPECT_EQ(testing::errorOf([&] { Records::requirePet(made.store, pet.id); }), std::nullopt);
    EXPECT_EQ(testing::errorOf([&] { Records::requirePet(made.store, pet.id + 1); }),
              OMError::invalid(u"Please choose a pet."_qs));
    made.store.db().close();
    EXPECT_EQ(testing::errorOf([&] { Records::requirePet(made.store, pet.id); }),
              OMError::invalid(u"Please choose a pet."_qs));
}

} // namespace
} // namespace ormiva
