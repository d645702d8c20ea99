// Rows as no version of the program writes them: they are read all the same, with a replacement for every
// damaged value.

#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::utc;

constexpr qint64 most = 9223372036854775807;

class DamagedRow : public ::testing::Test {
protected:
    void exec(const QString& sql) { m_made.store.db().exec(sql); }

    FixedCalendar m_calendar{utc(2026, 3, 7)};
    OMDay m_today{2026, 3, 7};
    MadeStore m_made;
    Pet m_pet = m_made.addPet();
};

/// A record as it must read when every column but those named by `set` is missing or null.
template <OMRecord T>
T blankRow() {
    return T::fromRow(SQLRow());
}

TEST_F(DamagedRow, WithoutAnyColumnReadsAsBlank) {
    EXPECT_EQ(blankRow<Pet>(), Pet());
    EXPECT_EQ(blankRow<WeightEntry>(), WeightEntry());
    FeedingEntry feeding;
    feeding.ate = false;
    EXPECT_EQ(blankRow<FeedingEntry>(), feeding);
    ShedEntry shed;
    shed.complete = false;
    EXPECT_EQ(blankRow<ShedEntry>(), shed);
    EXPECT_EQ(blankRow<VetVisit>(), VetVisit());
    Medication medicine;
    medicine.start = std::nullopt;
    EXPECT_EQ(blankRow<Medication>(), medicine);
    Reminder reminder;
    reminder.kind = ReminderKind::Other;
    reminder.active = false;
    EXPECT_EQ(blankRow<Reminder>(), reminder);
}

TEST_F(DamagedRow, WithNullsReadsLikeOneWithoutColumns) {
    const auto nulls = [](const QStringList& columns) {
        SQLRow row{{{u"id"_qs, SQLNull()}}};
        for (const QString& column : columns)
            row.values.insert_or_assign(column, SQLNull());
        return row;
    };
    EXPECT_EQ(Pet::fromRow(nulls(Pet::columns())), blankRow<Pet>());
    EXPECT_EQ(WeightEntry::fromRow(nulls(WeightEntry::columns())), blankRow<WeightEntry>());
    EXPECT_EQ(FeedingEntry::fromRow(nulls(FeedingEntry::columns())), blankRow<FeedingEntry>());
    EXPECT_EQ(ShedEntry::fromRow(nulls(ShedEntry::columns())), blankRow<ShedEntry>());
    EXPECT_EQ(VetVisit::fromRow(nulls(VetVisit::columns())), blankRow<VetVisit>());
    EXPECT_EQ(Medication::fromRow(nulls(Medication::columns())), blankRow<Medication>());
    EXPECT_EQ(Reminder::fromRow(nulls(Reminder::columns())), blankRow<Reminder>());
}

TEST_F(DamagedRow, OfAPetLosesOnlyTheDamagedValues) {
    exec(u"DELETE FROM pet; INSERT INTO pet (id, name, species_id, sex, birthday, acquired, photo, markings, "
         u"enclosure,"
         " notes) VALUES (-3, x'47', 12, x'', '2024-02-31', 'spring', 'no picture', 1.5, -7, x'ff00')"_qs);
    Pet expected;
    expected.id = -3;
    expected.speciesID = u"12"_qs;
    expected.birthday = OMDay{2024, 2, 31};
    expected.markings = u"1.5"_qs;
    expected.enclosure = u"-7"_qs;
    EXPECT_EQ(m_made.store.pets(), QList<Pet>({expected}));
    EXPECT_EQ(m_made.store.pet(-3), expected);
}

