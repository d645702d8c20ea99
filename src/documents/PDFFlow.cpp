#include "PDFFlow.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ormiva {

namespace {

constexpr double heightLimit = 2000;
constexpr double cellLimit = 600;
constexpr double cellPadding = 3;
constexpr double leastRow = 14;
constexpr double pageHeight = PDFFlow::bottom - PDFFlow::margin;

const PdfColor white = {1, 1, 1};
const PdfColor darkGray = {1.0 / 3, 1.0 / 3, 1.0 / 3};
const PdfColor stripe = {0.93, 0.96, 0.93};
const PdfColor plotColor = {0.95, 0.97, 0.95};
const PdfColor gridColor = {0.8, 0.8, 0.8};

PdfColor withAlpha(PdfColor color, double alpha) {
    color.alpha = alpha;
    return color;
}

double secondsOf(const OMDay& day) {
    return static_cast<double>(day.date().time_since_epoch().count()) / 1000;
}

/// Without decimals, and without the sign of a zero.
QString rounded(double value) {
    const QString text = QString::asprintf("%.0f", value);
    return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
}

} // namespace

const PdfColor PDFFlow::ink = {0.08, 0.16, 0.10};
const PdfColor PDFFlow::green = {0.18, 0.42, 0.24};
const PdfTextStyle PDFFlow::titleA = {22, PdfWeight::Heavy, {0.18, 0.42, 0.24}};
const PdfTextStyle PDFFlow::h2A = {13, PdfWeight::Bold, {0.18, 0.42, 0.24}};
const PdfTextStyle PDFFlow::bodyA = {10, PdfWeight::Regular, {0.08, 0.16, 0.10}};
const PdfTextStyle PDFFlow::smallA = {8.5, PdfWeight::Regular, {1.0 / 3, 1.0 / 3, 1.0 / 3}};
const PdfTextStyle PDFFlow::headA = {9, PdfWeight::Bold, {1, 1, 1}};
const PdfTextStyle PDFFlow::cellA = {9, PdfWeight::Regular, {0.08, 0.16, 0.10}};

PDFFlow::PDFFlow(QString footer, std::unique_ptr<PdfCanvas> canvas)
    : m_footer(std::move(footer))
    , m_canvas(std::move(canvas)) {
    newPage();
}

void PDFFlow::newPage() {
    if (m_page >= 1) {
        drawFooter();
        m_canvas->endPage();
    }
    m_canvas->beginPage();
    ++m_page;
    m_clear = {};
    y = margin;
}

void PDFFlow::drawFooter() {
    m_canvas->fillRect({margin, 756, width, 0.8}, withAlpha(green, 0.85));
    m_canvas->drawText(m_footer + QStringLiteral(" · page %1").arg(m_page), smallA, {margin, 760, width, 14});
}

void PDFFlow::need(double height) {
    if (y + height > bottom)
        newPage();
}

void PDFFlow::space(double height) {
    y += height;
}

double PDFFlow::textWidth() const {
    constexpr double gap = 8;
    return y < m_clear.bottom() ? m_clear.left() - gap - margin : width;
}

void PDFFlow::text(const QString& text, const PdfTextStyle& style, double indent) {
    const auto measured = [&] { return m_canvas->heightOf(text, style, textWidth() - indent, heightLimit); };
    double height = measured();
    if (y + height + 2 > bottom) {
        newPage();
        height = measured();
    }
    m_canvas->drawText(text, style, {margin + indent, y, textWidth() - indent, height + 2});
    y += std::ceil(height) + 3;
}

double PDFFlow::textHeight(const QString& text, const PdfTextStyle& style, double indent) {
    return std::ceil(m_canvas->heightOf(text, style, width - indent, heightLimit)) + 3;
}

void PDFFlow::longText(const QString& whole, const PdfTextStyle& style, double indent) {
    const double room = pageHeight - 3;
    if (m_canvas->heightOf(whole, style, width - indent, heightLimit) <= room)
        return text(whole, style, indent);
    for (QString paragraph : whole.split(u'\n')) {
        while (m_canvas->heightOf(paragraph, style, width - indent, heightLimit) > room) {
            const qsizetype fitting = m_canvas->fitting(paragraph, style, width - indent, room);
            text(paragraph.first(fitting), style, indent);
            paragraph.remove(0, fitting);
        }
        text(paragraph, style, indent);
    }
}

void PDFFlow::heading(const QString& title) {
    constexpr double withWhatFollows = 40;
    need(withWhatFollows);
    y += 8;
    const double height = m_canvas->heightOf(title, h2A, width, heightLimit);
    need(height + 2);
    m_canvas->addToOutline(title, y);
    m_canvas->drawText(title, h2A, {margin, y, width, height + 2});
    y += std::ceil(height) + 3;
    m_canvas->fillRect({margin, y, width, 0.7}, withAlpha(green, 0.4));
    y += 5;
}

void PDFFlow::tableHeader(const QList<Column>& columns) {
    constexpr double headerAndOneRow = 36;
    need(headerAndOneRow);
    m_canvas->fillRect({margin, y, width, 17}, green);
    for (const Column& column : columns)
        m_canvas->drawText(column.header, headA,
                           {column.x + cellPadding, y + 3.5, column.width - 2 * cellPadding, 13});
    y += 18;
}

