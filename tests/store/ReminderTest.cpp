#include "Reminder.h"

#include "FixedCalendar.h"
#include "MadeStore.h"

namespace ormiva {
namespace {

using testing::FixedCalendar;
using testing::MadeStore;
using testing::refusal;
using testing::rowOf;
using testing::utc;

class ReminderRecord : public ::testing::Test {
protected:
    FixedCalendar m_calendar{utc(2026, 3, 7)};
    MadeStore m_made;
    Pet m_pet = m_made.addPet();
};

TEST_F(ReminderRecord, HasItsTableAndColumns) {
    EXPECT_EQ(Reminder::table(), u"reminder"_qs);
    EXPECT_EQ(Reminder::columns(),
              QStringList({u"pet_id"_qs, u"kind"_qs, u"title"_qs, u"every_days"_qs, u"start"_qs, u"hour"_qs,
                           u"minute"_qs, u"last_done"_qs, u"active"_qs}));
}

TEST_F(ReminderRecord, BeginsBlankDailyAtNine) {
    const Reminder reminder;
    EXPECT_EQ(reminder.id, 0);
    EXPECT_EQ(reminder.petID, std::nullopt);
    EXPECT_EQ(reminder.kind, ReminderKind::Feeding);
    EXPECT_EQ(reminder.title, QString());
    EXPECT_EQ(reminder.everyDays, 1);
    EXPECT_EQ(reminder.start, (OMDay{2026, 3, 7}));
    EXPECT_EQ(reminder.hour, 9);
    EXPECT_EQ(reminder.minute, 0);
    EXPECT_EQ(reminder.lastDone, std::nullopt);
    EXPECT_TRUE(reminder.active);
}

TEST_F(ReminderRecord, IsWrittenAndReadBack) {
    Reminder full;
    full.petID = m_pet.id;
    full.kind = ReminderKind::Uvb;
    full.title = u" Lamp "_qs;
    full.everyDays = 182;
    full.start = {2026, 1, 2};
    full.hour = 23;
    full.minute = 59;
    full.lastDone = OMDay{2026, 1, 3};
    full.active = false;
    full = m_made.saved(full);
    const Reminder blank = m_made.saved(Reminder());
    const SQLRow fullRow = rowOf({{u"id"_qs, full.id},
                                  {u"pet_id"_qs, m_pet.id},
                                  {u"kind"_qs, u"uvb"_qs},
                                  {u"title"_qs, u" Lamp "_qs},
                                  {u"every_days"_qs, qint64(182)},
                                  {u"start"_qs, u"2026-01-02"_qs},
                                  {u"hour"_qs, qint64(23)},
                                  {u"minute"_qs, qint64(59)},
                                  {u"last_done"_qs, u"2026-01-03"_qs},
                                  {u"active"_qs, qint64(0)}});
    const SQLRow blankRow = rowOf({{u"id"_qs, blank.id},
                                   {u"pet_id"_qs, SQLNull()},
                                   {u"kind"_qs, u"feeding"_qs},
                                   {u"title"_qs, u""_qs},
                                   {u"every_days"_qs, qint64(1)},
                                   {u"start"_qs, u"2026-03-07"_qs},
                                   {u"hour"_qs, qint64(9)},
                                   {u"minute"_qs, qint64(0)},
                                   {u"last_done"_qs, SQLNull()},
                                   {u"active"_qs, qint64(1)}});
    EXPECT_EQ(m_made.rows(u"reminder"_qs), QList<SQLRow>({fullRow, blankRow}));
    EXPECT_EQ(m_made.store.reminders(), QList<Reminder>({full, blank}));
}

TEST_F(ReminderRecord, KeepsEveryKind) {
    QList<Reminder> saved;
    for (const ReminderKindInfo& entry : allReminderKinds()) {
        Reminder reminder;
        reminder.kind = entry.kind;
        saved.append(m_made.saved(reminder));
    }
    EXPECT_EQ(m_made.store.reminders(), saved);
}

TEST_F(ReminderRecord, OfAnUnknownKindReadsAndIsSavedAsOther) {
    m_made.store.db().exec(u"INSERT INTO reminder (kind, every_days, start, hour, minute) "
                           "VALUES ('bath', 3, '2026-03-01', 8, 15)"_qs);
    QList<Reminder> found = m_made.store.reminders();
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().kind, ReminderKind::Other);
    m_made.store.save(found.first());
    EXPECT_EQ(m_made.store.db().query(u"SELECT kind FROM reminder"_qs),
              QList<SQLRow>({rowOf({{u"kind"_qs, u"other"_qs}})}));
}

TEST_F(ReminderRecord, ChecksItsPetOnlyWhenItHasOne) {
    Reminder reminder;
    EXPECT_EQ(refusal(reminder, m_made.store), QString());
    reminder.petID = m_pet.id;
    EXPECT_EQ(refusal(reminder, m_made.store), QString());
    for (const qint64 id : {m_pet.id + 1, qint64(0)}) {
        reminder.petID = id;
        EXPECT_EQ(refusal(reminder, m_made.store), u"Please choose a pet."_qs);
    }
}

TEST_F(ReminderRecord, DoesNotReadTheDatabaseWithoutAPet) {
    m_made.store.db().close();
    EXPECT_EQ(refusal(Reminder(), m_made.store), QString());
}

TEST_F(ReminderRecord, RepeatsWithinTenYears) {
    Reminder reminder;
    for (const qint64 days : {1, 2, 3650}) {
        reminder.everyDays = days;
        EXPECT_EQ(refusal(reminder, m_made.store), QString()) << days;
    }
    for (const qint64 days : {qint64(0), qint64(-1), qint64(3651), qint64(4'294'967'297)}) {
        reminder.everyDays = days;
        EXPECT_EQ(refusal(reminder, m_made.store), u"Repeat every 1 to 3,650 days."_qs) << days;
    }
}

TEST_F(ReminderRecord, HasATimeOfDay) {
    const auto at = [&](qint64 hour, qint64 minute) {
        Reminder reminder;
        reminder.hour = hour;
        reminder.minute = minute;
        return refusal(reminder, m_made.store);
    };
    EXPECT_EQ(at(0, 0), QString());
    EXPECT_EQ(at(23, 59), QString());
    for (const auto& [hour, minute] : QList<std::pair<qint64, qint64>>{{24, 0}, {-1, 0}, {0, 60}, {0, -1}})
        EXPECT_EQ(at(hour, minute), u"Please choose a valid time."_qs) << hour << ':' << minute;
}

TEST_F(ReminderRecord, TellsTheFirstFailingCheckOnly) {
    Reminder reminder;
    reminder.petID = m_pet.id + 1;
    reminder.everyDays = 0;
    reminder.hour = 24;
    EXPECT_EQ(refusal(reminder, m_made.store), u"Please choose a pet."_qs);
    reminder.petID = std::nullopt;
    EXPECT_EQ(refusal(reminder, m_made.store), u"Repeat every 1 to 3,650 days."_qs);
    reminder.everyDays = 1;
    EXPECT_EQ(refusal(reminder, m_made.store), u"Please choose a valid time."_qs);
}

TEST_F(ReminderRecord, ShowsItsOwnTitleUntrimmedOrThatOfItsKind) {
    Reminder reminder;
    reminder.kind = ReminderKind::Weigh;
    EXPECT_EQ(reminder.displayTitle(), u"Weigh-in"_qs);
    reminder.title = u" \n\u00a0"_qs;
    EXPECT_EQ(reminder.displayTitle(), u"Weigh-in"_qs);
    reminder.title = u"  On the scales "_qs;
    EXPECT_EQ(reminder.displayTitle(), u"  On the scales "_qs);
}

TEST_F(ReminderRecord, OffersItselfToScreens) {
    Reminder reminder;
    reminder.kind = ReminderKind::Water;
    EXPECT_EQ(reminder.kindForQml(), u"water"_qs);
    EXPECT_EQ(reminder.symbolForQml(), u"drop.fill"_qs);
    EXPECT_FALSE(reminder.petIDForQml().isValid());
    EXPECT_FALSE(reminder.lastDoneForQml().isValid());
    reminder.petID = 7;
    reminder.lastDone = OMDay{2026, 3, 1};
    EXPECT_EQ(reminder.petIDForQml().toLongLong(), 7);
    EXPECT_EQ(reminder.lastDoneForQml().value<OMDay>(), (OMDay{2026, 3, 1}));
}

} // namespace
} // namespace ormiva
