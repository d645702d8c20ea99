#include "EditSheet.h"

#include "Printers.h"

namespace ormiva {
namespace {

template <typename Record>
EditSheet sheet(qint64 id) {
    Record record;
    record.id = id;
    return record;
}

QStringList identities(qint64 id) {
    return {identity(sheet<Pet>(id)),          identity(sheet<WeightEntry>(id)),
            identity(sheet<FeedingEntry>(id)), identity(sheet<ShedEntry>(id)),
            identity(sheet<VetVisit>(id)),     identity(sheet<Medication>(id)),
            identity(sheet<Reminder>(id))};
}

TEST(EditSheet, IsIdentifiedByTheLetterOfItsKindAndTheId) {
    EXPECT_EQ(identities(12),
              QStringList({u"p12"_qs, u"w12"_qs, u"f12"_qs, u"s12"_qs, u"v12"_qs, u"m12"_qs, u"r12"_qs}));
}

TEST(EditSheet, OfNewRecordsDiffersByKind) {
    EXPECT_EQ(identities(0),
              QStringList({u"p0"_qs, u"w0"_qs, u"f0"_qs, u"s0"_qs, u"v0"_qs, u"m0"_qs, u"r0"_qs}));
}

TEST(EditSheet, PrintsLargeIdsInFull) {
    EXPECT_EQ(identity(sheet<WeightEntry>(9223372036854775807)), u"w9223372036854775807"_qs);
}

TEST(EditSheet, GivesItsRecord) {
    Medication medicine;
    medicine.id = 3;
    medicine.name = u"Eye drops"_qs;
    const QVariant record = recordOf(medicine);
    ASSERT_TRUE(record.canConvert<Medication>());
    EXPECT_TRUE(record.value<Medication>() == medicine);
}

} // namespace
} // namespace ormiva