void PDFFlow::tableRow(const QList<Column>& columns, const QStringList& cells, bool striped) {
    Q_ASSERT_X(cells.size() <= columns.size(), "PDFFlow::table",
               "a row has more cells than there are columns");
    double tallest = cells.isEmpty() ? 11 : 0;
    for (qsizetype i = 0; i < cells.size(); ++i)
        tallest = std::max(tallest, m_canvas->heightOf(cells.at(i), cellA,
                                                       columns.at(i).width - 2 * cellPadding, cellLimit));
    const double height = std::max(std::ceil(tallest) + 4, leastRow);
    if (y + height > bottom) {
        newPage();
        tableHeader(columns);
    }
    if (striped)
        m_canvas->fillRect({margin, y, width, height}, stripe);
    for (qsizetype i = 0; i < cells.size(); ++i)
        m_canvas->drawText(
            cells.at(i), cellA,
            {columns.at(i).x + cellPadding, y + 2, columns.at(i).width - 2 * cellPadding, height});
    y += height;
}

QList<QStringList> PDFFlow::pieces(const QList<Column>& columns, QStringList cells) {
    QList<QStringList> pieces;
    for (bool isCut = true; isCut;) {
        isCut = false;
        QStringList rest(cells.size());
        for (qsizetype i = 0; i < cells.size(); ++i) {
            QString& cell = cells[i];
            const double room = columns.at(i).width - 2 * cellPadding;
            if (m_canvas->heightOf(cell, cellA, room, heightLimit) <= cellLimit)
                continue;
            const qsizetype fitting = m_canvas->fitting(cell, cellA, room, cellLimit);
            rest[i] = cell.sliced(fitting);
            cell.truncate(fitting);
            if (cell.endsWith(u'\n'))
                cell.chop(1);
            isCut = isCut || !rest.at(i).isEmpty();
        }
        pieces.append(cells);
        cells = rest;
    }
    return pieces;
}

void PDFFlow::table(const QStringList& headers, const QList<QStringList>& rows, const QList<double>& widths) {
    const double sum = std::accumulate(widths.begin(), widths.end(), 0.0);
    QList<Column> columns;
    double x = margin;
    for (qsizetype i = 0; i < widths.size(); ++i) {
        columns.append({headers.value(i), x, widths.at(i) / sum * width});
        x += columns.last().width;
    }
    tableHeader(columns);
    if (rows.isEmpty())
        return text(QStringLiteral("None recorded."), smallA, cellPadding);
    for (qsizetype i = 0; i < rows.size(); ++i)
        for (const QStringList& cells : pieces(columns, rows.at(i)))
            tableRow(columns, cells, i % 2 == 1);
    y += 4;
}

void PDFFlow::chartGrid(const QRectF& plot, double axisBottom, double span) {
    for (int k = 0; k < 4; ++k) {
        const double line = plot.bottom() - k / 3.0 * plot.height();
        m_canvas->strokeLine({{plot.left(), line}, {plot.right(), line}}, 0.5, gridColor);
        m_canvas->drawText(rounded(axisBottom + span * k / 3), smallA, {margin, line - 6, 32, 12});
    }
}

void PDFFlow::chart(const QList<std::pair<OMDay, double>>& points, const QString& unitLabel) {
    if (points.size() < 2)
        return;
    need(170);
    const QRectF plot(76, y + 6, 488, 124);
    m_canvas->fillRect(plot, plotColor);

    const double first = secondsOf(points.first().first);
    const double last = std::max(secondsOf(points.last().first), first + 1);
    const auto [least, most] = std::ranges::minmax(points, {}, &std::pair<OMDay, double>::second);
    double low = least.second;
    double high = most.second;
    if (high - low < 1) {
        low -= 0.5;
        high += 0.5;
    }
    const double pad = (high - low) * 0.1;
    const double axisBottom = low - pad;
    const double span = high + pad - axisBottom;
    chartGrid(plot, axisBottom, span);

    QList<QPointF> line;
    for (const auto& [day, value] : points)
        line.append({plot.left() + (secondsOf(day) - first) / (last - first) * plot.width(),
                     plot.bottom() - (value - axisBottom) / span * plot.height()});
    m_canvas->strokeLine(line, 1.8, green);
    for (const QPointF& point : line)
        m_canvas->fillCircle(point, 4.4, green);

    const double captions = plot.bottom() + 2;
    m_canvas->drawText(points.first().first.iso(), smallA, {plot.left(), captions, 100, 12});
    m_canvas->drawText(points.last().first.iso(), smallA, {plot.right() - 60, captions, 60, 12});
    m_canvas->drawText(unitLabel, smallA, {plot.left() + 4, plot.top() + 2, 120, 12});
    y += 150;
}

void PDFFlow::image(const QByteArray& data, const QRectF& rect) {
    m_canvas->drawImage(data, rect);
}

QByteArray PDFFlow::finish() {
    drawFooter();
    m_canvas->endPage();
    return m_canvas->finish();
}

} // namespace ormiva
