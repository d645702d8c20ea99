#include "CairoCanvas.h"

#include "OMInfo.h"
#include "PDFFlow.h"
#include "PhotoSurface.h"

#include <QCache>
#include <QRegularExpression>

#include <algorithm>
#include <cairo-pdf.h>
#include <cmath>
#include <numbers>
#include <pango/pangocairo.h>

namespace ormiva {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unref>;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data),
                                            static_cast<qsizetype>(length));
    return CAIRO_STATUS_SUCCESS;
}

PangoWeight pangoWeight(PdfWeight weight) {
    switch (weight) {
    case PdfWeight::Regular:
        return PANGO_WEIGHT_NORMAL;
    case PdfWeight::Bold:
        return PANGO_WEIGHT_BOLD;
    case PdfWeight::Heavy:
        return PANGO_WEIGHT_HEAVY;
    }
    Q_UNREACHABLE();
}

double points(int pangoUnits) {
    return static_cast<double>(pangoUnits) / PANGO_SCALE;
}

/// "2026-11-21T09:00:00Z".
QByteArray isoTime(Instant instant) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant);
    const auto day = std::chrono::floor<std::chrono::days>(seconds);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(seconds - day);
    return QString::asprintf("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                             static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                             static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                             static_cast<int>(time.seconds().count()))
        .toLatin1();
}

void setColor(cairo_t* context, const PdfColor& color) {
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

/// For a tag's attributes: Cairo reads fractions in the user's locale.
QByteArray wholeNumbers(std::initializer_list<int> numbers) {
    QByteArrayList texts;
    for (const int number : numbers)
        texts.append(QByteArray::number(number));
    return texts.join(' ');
}

/// An address without the characters that end a tag's value or a string of the file.
QByteArray linkTarget(const QString& address) {
    return address.toUtf8().toPercentEncoding(QByteArrayLiteral(":/?#[]@!$&*+=%"));
}

/// What a layout is made of.
struct LayoutKey {
    QString text;
    double size;
    PdfWeight weight;
    double width;

    friend bool operator==(const LayoutKey&, const LayoutKey&) = default;
    friend size_t qHash(const LayoutKey& key, size_t seed = 0) {
        return qHashMulti(seed, key.text, key.size, static_cast<int>(key.weight), key.width);
    }
};

/// Characters of the layouts that are kept, each with some for what a layout takes in any case.
constexpr qsizetype layoutBudget = 200'000;
constexpr qsizetype layoutOverhead = 400;

} // namespace

struct CairoCanvas::Parts {
    QByteArray bytes;
    cairo_surface_t* surface = nullptr;
    cairo_t* context = nullptr;
    Owned<PangoContext> pango;
    int page = 0;

    QCache<LayoutKey, Owned<PangoLayout>> layouts{layoutBudget};

    /// Valid until the next call: a text is measured and then drawn, and many stand in a document again and
    /// again.
    PangoLayout* layout(const QString& text, const PdfTextStyle& style, double width) {
        const LayoutKey key{text, style.size, style.weight, width};
        if (const auto* known = layouts.object(key))
            return known->get();
        auto made = std::make_unique<Owned<PangoLayout>>(make(key));
        PangoLayout* layout = made->get();
        // A text above the budget is kept all the same, until the next one comes.
        layouts.insert(key, made.release(), std::min(text.size() + layoutOverhead, layoutBudget));
        return layout;
    }
    Owned<PangoLayout> make(const LayoutKey& key) const;
    void linkAddresses(PangoLayout* layout, const QString& text, const QRectF& box) const;
};

Owned<PangoLayout> CairoCanvas::Parts::make(const LayoutKey& key) const {
    Owned<PangoLayout> layout(pango_layout_new(pango.get()));
    const QByteArray utf8 = key.text.toUtf8();
    pango_layout_set_text(layout.get(), utf8.constData(), static_cast<int>(utf8.size()));
    PangoFontDescription* font = pango_font_description_from_string("Inter, sans-serif");
    pango_font_description_set_weight(font, pangoWeight(key.weight));
    pango_font_description_set_absolute_size(font, key.size * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    // Inter's contextual alternates would print other characters than were typed.
    PangoAttrList* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_font_features_new("calt=0"));
    pango_layout_set_attributes(layout.get(), attributes);
    pango_attr_list_unref(attributes);
    pango_layout_set_width(layout.get(), static_cast<int>(std::floor(key.width * PANGO_SCALE)));
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    return layout;
}

