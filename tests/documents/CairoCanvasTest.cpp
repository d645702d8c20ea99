#include "CairoCanvas.h"
#include "DocumentReader.h"
#include "MadePets.h"
#include "PDFFlow.h"

#include <QRegularExpression>

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Canvas : public DocumentTest {
protected:
    /// The finished document of what `write` puts into a flow.
    static DocumentReader reader(const std::function<void(PDFFlow&)>& write) {
        return DocumentReader(bytes(write));
    }
    static QByteArray bytes(const std::function<void(PDFFlow&)>& write) {
        PDFFlow flow(u"The foot"_qs,
                     std::make_unique<CairoCanvas>(
                         PdfInfo{u"A “title” — ünïcode"_qs, u"A subject"_qs, utc(2026, 11, 21, 9, 30)}));
        write(flow);
        return flow.finish();
    }
};

TEST_F(Canvas, TellsOfItself) {
    const DocumentReader document = reader([](PDFFlow&) {});
    EXPECT_EQ(document.info(u"Title"_qs), u"A “title” — ünïcode"_qs);
    EXPECT_EQ(document.info(u"Subject"_qs), u"A subject"_qs);
    EXPECT_EQ(document.info(u"Author"_qs), u"VLK Ormiva by Ventrel"_qs);
    EXPECT_EQ(document.info(u"CreationDate"_qs), u"2026-11-21T09:30:00Z"_qs);
    EXPECT_EQ(document.info(u"Page size"_qs), u"612 x 792 pts (letter)"_qs);
    EXPECT_EQ(document.pages(), 1);
    EXPECT_EQ(document.text(), u"The foot · page 1"_qs);
}

TEST_F(Canvas, IsTheSameForTheSameInput) {
    const auto write = [](PDFFlow& flow) {
        flow.text(u"Words — and 中文"_qs, PDFFlow::titleA);
        flow.text(u"https://example.org"_qs, PDFFlow::bodyA);
        flow.image(photo(20, 20), {100, 100, 50, 50});
    };
    EXPECT_TRUE(bytes(write) == bytes(write));
}

TEST_F(Canvas, SetsItsStylesInInter) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.text(u"Title"_qs, PDFFlow::titleA);
        flow.text(u"Heading"_qs, PDFFlow::h2A);
        flow.text(u"Body"_qs, PDFFlow::bodyA);
    });
    EXPECT_EQ(document.fonts(), QStringList({u"Inter-Black"_qs, u"Inter-Bold"_qs, u"Inter-Regular"_qs}));
}

TEST_F(Canvas, PrintsWordsAsTheyWereTyped) {
    const QString typed = u"2x4 -> 3x5 <- 1/2 fi ffl (c) \"quoted\" it's 5–7 °C (41–45 °F) A—B"_qs;
    const DocumentReader document = reader([&](PDFFlow& flow) { flow.text(typed, PDFFlow::bodyA); });
    EXPECT_EQ(document.lines().first(), typed);
}

TEST_F(Canvas, DrawsShapesWhereTheyBelong) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.heading(u"Heading"_qs);
        flow.table({u"A"_qs, u"B"_qs}, {{u"1"_qs, u"2"_qs}, {u"3"_qs, u"4"_qs}}, {1, 1});
    });
    const QString content = document.content(1).simplified();
    EXPECT_TRUE(content.contains(u"1 0 0 -1 0 792 cm"));
    EXPECT_TRUE(content.contains(u"42 756 528 0.8"));           // the footer's rule
    EXPECT_TRUE(content.contains(u"528 0.699 re"));             // the heading's, in 256ths of a point
    EXPECT_TRUE(content.contains(u"/a0 gs 42 74 528 17 re f")); // the band
    EXPECT_TRUE(content.contains(u"0.93 0.96 0.93 rg 42 107 528 15 re f")); // the second row
    EXPECT_EQ(content.count(u"0.93 0.96 0.93 rg"), 1);
    const QRectF first = document.word(1, u"A"_qs);
    const QRectF second = document.word(1, u"B"_qs);
    EXPECT_NEAR(first.x(), 45, 1);
    EXPECT_NEAR(second.x(), 45 + 264, 1);
    EXPECT_NEAR(document.word(1, u"foot"_qs).center().y(), 760 + 5.5, 2);
}

TEST_F(Canvas, DrawsTheChartToTheNumbers) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.chart({{{2026, 1, 1}, 100}, {{2026, 1, 2}, 200}, {{2026, 1, 5}, 150}}, u"grams"_qs);
    });
    const QString content = document.content(1);
    EXPECT_TRUE(content.contains(u"76 48 488 124 re"));
    EXPECT_TRUE(content.contains(u"0.18 0.42 0.24 RG 1.8 w"));
    EXPECT_TRUE(content.contains(u"0.8 0.8 0.8 RG 0.5 w"));
    // In the picture: the point of the second day, and the plot's ground beside it.
    const QImage page = document.picture(1, 144);
    EXPECT_LT(page.pixelColor(2 * 198, 2 * 58).red(), 90);
    EXPECT_GT(page.pixelColor(2 * 198, 2 * 100).red(), 230);
    EXPECT_NEAR(document.word(1, u"2026-01-01"_qs).x(), 76, 1);
    EXPECT_NEAR(document.word(1, u"2026-01-05"_qs).x(), 504, 1);
    EXPECT_NEAR(document.word(1, u"grams"_qs).x(), 80, 1);
    EXPECT_NEAR(document.word(1, u"210"_qs).x(), 42, 1);
}

