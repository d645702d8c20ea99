#include "LibraryPrinters.h"

#include <tuple>

namespace ormiva {
namespace {

TEST(Urgency, HasItsTableFromLeastToMostUrgent) {
    using Row = std::tuple<int, QString, QString, QString, QString>;
    const QList<Row> expected = {
        {0, u"monitor"_qs, u"Monitor at home — call your vet if it continues or gets worse"_qs, u"MONITOR"_qs,
         u"eye.fill"_qs},
        {1, u"soon"_qs, u"See a vet within 24–48 hours"_qs, u"VET IN 24–48 H"_qs,
         u"clock.badge.exclamationmark.fill"_qs},
        {2, u"emergency"_qs, u"Emergency — see an exotic vet NOW"_qs, u"EMERGENCY NOW"_qs,
         u"staroflife.fill"_qs},
    };
    QList<Row> rows;
    for (const UrgencyInfo& entry : allUrgencies())
        rows.append({rank(entry.urgency), entry.id, entry.title, entry.shortTitle, entry.symbol});
    EXPECT_EQ(rows, expected);
}

TEST(Urgency, IsComparedByItsRank) {
    EXPECT_LT(Urgency::Monitor, Urgency::Soon);
    EXPECT_LT(Urgency::Soon, Urgency::Emergency);
}

TEST(Urgency, IsFoundByItsRawValue) {
    for (const UrgencyInfo& entry : allUrgencies()) {
        EXPECT_EQ(urgency(entry.id), entry.urgency);
        EXPECT_EQ(info(entry.urgency).id, entry.id);
    }
    for (const QString& id : {u"urgent"_qs, u"Soon"_qs, u"MONITOR"_qs, u""_qs})
        EXPECT_EQ(urgency(id), std::nullopt) << id.toStdString();
}

} // namespace
} // namespace ormiva