CairoCanvas::CairoCanvas(const PdfInfo& info)
    : m(std::make_unique<Parts>()) {
    m->surface = cairo_pdf_surface_create_for_stream(append, &m->bytes, PDFFlow::pageW, PDFFlow::pageH);
    const auto tell = [this](cairo_pdf_metadata_t what, const QByteArray& text) {
        cairo_pdf_surface_set_metadata(m->surface, what, text.constData());
    };
    tell(CAIRO_PDF_METADATA_TITLE, info.title.toUtf8());
    tell(CAIRO_PDF_METADATA_SUBJECT, info.subject.toUtf8());
    tell(CAIRO_PDF_METADATA_AUTHOR, QByteArrayLiteral("VLK Ormiva by Ventrel"));
    tell(CAIRO_PDF_METADATA_CREATOR, OMInfo::appName.toUtf8());
    tell(CAIRO_PDF_METADATA_CREATE_DATE, isoTime(info.created));
    m->context = cairo_create(m->surface);

    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    m->pango.reset(pango_cairo_create_context(m->context));
    pango_cairo_context_set_font_options(m->pango.get(), options);
    pango_context_set_round_glyph_positions(m->pango.get(), FALSE);
    cairo_font_options_destroy(options);
}

CairoCanvas::~CairoCanvas() {
    cairo_destroy(m->context);
    cairo_surface_destroy(m->surface);
}

void CairoCanvas::beginPage() {
    ++m->page;
}

void CairoCanvas::endPage() {
    cairo_show_page(m->context);
}

double CairoCanvas::heightOf(const QString& text, const PdfTextStyle& style, double width, double limit) {
    PangoLayout* layout = m->layout(text, style, width);
    int height = 0;
    pango_layout_get_size(layout, nullptr, &height);
    return std::min(points(height), limit);
}

void CairoCanvas::drawText(const QString& text, const PdfTextStyle& style, const QRectF& box) {
    PangoLayout* layout = m->layout(text, style, box.width());
    setColor(m->context, style.color);
    const std::unique_ptr<PangoLayoutIter, decltype(&pango_layout_iter_free)> line(
        pango_layout_get_iter(layout), pango_layout_iter_free);
    do {
        PangoRectangle extents;
        pango_layout_iter_get_line_extents(line.get(), nullptr, &extents);
        constexpr double rounding = 0.01;
        if (extents.y > 0 && points(extents.y + extents.height) > box.height() + rounding)
            break;
        cairo_move_to(m->context, box.x() + points(extents.x),
                      box.y() + points(pango_layout_iter_get_baseline(line.get())));
        pango_cairo_show_layout_line(m->context, pango_layout_iter_get_line_readonly(line.get()));
    } while (pango_layout_iter_next_line(line.get()));
    m->linkAddresses(layout, text, box);
}