TEST_F(DamagedRow, OfAWeightLosesOnlyTheDamagedValues) {
    exec(u"PRAGMA foreign_keys = OFF;"
         "INSERT INTO weight (id, pet_id, day, grams, note) VALUES"
         " (1, 1, '', 'heavy', 'a'), (2, 1, x'323032', x'00', 'b'), (3, 1, '0', '12,5', 'c'),"
         " (4, 1, '2026-02-30', 9e999, 'd'), (5, 1, '2026-01-01', -1e308, x'00'),"
         " (6, 1, '999999999-12-31', 9223372036854775807, 'f'), (7, 'nobody', '2026-01-01', 1, 'g')"_qs);
    const auto weight = [](qint64 id, const OMDay& day, double grams, const QString& note) {
        WeightEntry entry;
        entry.id = id;
        entry.petID = 1;
        entry.day = day;
        entry.grams = grams;
        entry.note = note;
        return entry;
    };
    QList<WeightEntry> expected = {
        weight(1, m_today, 0, u"a"_qs),
        weight(2, m_today, 0, u"b"_qs),
        weight(3, m_today, 0, u"c"_qs),
        weight(4, {2026, 2, 30}, std::numeric_limits<double>::infinity(), u"d"_qs),
        weight(5, {2026, 1, 1}, -1e308, QString()),
        weight(6, {999999999, 12, 31}, 9223372036854775807.0, u"f"_qs),
        weight(7, {2026, 1, 1}, 1, u"g"_qs),
    };
    expected[6].petID = 0;
    EXPECT_EQ(m_made.store.all<WeightEntry>(), expected);
}

TEST_F(DamagedRow, OfAFeedingLosesOnlyTheDamagedValues) {
    exec(u"INSERT INTO feeding (id, pet_id, day, food, amount, ate, note) VALUES"
         " (1, 1, '2026-13-01', x'aa', 3, 'abc', 4.0), (2, 1, '2026-03-01', 'hay', 'some', 7, ''),"
         " (3, 1, '2026-03-01', 'hay', x'', 0.5, ''), (4, 1, '2026-03-01', 'hay', '', x'01', '')"_qs);
    const auto feeding = [](qint64 id, const OMDay& day, const QString& food, const QString& amount,
                            bool ate) {
        FeedingEntry entry;
        entry.id = id;
        entry.petID = 1;
        entry.day = day;
        entry.food = food;
        entry.amount = amount;
        entry.ate = ate;
        return entry;
    };
    QList<FeedingEntry> expected = {
        feeding(1, m_today, QString(), u"3"_qs, false),
        feeding(2, {2026, 3, 1}, u"hay"_qs, u"some"_qs, true),
        feeding(3, {2026, 3, 1}, u"hay"_qs, QString(), false),
        feeding(4, {2026, 3, 1}, u"hay"_qs, QString(), false),
    };
    expected[0].note = u"4.0"_qs;
    EXPECT_EQ(m_made.store.all<FeedingEntry>(), expected);
}

TEST_F(DamagedRow, OfAShedLosesOnlyTheDamagedValues) {
    exec(u"INSERT INTO shed (id, pet_id, day, complete, note) VALUES (1, 1, x'00', '1x', x'ff'),"
         " (2, 1, 20260301, -1, 'ok')"_qs);
    ShedEntry first;
    first.id = 1;
    first.petID = 1;
    first.complete = false;
    ShedEntry second;
    second.id = 2;
    second.petID = 1;
    second.note = u"ok"_qs;
    EXPECT_EQ(m_made.store.all<ShedEntry>(), QList<ShedEntry>({first, second}));
}

TEST_F(DamagedRow, OfAVisitLosesOnlyTheDamagedValues) {
    exec(u"INSERT INTO vet_visit (id, pet_id, day, clinic, vet, reason, findings, follow_up) VALUES"
         " (1, 1, '2026-02', x'00', 5, 6.5, x'ffff', 'in May')"_qs);
    VetVisit expected;
    expected.id = 1;
    expected.petID = 1;
    expected.vet = u"5"_qs;
    expected.reason = u"6.5"_qs;
    expected.followUp = u"in May"_qs;
    EXPECT_EQ(m_made.store.all<VetVisit>(), QList<VetVisit>({expected}));
}

