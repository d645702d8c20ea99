#include "FakeCanvas.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

const QStringList headers = {u"Date"_qs, u"Note"_qs};
const QList<double> widths = {1.0, 3.0}; // 132 and 396 points

QStringList bandAt(double y) {
    return {u"rect 42.00 %1 528.00 17.00 0.18/0.42/0.24/1.00"_qs.arg(FakeCanvas::number(y)),
            u"text \"Date\" 9.00 at 45.00 %1 126.00 13.00"_qs.arg(FakeCanvas::number(y + 3.5)),
            u"text \"Note\" 9.00 at 177.00 %1 390.00 13.00"_qs.arg(FakeCanvas::number(y + 3.5))};
}

QStringList rowAt(double y, const QString& date, const QString& note, double height) {
    return {u"text \"%1\" 9.00 at 45.00 %2 126.00 %3"_qs.arg(date, FakeCanvas::number(y + 2),
                                                             FakeCanvas::number(height)),
            u"text \"%1\" 9.00 at 177.00 %2 390.00 %3"_qs.arg(note, FakeCanvas::number(y + 2),
                                                              FakeCanvas::number(height))};
}

QString stripeAt(double y, double height) {
    return u"rect 42.00 %1 528.00 %2 0.93/0.96/0.93/1.00"_qs.arg(FakeCanvas::number(y),
                                                                 FakeCanvas::number(height));
}

TEST(PDFFlowTable, HasABandAndStripedRows) {
    FakeFlow made;
    made.drawn();
    made.flow.table(headers, {{u"a"_qs, u"one"_qs}, {u"b"_qs, u"h=20.3 two"_qs}, {u"c"_qs, u"h=3 three"_qs}},
                    widths);
    // Rows: 12 + 4, 21 + 4, 12 + 4 (the date's line).
    EXPECT_EQ(made.drawn(), bandAt(42) + rowAt(60, u"a"_qs, u"one"_qs, 16) + QStringList({stripeAt(76, 25)}) +
                                rowAt(76, u"b"_qs, u"h=20.3 two"_qs, 25) +
                                rowAt(101, u"c"_qs, u"h=3 three"_qs, 16));
    EXPECT_EQ(made.flow.y, 101 + 16 + 4);
}

TEST(PDFFlowTable, RowsAreAtLeast14High) {
    FakeFlow made;
    made.flow.table(headers, {{u"h=2 a"_qs, u"h=3 b"_qs}, {}, {u"h=9.5 c"_qs}}, widths);
    // 3 + 4 is less than 14; a row without cells counts as 11; 10 + 4 is 14.
    EXPECT_EQ(made.flow.y, 42 + 18 + 14 + 15 + 14 + 4);
}

TEST(PDFFlowTable, WithoutRowsSaysSo) {
    FakeFlow made;
    made.drawn();
    made.flow.table(headers, {}, widths);
    EXPECT_EQ(made.drawn(),
              bandAt(42) + QStringList({u"text \"None recorded.\" 8.50 at 45.00 60.00 525.00 14.00"_qs}));
    EXPECT_EQ(made.flow.y, 60 + 12 + 3);
}

TEST(PDFFlowTable, NeverStartsWithoutRoomForItsBandAndARow) {
    FakeFlow made;
    made.flow.y = 706;
    made.drawn();
    made.flow.table(headers, {{u"a"_qs, u"one"_qs}}, widths);
    EXPECT_EQ(made.drawn(), bandAt(706) + rowAt(724, u"a"_qs, u"one"_qs, 16));
    made.flow.y = 706;
    made.flow.table(headers, {{u"a"_qs, u"h=20 one"_qs}}, widths);
    // The band stays, the row goes on with a band of its own.
    EXPECT_EQ(made.drawn(), bandAt(706) + footerOf(1) + QStringList({u"page"_qs}) + bandAt(42) +
                                rowAt(60, u"a"_qs, u"h=20 one"_qs, 24));
    made.flow.y = 707;
    made.flow.table(headers, {{u"a"_qs, u"one"_qs}}, widths);
    EXPECT_EQ(made.drawn(),
              footerOf(2) + QStringList({u"page"_qs}) + bandAt(42) + rowAt(60, u"a"_qs, u"one"_qs, 16));
}

TEST(PDFFlowTable, CarriesBandAndStripesOnToEveryPage) {
    FakeFlow made;
    QList<QStringList> rows;
    for (int i = 0; i < 120; ++i)
        rows.append({QString::number(i), u"note"_qs});
    made.drawn();
    made.flow.table(headers, rows, widths);
    const QStringList log = made.drawn();
    EXPECT_EQ(made.flow.page(), 3);
    EXPECT_EQ(log.filter(u"text \"Date\""_qs).size(), 3);
    EXPECT_EQ(log.filter(u"0.93/0.96/0.93/1.00"_qs).size(), 60);
    // 42 rows of 16 points fit under a band; the 43rd, of an even number, is first on the next page.
    const qsizetype next = log.indexOf(u"page"_qs);
    EXPECT_EQ(log.mid(next, 6), QStringList({u"page"_qs}) + bandAt(42) + rowAt(60, u"42"_qs, u"note"_qs, 16));
    EXPECT_EQ(log.at(next + 6), stripeAt(76, 16));
}

TEST(PDFFlowTable, AFullPageEndsExactlyAt742) {
    FakeFlow made;
    // 60 + 42 * 16 = 732; a last row of 10 would be raised to 14, so one of 6 + 4 can't be; 742 - 60 = 682 at
    // once.
    made.flow.table(headers, {{u"a"_qs, u"h=600 tall"_qs}}, widths);
    EXPECT_EQ(made.flow.y, 60 + 604 + 4);
    made.flow.table(headers, {{u"a"_qs, u"h=36 b"_qs}}, widths);
    EXPECT_EQ(made.flow.page(), 1);
    EXPECT_EQ(made.flow.y, 668 + 18 + 40 + 4);
}

TEST(PDFFlowTable, ContinuesCellsOfMoreThan600PointsWithTheirStripe) {
    FakeFlow made;
    QStringList lines;
    for (int i = 0; i < 130; ++i)
        lines.append(u"l%1"_qs.arg(i));
    made.drawn();
    made.flow.table(headers, {{u"a"_qs, u"x"_qs}, {u"b"_qs, lines.join(u'\n')}, {u"c"_qs, u"z"_qs}}, widths);
    const QStringList log = made.drawn();
    // 50 lines a row: 50, 50 and 30, all with the stripe of the second row.
    EXPECT_EQ(log.filter(u"0.93/0.96/0.93/1.00"_qs),
              QStringList({stripeAt(76, 604), stripeAt(60, 604), stripeAt(60, 364)}));
    EXPECT_EQ(log.filter(u"text \"b\""_qs).size(), 1);
    EXPECT_EQ(log.filter(u"text \"\" 9.00 at 45.00"_qs).size(), 2);
    QStringList printed;
    for (const QString& entry : log.filter(u" at 177.00"_qs))
        if (entry.contains(u"\"l"))
            printed += entry.section(u'"', 1, 1).split(u'\n', Qt::SkipEmptyParts);
    EXPECT_EQ(printed, lines);
}

} // namespace
} // namespace ormiva
