#include "SQLiteDB.h"

#include "FixedCalendar.h"
#include "SQLPrinters.h"

#include <limits>

namespace ormiva {
namespace {

TEST(SQLArgument, TakesIntegersOfEverySize) {
    EXPECT_EQ(SQLArgument(7).value(), SQLValue(qint64(7)));
    EXPECT_EQ(SQLArgument(qint64(-7)).value(), SQLValue(qint64(-7)));
    EXPECT_EQ(SQLArgument(qint32(7)).value(), SQLValue(qint64(7)));
    EXPECT_EQ(SQLArgument(std::numeric_limits<qint64>::min()).value(),
              SQLValue(std::numeric_limits<qint64>::min()));
}

TEST(SQLArgument, TakesBooleansAsOneAndZero) {
    EXPECT_EQ(SQLArgument(true).value(), SQLValue(qint64(1)));
    EXPECT_EQ(SQLArgument(false).value(), SQLValue(qint64(0)));
}

TEST(SQLArgument, TakesRealsTextsAndBytes) {
    EXPECT_EQ(SQLArgument(421.0).value(), SQLValue(421.0));
    EXPECT_EQ(SQLArgument(u"421"_qs).value(), SQLValue(u"421"_qs));
    EXPECT_EQ(SQLArgument(QByteArray("x")).value(), SQLValue(QByteArray("x")));
}

TEST(SQLArgument, TakesAMomentAsSecondsSince1970) {
    EXPECT_EQ(SQLArgument(testing::utc(1970, 1, 2, 0, 0, 3)).value(), SQLValue(86403.0));
    EXPECT_EQ(SQLArgument(Instant(std::chrono::milliseconds(-1500))).value(), SQLValue(-1.5));
}

TEST(SQLArgument, TakesWhatIsAbsentAsNull) {
    EXPECT_EQ(SQLArgument().value(), SQLValue(SQLNull()));
    EXPECT_EQ(SQLArgument(std::nullopt).value(), SQLValue(SQLNull()));
    EXPECT_EQ(SQLArgument(std::optional<qint64>()).value(), SQLValue(SQLNull()));
    EXPECT_EQ(SQLArgument(std::optional<QByteArray>()).value(), SQLValue(SQLNull()));
    EXPECT_EQ(SQLArgument(std::optional<QByteArray>(QByteArray())).value(), SQLValue(QByteArray()));
    EXPECT_EQ(SQLArgument(std::optional<qint64>(5)).value(), SQLValue(qint64(5)));
}

} // namespace
} // namespace ormiva
