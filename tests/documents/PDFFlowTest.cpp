#include "FakeCanvas.h"

namespace ormiva {
namespace {

using namespace ormiva::testing;

TEST(PDFFlow, BeginsOnItsFirstPage) {
    FakeFlow made;
    EXPECT_EQ(made.drawn(), QStringList({u"page"_qs}));
    EXPECT_EQ(made.flow.y, 42);
    EXPECT_EQ(made.flow.page(), 1);
}

TEST(PDFFlow, HasItsMeasuresAndStyles) {
    EXPECT_EQ(PDFFlow::pageW, 612);
    EXPECT_EQ(PDFFlow::pageH, 792);
    EXPECT_EQ(PDFFlow::margin, 42);
    EXPECT_EQ(PDFFlow::width, 528);
    const PdfColor ink{0.08, 0.16, 0.10, 1};
    const PdfColor green{0.18, 0.42, 0.24, 1};
    EXPECT_EQ(PDFFlow::ink, ink);
    EXPECT_EQ(PDFFlow::green, green);
    EXPECT_TRUE((PDFFlow::titleA == PdfTextStyle{22, PdfWeight::Heavy, green}));
    EXPECT_TRUE((PDFFlow::h2A == PdfTextStyle{13, PdfWeight::Bold, green}));
    EXPECT_TRUE((PDFFlow::bodyA == PdfTextStyle{10, PdfWeight::Regular, ink}));
    EXPECT_TRUE((PDFFlow::headA == PdfTextStyle{9, PdfWeight::Bold, {1, 1, 1, 1}}));
    EXPECT_TRUE((PDFFlow::cellA == PdfTextStyle{9, PdfWeight::Regular, ink}));
    EXPECT_EQ(PDFFlow::smallA.size, 8.5);
    EXPECT_NEAR(PDFFlow::smallA.color.red, 0.333, 0.001);
}

TEST(PDFFlow, EndsEveryPageWithItsFooter) {
    FakeFlow made;
    made.drawn();
    made.flow.newPage();
    EXPECT_EQ(made.drawn(), footerOf(1) + QStringList({u"page"_qs}));
    EXPECT_EQ(made.flow.page(), 2);
    EXPECT_EQ(made.flow.y, 42);
    EXPECT_EQ(made.flow.finish(), QByteArray("bytes"));
    EXPECT_EQ(made.drawn(), footerOf(2) + QStringList({u"finish"_qs}));
}

TEST(PDFFlow, NeedsRoomDownTo742) {
    FakeFlow made;
    made.flow.y = 700;
    made.flow.need(42);
    EXPECT_EQ(made.flow.page(), 1);
    EXPECT_EQ(made.flow.y, 700);
    made.flow.need(42.01);
    EXPECT_EQ(made.flow.page(), 2);
    EXPECT_EQ(made.flow.y, 42);
}

TEST(PDFFlow, SpaceNeverBreaksAPage) {
    FakeFlow made;
    made.flow.space(900);
    EXPECT_EQ(made.flow.y, 942);
    EXPECT_EQ(made.flow.page(), 1);
}

TEST(PDFFlowText, IsDrawnWithTwoPointsMoreAndMovesOnByItsCeiling) {
    FakeFlow made;
    made.drawn();
    made.flow.text(u"h=12.2 words"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.drawn(), QStringList({u"text \"h=12.2 words\" 10.00 at 42.00 42.00 528.00 14.20"_qs}));
    EXPECT_EQ(made.flow.y, 42 + 13 + 3);
    EXPECT_EQ(FakeCanvas::lastWidth, 528);
    made.flow.text(u"h=10 words"_qs, PDFFlow::smallA, 8);
    EXPECT_EQ(made.drawn(), QStringList({u"text \"h=10 words\" 8.50 at 50.00 58.00 520.00 12.00"_qs}));
    EXPECT_EQ(made.flow.y, 58 + 10 + 3);
    EXPECT_EQ(FakeCanvas::lastWidth, 520);
}

TEST(PDFFlowText, IsNeverSplit) {
    FakeFlow made;
    made.flow.y = 720;
    made.flow.text(u"h=20 fits"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.flow.page(), 1);
    made.flow.y = 720;
    made.flow.text(u"h=20.5 doesn't"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.flow.page(), 2);
    EXPECT_EQ(made.flow.y, 42 + 21 + 3);
    made.flow.y = 100;
    made.drawn();
    made.flow.text(u"h=900 tall"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.drawn(),
              footerOf(2) +
                  QStringList({u"page"_qs, u"text \"h=900 tall\" 10.00 at 42.00 42.00 528.00 902.00"_qs}));
    EXPECT_EQ(made.flow.y, 42 + 903);
    made.flow.text(u"h=5000 limited"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.flow.y, 42 + 2003);
}

QStringList numbered(int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines.append(u"line %1"_qs.arg(i));
    return lines;
}

TEST(PDFFlowLongText, GoesWholeWhenItFitsAPage) {
    FakeFlow made;
    made.flow.y = 500;
    made.drawn();
    made.flow.longText(numbered(58).join(u'\n'), PDFFlow::bodyA); // 696 points
    EXPECT_EQ(made.drawn().filter(u"text \"line"_qs).size(), 1);
    EXPECT_EQ(made.flow.page(), 2);
}

TEST(PDFFlowLongText, GoesParagraphByParagraphWhenItIsHigherThanAPage) {
    FakeFlow made;
    made.flow.y = 500;
    made.drawn();
    made.flow.longText(numbered(120).join(u'\n'), PDFFlow::bodyA);
    const QStringList texts = made.drawn().filter(u"text \"line"_qs);
    ASSERT_EQ(texts.size(), 120);
    for (int i = 0; i < 120; ++i)
        EXPECT_TRUE(texts.at(i).startsWith(u"text \"line %1\" "_qs.arg(i)));
    EXPECT_EQ(made.flow.page(), 4);
}

TEST(PDFFlowHeading, StaysWithWhatFollows) {
    FakeFlow made;
    made.drawn();
    made.flow.y = 702;
    made.flow.heading(u"Vet visits"_qs);
    EXPECT_EQ(made.drawn(), QStringList({u"outline \"Vet visits\" 710.00"_qs,
                                         u"text \"Vet visits\" 13.00 at 42.00 710.00 528.00 14.00"_qs,
                                         u"rect 42.00 725.00 528.00 0.70 0.18/0.42/0.24/0.40"_qs}));
    EXPECT_EQ(made.flow.y, 702 + 8 + 12 + 3 + 5);
    made.flow.y = 703;
    made.flow.heading(u"Vet visits"_qs);
    EXPECT_EQ(made.drawn(),
              footerOf(1) + QStringList({u"page"_qs, u"outline \"Vet visits\" 50.00"_qs,
                                         u"text \"Vet visits\" 13.00 at 42.00 50.00 528.00 14.00"_qs,
                                         u"rect 42.00 65.00 528.00 0.70 0.18/0.42/0.24/0.40"_qs}));
    EXPECT_EQ(made.flow.y, 42 + 8 + 12 + 3 + 5);
}

TEST(PDFFlowHeading, ThatWrapsMovesWithoutTheSpaceAbove) {
    FakeFlow made;
    made.drawn();
    made.flow.y = 700;
    made.flow.heading(u"h=40 three lines"_qs);
    EXPECT_EQ(made.flow.page(), 2);
    EXPECT_TRUE(made.drawn().contains(u"text \"h=40 three lines\" 13.00 at 42.00 42.00 528.00 42.00"_qs));
    EXPECT_EQ(made.flow.y, 42 + 40 + 3 + 5);
}

TEST(PDFFlowImage, LeavesTheCursor) {
    FakeFlow made;
    made.drawn();
    made.flow.image("12345", {450, 42, 120, 110});
    EXPECT_EQ(made.drawn(), QStringList({u"image 5 450.00 42.00 120.00 110.00"_qs}));
    EXPECT_EQ(made.flow.y, 42);
}

TEST(PDFFlow, WrapsTextToTheLeftOfWhatIsKeptClear) {
    FakeFlow made;
    made.flow.keepClear({450, 42, 120, 110});
    made.drawn();
    made.flow.text(u"h=100 beside"_qs, PDFFlow::bodyA);
    made.flow.text(u"beside"_qs, PDFFlow::bodyA, 8);
    made.flow.text(u"below"_qs, PDFFlow::bodyA);
    EXPECT_EQ(made.drawn(), QStringList({u"text \"h=100 beside\" 10.00 at 42.00 42.00 400.00 102.00"_qs,
                                         u"text \"beside\" 10.00 at 50.00 145.00 392.00 14.00"_qs,
                                         u"text \"below\" 10.00 at 42.00 160.00 528.00 14.00"_qs}));
    made.flow.newPage();
    made.flow.text(u"next"_qs, PDFFlow::bodyA);
    EXPECT_TRUE(made.drawn().contains(u"text \"next\" 10.00 at 42.00 42.00 528.00 14.00"_qs));
}

} // namespace
} // namespace ormiva
