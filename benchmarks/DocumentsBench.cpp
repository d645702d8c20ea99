// The records for the vet against the same strings drawn by Pango on pages without any layout of ours.

#include "LogAnalysis.h"
#include "LongRecords.h"
#include "Numbers.h"
#include "Pairs.h"
#include "PetPDF.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cairo-pdf.h>
#include <numeric>
#include <pango/pangocairo.h>

namespace ormiva::bench {

namespace {

struct Cell {
    QByteArray text;
    double x;
    double width;
};

/// Rows of cells at the columns of a table.
QList<QList<Cell>> placed(const QList<QStringList>& rows, const QList<double>& widths) {
    const double sum = std::accumulate(widths.begin(), widths.end(), 0.0);
    QList<QList<Cell>> table;
    for (const QStringList& row : rows) {
        QList<Cell> cells;
        double x = 42;
        for (qsizetype i = 0; i < row.size(); ++i) {
            const double width = widths.at(i) / sum * 528;
            cells.append({row.at(i).toUtf8(), x + 3, width - 6});
            x += width;
        }
        table.append(cells);
    }
    return table;
}

/// What the tables of the records hold.
QList<QList<Cell>> cellsOf(const Pet& pet, OMStore& store) {
    QList<QStringList> rows;
    const QList<WeightEntry> weights = store.weights(pet.id);
    for (qsizetype i = weights.size(); i-- > 0;)
        rows.append({weights.at(i).day.iso(), Numbers::fixed(weights.at(i).grams, 1),
                     QStringLiteral("+1.0 g (+0.1%)"), weights.at(i).note});
    QList<QList<Cell>> cells = placed(rows, {1.1, 1.0, 1.4, 3.0});
    rows.clear();
    for (const VetVisit& visit : store.visits(pet.id))
        rows.append({visit.day.iso(), visit.clinic + u'\n' + visit.vet, visit.reason,
                     visit.findings + u'\n' + visit.followUp});
    cells += placed(rows, {1.0, 1.6, 1.8, 3.0});
    rows.clear();
    for (const FeedingEntry& meal : store.feedings(pet.id))
        rows.append({meal.day.iso(), meal.food, meal.amount, QStringLiteral("Yes"), meal.note});
    return cells + placed(rows, {1.0, 2.0, 1.2, 0.8, 2.5});
}

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

/// Draws the cells row below row, and nothing else.
QByteArray drawBare(const QList<QList<Cell>>& rows) {
    QByteArray bytes;
    cairo_surface_t* surface = cairo_pdf_surface_create_for_stream(append, &bytes, 612, 792);
    cairo_t* context = cairo_create(surface);
    PangoLayout* layout = pango_cairo_create_layout(context);
    PangoFontDescription* font = pango_font_description_from_string("Inter, sans-serif");
    pango_font_description_set_absolute_size(font, 9 * PANGO_SCALE);
    pango_layout_set_font_description(layout, font);
    double y = 42;
    for (const QList<Cell>& row : rows) {
        int tallest = 0;
        for (const Cell& cell : row) {
            pango_layout_set_text(layout, cell.text.constData(), static_cast<int>(cell.text.size()));
            pango_layout_set_width(layout, static_cast<int>(cell.width * PANGO_SCALE));
            int height = 0;
            pango_layout_get_pixel_size(layout, nullptr, &height);
            tallest = std::max(tallest, height);
            cairo_move_to(context, cell.x, y);
            pango_cairo_show_layout(context, layout);
        }
        y += tallest + 4;
        if (y > 720) {
            cairo_show_page(context);
            y = 42;
        }
    }
    pango_font_description_free(font);
    g_object_unref(layout);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return bytes;
}

} // namespace

void addDocumentPairs() {
    static const QTemporaryDir folder;
    static OMStore store(folder.filePath(QStringLiteral("long.sqlite")));
    static const Pet pet = addLongRecords(store);
    static const QList<QList<Cell>> cells = cellsOf(pet, store);
    addPair(
        "the records PDF, 5000 weights and meals", 1.3,
        [] { benchmark::DoNotOptimize(PetPDF::make(pet, store)); },
        [] { benchmark::DoNotOptimize(drawBare(cells)); });
}

} // namespace ormiva::bench
