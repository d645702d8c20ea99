#include "ReminderKind.h"

#include "Printers.h"

#include <QList>

#include <tuple>

namespace ormiva {
namespace {

TEST(ReminderKind, HasItsTableInOrder) {
    using Row = std::tuple<ReminderKind, QString, QString, QString, int>;
    const QList<Row> expected = {
        {ReminderKind::Feeding, u"feeding"_qs, u"Feeding"_qs, u"fork.knife"_qs, 1},
        {ReminderKind::Water, u"water"_qs, u"Fresh water"_qs, u"drop.fill"_qs, 1},
        {ReminderKind::Cleaning, u"cleaning"_qs, u"Enclosure cleaning"_qs, u"sparkles"_qs, 7},
        {ReminderKind::Uvb, u"uvb"_qs, u"Replace UVB bulb"_qs, u"sun.max.fill"_qs, 182},
        {ReminderKind::Weigh, u"weigh"_qs, u"Weigh-in"_qs, u"scalemass.fill"_qs, 14},
        {ReminderKind::Vet, u"vet"_qs, u"Vet check-up"_qs, u"stethoscope"_qs, 365},
        {ReminderKind::Other, u"other"_qs, u"Other"_qs, u"bell.fill"_qs, 7},
    };
    QList<Row> rows;
    for (const ReminderKindInfo& entry : allReminderKinds())
        rows.append({entry.kind, entry.id, entry.title, entry.symbol, entry.suggestedDays});
    EXPECT_EQ(rows, expected);
}

TEST(ReminderKind, IsFoundByItsRawValue) {
    for (const ReminderKindInfo& entry : allReminderKinds()) {
        EXPECT_EQ(reminderKind(entry.id), entry.kind);
        EXPECT_EQ(info(entry.kind).id, entry.id);
    }
}

TEST(ReminderKind, IsOtherForAnUnknownRawValue) {
    for (const QString& id : {u"bath"_qs, u""_qs, u"Feeding"_qs, u"FEEDING"_qs, u" feeding"_qs})
        EXPECT_EQ(reminderKind(id), ReminderKind::Other) << id.toStdString();
}

} // namespace
} // namespace ormiva
