#include "FakeCanvas.h"
#include "FixedCalendar.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Chart : public ::testing::Test {
protected:
    FixedCalendar m_calendar{utc(2026, 11, 21)};
    FakeFlow made;
};

TEST_F(Chart, OfFewerThanTwoPointsIsNothing) {
    made.drawn();
    made.flow.chart({}, u"grams"_qs);
    made.flow.chart({{{2026, 1, 1}, 5.0}}, u"grams"_qs);
    EXPECT_EQ(made.drawn(), QStringList());
    EXPECT_EQ(made.flow.y, 42);
}

TEST_F(Chart, PlacesEverythingByTimeAndValue) {
    made.drawn();
    // 100 to 200: the axis runs from 90 to 210.
    made.flow.chart({{{2026, 1, 1}, 100}, {{2026, 1, 2}, 200}, {{2026, 1, 5}, 150}}, u"grams"_qs);
    const QString green = u"0.18/0.42/0.24/1.00"_qs;
    EXPECT_EQ(made.drawn(), QStringList({
                                u"rect 76.00 48.00 488.00 124.00 0.95/0.97/0.95/1.00"_qs,
                                u"line 76.00 172.00, 564.00 172.00 0.50 0.80/0.80/0.80/1.00"_qs,
                                u"text \"90\" 8.50 at 42.00 166.00 32.00 12.00"_qs,
                                u"line 76.00 130.67, 564.00 130.67 0.50 0.80/0.80/0.80/1.00"_qs,
                                u"text \"130\" 8.50 at 42.00 124.67 32.00 12.00"_qs,
                                u"line 76.00 89.33, 564.00 89.33 0.50 0.80/0.80/0.80/1.00"_qs,
                                u"text \"170\" 8.50 at 42.00 83.33 32.00 12.00"_qs,
                                u"line 76.00 48.00, 564.00 48.00 0.50 0.80/0.80/0.80/1.00"_qs,
                                u"text \"210\" 8.50 at 42.00 42.00 32.00 12.00"_qs,
                                u"line 76.00 161.67, 198.00 58.33, 564.00 110.00 1.80 "_qs + green,
                                u"circle 76.00 161.67 4.40 "_qs + green,
                                u"circle 198.00 58.33 4.40 "_qs + green,
                                u"circle 564.00 110.00 4.40 "_qs + green,
                                u"text \"2026-01-01\" 8.50 at 76.00 174.00 100.00 12.00"_qs,
                                u"text \"2026-01-05\" 8.50 at 504.00 174.00 60.00 12.00"_qs,
                                u"text \"grams\" 8.50 at 80.00 50.00 120.00 12.00"_qs,
                            }));
    EXPECT_EQ(made.flow.y, 42 + 150);
}

TEST_F(Chart, OfOneValueHasAnAxisAroundIt) {
    made.drawn();
    made.flow.chart({{{2026, 1, 1}, 421}, {{2026, 1, 2}, 421}}, u"grams"_qs);
    // From 420.4 to 421.6, in whole numbers.
    QStringList labels;
    for (const QString& entry : made.drawn().filter(u" at 42.00"_qs))
        labels.append(entry.section(u'"', 1, 1));
    EXPECT_EQ(labels, QStringList({u"420"_qs, u"421"_qs, u"421"_qs, u"422"_qs}));
}

TEST_F(Chart, OfOneDayStandsAtTheLeftEdge) {
    made.drawn();
    made.flow.chart({{{2026, 1, 1}, 10}, {{2026, 1, 1}, 20}}, u"grams"_qs);
    const QStringList circles = made.drawn().filter(u"circle"_qs);
    ASSERT_EQ(circles.size(), 2);
    for (const QString& circle : circles)
        EXPECT_TRUE(circle.startsWith(u"circle 76.00 ")) << circle.toStdString();
}

TEST_F(Chart, NeverPrintsMinusZero) {
    made.drawn();
    made.flow.chart({{{2026, 1, 1}, 0.2}, {{2026, 1, 2}, 0.3}}, u"grams"_qs);
    // The axis begins at -0.41.
    QStringList labels;
    for (const QString& entry : made.drawn().filter(u" at 42.00"_qs))
        labels.append(entry.section(u'"', 1, 1));
    EXPECT_EQ(labels.first(), u"0"_qs);
}

TEST_F(Chart, Needs170Points) {
    made.flow.y = 572;
    made.flow.chart({{{2026, 1, 1}, 1}, {{2026, 1, 2}, 2}}, u"grams"_qs);
    EXPECT_EQ(made.flow.page(), 1);
    made.flow.y = 572.5;
    made.flow.chart({{{2026, 1, 1}, 1}, {{2026, 1, 2}, 2}}, u"grams"_qs);
    EXPECT_EQ(made.flow.page(), 2);
    EXPECT_EQ(made.flow.y, 42 + 150);
}

} // namespace
} // namespace ormiva