void CairoCanvas::Parts::linkAddresses(PangoLayout* layout, const QString& text, const QRectF& box) const {
    if (!text.contains(QStringLiteral("://")))
        return;
    static const QRegularExpression address(QStringLiteral("https?://[!-+\\--:<-~]+"));
    for (const QRegularExpressionMatch& match : address.globalMatch(text)) {
        const int begin = static_cast<int>(text.first(match.capturedStart()).toUtf8().size());
        const int end = begin + static_cast<int>(match.capturedLength());
        // A rectangle for each line that the address stands on.
        QByteArray rectangles;
        const std::unique_ptr<PangoLayoutIter, decltype(&pango_layout_iter_free)> iterator(
            pango_layout_get_iter(layout), pango_layout_iter_free);
        do {
            PangoLayoutLine* line = pango_layout_iter_get_line_readonly(iterator.get());
            const int from = std::max(begin, line->start_index);
            const int to = std::min(end, line->start_index + line->length);
            if (from >= to)
                continue;
            PangoRectangle extents;
            pango_layout_iter_get_line_extents(iterator.get(), nullptr, &extents);
            int left = 0;
            int right = 0;
            pango_layout_line_index_to_x(line, from, FALSE, &left);
            pango_layout_line_index_to_x(line, to, FALSE, &right);
            const QRect rect =
                QRectF(box.x() + points(extents.x + std::min(left, right)), box.y() + points(extents.y),
                       points(std::abs(right - left)), points(extents.height))
                    .toAlignedRect();
            rectangles += wholeNumbers({rect.x(), rect.y(), rect.width(), rect.height()}) + ' ';
        } while (pango_layout_iter_next_line(iterator.get()));
        if (rectangles.isEmpty())
            continue;
        const QByteArray attributes =
            "rect=[ " + rectangles + "] uri='" + linkTarget(match.captured()) + '\'';
        // Inside a paragraph: without any structure Cairo 1.16 refers to elements that it never writes.
        cairo_tag_begin(context, "P", nullptr);
        cairo_tag_begin(context, CAIRO_TAG_LINK, attributes.constData());
        cairo_tag_end(context, CAIRO_TAG_LINK);
        cairo_tag_end(context, "P");
    }
}

qsizetype CairoCanvas::fitting(const QString& text, const PdfTextStyle& style, double width, double height) {
    PangoLayout* layout = m->layout(text, style, width);
    const std::unique_ptr<PangoLayoutIter, decltype(&pango_layout_iter_free)> line(
        pango_layout_get_iter(layout), pango_layout_iter_free);
    while (pango_layout_iter_next_line(line.get())) {
        PangoRectangle extents;
        pango_layout_iter_get_line_extents(line.get(), nullptr, &extents);
        if (points(extents.y + extents.height) > height)
            return QString::fromUtf8(
                       text.toUtf8().first(pango_layout_iter_get_line_readonly(line.get())->start_index))
                .size();
    }
    return text.size();
}

void CairoCanvas::fillRect(const QRectF& rect, const PdfColor& color) {
    setColor(m->context, color);
    cairo_rectangle(m->context, rect.x(), rect.y(), rect.width(), rect.height());
    cairo_fill(m->context);
}

void CairoCanvas::fillCircle(const QPointF& center, double diameter, const PdfColor& color) {
    setColor(m->context, color);
    cairo_new_path(m->context);
    cairo_arc(m->context, center.x(), center.y(), diameter / 2, 0, 2 * std::numbers::pi);
    cairo_fill(m->context);
}

void CairoCanvas::strokeLine(const QList<QPointF>& path, double width, const PdfColor& color) {
    setColor(m->context, color);
    cairo_set_line_width(m->context, width);
    cairo_new_path(m->context);
    for (const QPointF& point : path)
        cairo_line_to(m->context, point.x(), point.y());
    cairo_stroke(m->context);
}

void CairoCanvas::drawImage(const QByteArray& data, const QRectF& rect) {
    if (const PhotoSurface photo(data); photo.isValid())
        photo.draw(m->context, rect);
}

void CairoCanvas::addToOutline(const QString& title, double y) {
    const QByteArray place = "page=" + QByteArray::number(m->page) + " pos=[" +
                             wholeNumbers({0, static_cast<int>(std::floor(y))}) + ']';
    cairo_pdf_surface_add_outline(m->surface, CAIRO_PDF_OUTLINE_ROOT, title.toUtf8().constData(),
                                  place.constData(), static_cast<cairo_pdf_outline_flags_t>(0));
}

QByteArray CairoCanvas::finish() {
    cairo_surface_finish(m->surface);
    const cairo_status_t status = cairo_surface_status(m->surface);
    if (status != CAIRO_STATUS_SUCCESS)
        qFatal("The document could not be drawn: %s", cairo_status_to_string(status));
    return std::move(m->bytes);
}

} // namespace ormiva
