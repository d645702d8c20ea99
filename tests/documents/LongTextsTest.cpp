#include "CairoCanvas.h"
#include "CareSheetPDF.h"
#include "DocumentReader.h"
#include "MadePets.h"
#include "PDFFlow.h"
#include "PetPDF.h"

#include <random>

// Nothing is lost at the ends of pages.

namespace ormiva {
namespace {

using namespace ormiva::testing;

class LongTexts : public DocumentTest {
protected:
    /// "w0 w1 w2 …", words that can be found again.
    static QString words(int first, int count) {
        QStringList words;
        for (int i = 0; i < count; ++i)
            words.append(u"w%1"_qs.arg(first + i));
        return words.join(u' ');
    }
    /// The words "w…" of a document in the order in which they are printed.
    static QStringList printedWords(const QString& text) {
        QStringList found;
        for (const QString& word : text.split(u' '))
            if (word.size() > 1 && word.startsWith(u'w') && word.at(1).isDigit())
                found.append(word);
        return found;
    }
};

TEST_F(LongTexts, OfAThousandRowsArePrintedWhole) {
    std::mt19937 engine(3);
    QList<QStringList> rows;
    QStringList expected;
    int next = 0;
    for (int i = 0; i < 1000; ++i) {
        QStringList lines;
        for (int n = std::uniform_int_distribution(1, 40)(engine); n > 0; --n) {
            lines.append(words(next, 3));
            next += 3;
        }
        rows.append({u"r%1"_qs.arg(i), lines.join(u'\n')});
        expected += lines.join(u' ').split(u' ');
    }
    PDFFlow flow(u"foot"_qs, std::make_unique<CairoCanvas>(PdfInfo{u"t"_qs, u"s"_qs, UserCalendar::now()}));
    flow.table({u"Row"_qs, u"Note"_qs}, rows, {1, 4});
    const DocumentReader document(flow.finish());
    EXPECT_EQ(printedWords(document.text()), expected);
    EXPECT_GE(document.pages(), 200);
    QStringList bands;
    for (const QString& line : document.lines())
        if (line == u"Row Note")
            bands.append(line);
    EXPECT_EQ(bands.size(), document.pages());
}

TEST_F(LongTexts, OfAPetAreSpreadOverPages) {
    Pet pet = addPet(u"中文 العربية 🦎"_qs, u"bearded-dragon"_qs);
    QStringList paragraphs;
    for (int i = 0; i < 6; ++i)
        paragraphs.append(words(i * 1000, 700)); // Some fifty lines each.
    pet.notes = paragraphs.join(u"\n\n"_qs);
    pet.enclosure = words(10'000, 4000); // One paragraph, higher than a page.
    made.store.save(pet);
    VetVisit visit;
    visit.petID = pet.id;
    visit.reason = u"Check-up"_qs;
    visit.findings = words(20'000, 1500); // Higher than a cell may be.
    visit.followUp = words(30'000, 20);
    made.saved(visit);

    const DocumentReader records(PetPDF::make(pet, made.store));
    QStringList expected = words(10'000, 4000).split(u' ');
    for (int i = 0; i < 6; ++i)
        expected += words(i * 1000, 700).split(u' ');
    expected += words(20'000, 1500).split(u' ') + words(30'000, 20).split(u' ');
    EXPECT_EQ(printedWords(records.text()), expected);
    EXPECT_GE(records.pages(), 10);

    const DocumentReader sheet(CareSheetPDF::make(pet, made.store, UserCalendar::now()));
    EXPECT_EQ(printedWords(sheet.text()), words(10'000, 4000).split(u' ') + words(30'000, 20).split(u' '));
    // Every page ends above its footer.
    for (int page = 1; page <= records.pages(); ++page)
        EXPECT_TRUE(records.text(page).contains(u"page %1"_qs.arg(page))) << page;
}

TEST_F(LongTexts, InANameAreAllPrinted) {
    const Pet pet = addPet(words(0, 300) + u'\n' + words(300, 10), u"rabbit"_qs);
    const QStringList name = words(0, 310).split(u' ');
    EXPECT_EQ(printedWords(DocumentReader(PetPDF::make(pet, made.store)).text()), name);
    EXPECT_EQ(printedWords(DocumentReader(CareSheetPDF::make(pet, made.store, UserCalendar::now())).text())
                  .first(310),
              name);
}

} // namespace
} // namespace ormiva