TEST_F(Canvas, KeepsAJpegAsItIs) {
    const QByteArray jpeg = photo(400, 200);
    const QByteArray pdf = bytes([&](PDFFlow& flow) { flow.image(jpeg, {450, 42, 120, 110}); });
    EXPECT_TRUE(pdf.contains(jpeg));
    const DocumentReader document(pdf);
    EXPECT_EQ(document.pictures(), QStringList({u"400 200 jpeg"_qs}));
    // 120 wide and 60 high, in the top left of its place.
    const QImage page = document.picture(1);
    EXPECT_GT(page.pixelColor(452, 44).red(), 200);
    EXPECT_GT(page.pixelColor(568, 100).blue(), 200);
    EXPECT_EQ(page.pixelColor(460, 106), QColor(Qt::white));
}

TEST_F(Canvas, DrawsOtherPictures) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.image(photo(10, 100, "PNG"), {450, 42, 120, 110});
    });
    EXPECT_EQ(document.pictures(), QStringList({u"10 100 image"_qs}));
    const QImage page = document.picture(1);
    EXPECT_GT(page.pixelColor(451, 140).red(), 150); // 11 wide, 110 high
    EXPECT_EQ(page.pixelColor(464, 100), QColor(Qt::white));
}

TEST_F(Canvas, LeavesOutWhatIsNoPicture) {
    const QByteArray whole = photo(40, 40);
    for (const QByteArray& data : {QByteArray(), QByteArray("not a picture"), whole.first(20)})
        EXPECT_EQ(reader([&](PDFFlow& flow) {
                      flow.image(data, {450, 42, 120, 110});
                  }).pictures(),
                  QStringList());
}

/// A JPEG with an orientation in its Exif block.
QByteArray oriented(const QByteArray& jpeg, char orientation) {
    QByteArray exif("\xff\xe1\x00\x22"
                    "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0",
                    28);
    exif += orientation;
    exif += QByteArray(7, '\0');
    return jpeg.first(2) + exif + jpeg.mid(2);
}

TEST_F(Canvas, TurnsPhotosUpright) {
    // Stored lying, red left and blue right. What stands where once it is upright: {left top, right bottom}.
    struct Case {
        char orientation;
        bool portrait;
        bool redFirst; // red in the top left
        bool split;    // halves beside each other (else above each other)
    };
    for (const auto& [orientation, portrait, redFirst, beside] :
         {Case{1, false, true, true}, Case{2, false, false, true}, Case{3, false, false, true},
          Case{4, false, true, true}, Case{5, true, true, false}, Case{6, true, true, false},
          Case{7, true, false, false}, Case{8, true, false, false}}) {
        const QByteArray pdf = bytes([&, value = orientation](PDFFlow& flow) {
            flow.image(oriented(photo(200, 100), value), {100, 100, 200, 200});
        });
        const DocumentReader document(pdf);
        EXPECT_EQ(document.pictures(), QStringList({u"200 100 jpeg"_qs})) << int(orientation);
        const QImage page = document.picture(1);
        const QPoint first(104, 104);
        const QPoint second = portrait ? QPoint(196, 296) : QPoint(296, 196);
        EXPECT_EQ(page.pixelColor(first).red() > 200, redFirst) << int(orientation);
        EXPECT_EQ(page.pixelColor(second).red() > 200, !redFirst) << int(orientation);
        EXPECT_EQ(page.pixelColor(portrait ? QPoint(205, 200) : QPoint(200, 205)), QColor(Qt::white))
            << int(orientation);
        EXPECT_TRUE(beside != portrait);
    }
}

TEST_F(Canvas, MakesAddressesIntoLinks) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.text(u"See https://arav.org/find-a-vet/; and http://example.org/it's(1)?a=b\\c, or "
                  u"www.none.example or "
                  u"https://中文.example or (https:// or https://unclosed.example/("_qs,
                  PDFFlow::smallA);
    });
    EXPECT_EQ(document.links(),
              QStringList({u"https://arav.org/find-a-vet/"_qs, u"http://example.org/it%27s%281%29?a=b%5Cc"_qs,
                           u"https://unclosed.example/%28"_qs}));
}

TEST_F(Canvas, NamesItsHeadingsInTheOutline) {
    const DocumentReader document = reader([](PDFFlow& flow) {
        flow.heading(u"Vet visits"_qs);
        flow.newPage();
        flow.heading(u"About “Ñandú” 中文"_qs);
    });
    EXPECT_EQ(document.outline(), QStringList({u"Vet visits"_qs, u"About “Ñandú” 中文"_qs}));
}

TEST_F(Canvas, PrintsScriptsThatTheFontLacks) {
    const DocumentReader document =
        reader([](PDFFlow& flow) { flow.text(u"中文 العربية 🦎 Ω Ж"_qs, PDFFlow::titleA); });
    // The reader sets each Arabic letter apart, between marks of direction.
    const QString text = document.text().remove(QRegularExpression(u"[\u202a-\u202e ]"_qs));
    for (const QString& word : {u"中文"_qs, u"العربية"_qs, u"Ω"_qs, u"Ж"_qs})
        EXPECT_TRUE(text.contains(word)) << word.toStdString() << " in " << text.toStdString();
    EXPECT_GE(document.fonts().size(), 3);
}

} // namespace
} // namespace ormiva
