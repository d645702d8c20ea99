#pragma once

#include "OMDay.h"
#include "PdfCanvas.h"

#include <QStringList>

#include <memory>
#include <utility>

namespace ormiva {

/// Writes a document from top to bottom on US Letter pages, and begins a new page by itself when the next
/// thing doesn't fit. All measures are points from the top left.
class PDFFlow {
public:
    static constexpr double pageW = 612;
    static constexpr double pageH = 792;
    static constexpr double margin = 42;
    static constexpr double width = 528;
    /// What ends below it goes to the next page.
    static constexpr double bottom = 742;

    static const PdfColor ink;
    static const PdfColor green;
    static const PdfTextStyle titleA;
    static const PdfTextStyle h2A;
    static const PdfTextStyle bodyA;
    static const PdfTextStyle smallA;
    static const PdfTextStyle headA;
    static const PdfTextStyle cellA;

    /// Begins page 1. `footer` stands at the foot of every page, with the page's number.
    PDFFlow(QString footer, std::unique_ptr<PdfCanvas> canvas);

    /// The cursor. Callers may set it, to lay things side by side.
    double y = margin;
    /// Pages begun so far.
    int page() const { return m_page; }

    void newPage();
    /// Begins a new page unless `height` still fits.
    void need(double height);
    /// Moves the cursor down, and never to another page.
    void space(double height);
    /// One wrapped block, never split: one higher than a page is drawn from the top of a page and runs off
    /// it.
    void text(const QString& text, const PdfTextStyle& style, double indent = 0);
    /// How far `text` would move the cursor at full width.
    double textHeight(const QString& text, const PdfTextStyle& style, double indent = 0);
    /// A text of any length: one higher than a page goes to `text` paragraph by paragraph, and a paragraph
    /// higher than a page in groups of lines.
    void longText(const QString& text, const PdfTextStyle& style, double indent = 0);
    /// A section's heading with a rule below, kept with what follows it.
    void heading(const QString& title);
    /// A striped table; its header comes again on every page. A row has at most as many cells as there are
    /// columns, and is kept whole. Cells above 600 points are continued in further rows.
    void table(const QStringList& headers, const QList<QStringList>& rows, const QList<double>& widths);
    /// A line through points in order of time, oldest first; nothing for fewer than two.
    void chart(const QList<std::pair<OMDay, double>>& points, const QString& unitLabel);
    /// The cursor doesn't move.
    void image(const QByteArray& data, const QRectF& rect);
    /// Blocks of text that begin beside `rect` on this page are wrapped to its left.
    void keepClear(const QRectF& rect) { m_clear = rect; }
    /// Ends the document and gives its bytes. Nothing may be written after it.
    QByteArray finish();

private:
    struct Column {
        QString header;
        double x;
        double width;
    };

    double textWidth() const;
    void drawFooter();
    void tableHeader(const QList<Column>& columns);
    void tableRow(const QList<Column>& columns, const QStringList& cells, bool striped);
    QList<QStringList> pieces(const QList<Column>& columns, QStringList cells);
    void chartGrid(const QRectF& plot, double axisBottom, double span);

    QString m_footer;
    std::unique_ptr<PdfCanvas> m_canvas;
    int m_page = 0;
    QRectF m_clear;
};

} // namespace ormiva