TEST_F(DamagedRow, OfAMedicineLosesOnlyTheDamagedValues) {
    exec(
        u"INSERT INTO medication (id, pet_id, name, instructions, prescribed_by, start, end_day, notes) "
        u"VALUES"
        " (1, 1, x'00', 'daily', 2, 'now', x'32', 'n'), (2, 1, 'Drops', '', '', '2026-3-1', '2026-03-00', '')"_qs);
    Medication first;
    first.id = 1;
    first.petID = 1;
    first.instructions = u"daily"_qs;
    first.prescribedBy = u"2"_qs;
    first.start = std::nullopt;
    first.notes = u"n"_qs;
    Medication second;
    second.id = 2;
    second.petID = 1;
    second.name = u"Drops"_qs;
    second.start = OMDay{2026, 3, 1};
    EXPECT_EQ(m_made.store.all<Medication>(), QList<Medication>({first, second}));
}

TEST_F(DamagedRow, OfAReminderLosesOnlyTheDamagedValues) {
    exec(u"PRAGMA foreign_keys = OFF;"
         "INSERT INTO reminder (id, pet_id, kind, title, every_days, start, hour, minute, last_done, active) "
         "VALUES"
         " (1, x'01', x'00', 5, 'often', 'soon', x'09', '1e', 'never', 'yes'),"
         " (2, 77, 'water', 'w', 9223372036854775807, '2026-03-01', -1e300, 2.9, '2026-02-31', 2),"
         " (3, 'nobody', '', '', 0, '2026-03-01', 25, 61, x'', '0')"_qs);
    Reminder first;
    first.id = 1;
    first.kind = ReminderKind::Other;
    first.title = u"5"_qs;
    first.active = false;
    Reminder second;
    second.id = 2;
    second.petID = 77;
    second.kind = ReminderKind::Water;
    second.title = u"w"_qs;
    second.everyDays = most;
    second.start = {2026, 3, 1};
    second.hour = -most - 1;
    second.minute = 2;
    second.lastDone = OMDay{2026, 2, 31};
    Reminder third;
    third.id = 3;
    third.kind = ReminderKind::Other;
    third.everyDays = 0;
    third.start = {2026, 3, 1};
    third.hour = 25;
    third.minute = 61;
    third.active = false;
    EXPECT_EQ(m_made.store.reminders(), QList<Reminder>({first, second, third}));
}

TEST_F(DamagedRow, OfATickReadsAsAnItem) {
    exec(
        u"INSERT INTO checklist (pet_id, day, item) VALUES (1, '2026-03-07', x'ff'), (1, '2026-03-07', 5)"_qs);
    EXPECT_EQ(m_made.store.checked(1, m_today), QSet<QString>({QString(), u"5"_qs}));
}

TEST_F(DamagedRow, WithBytesThatAreNoUtf8IsRead) {
    exec(u"INSERT INTO shed (id, pet_id, day, note) VALUES (1, 1, '2026-03-01', CAST(x'61ff62' AS TEXT))"_qs);
    const QList<ShedEntry> found = m_made.store.sheds(1);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().note, u"a\ufffdb"_qs);
}

TEST_F(DamagedRow, IsMadeSoundBySavingIt) {
    exec(
        u"INSERT INTO feeding (id, pet_id, day, food, amount, ate, note) VALUES (1, 1, 'x', 'hay', x'00', 'y', 0)"_qs);
    FeedingEntry entry = m_made.store.feedings(1).first();
    m_made.store.save(entry);
    EXPECT_EQ(m_made.rows(u"feeding"_qs), QList<SQLRow>({testing::rowOf({{u"id"_qs, qint64(1)},
                                                                         {u"pet_id"_qs, qint64(1)},
                                                                         {u"day"_qs, u"2026-03-07"_qs},
                                                                         {u"food"_qs, u"hay"_qs},
                                                                         {u"amount"_qs, u""_qs},
                                                                         {u"ate"_qs, qint64(0)},
                                                                         {u"note"_qs, u"0"_qs}})}));
}

} // namespace
} // namespace ormiva
