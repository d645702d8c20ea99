#pragma once

#include "UserCalendar.h"

#include <QByteArray>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace ormiva {

/// sRGB, each 0 to 1.
struct PdfColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    friend bool operator==(const PdfColor&, const PdfColor&) = default;
};

enum class PdfWeight { Regular, Bold, Heavy };

struct PdfTextStyle {
    double size = 10; ///< points
    PdfWeight weight = PdfWeight::Regular;
    PdfColor color;

    friend bool operator==(const PdfTextStyle&, const PdfTextStyle&) = default;
};

/// What a document says of itself.
struct PdfInfo {
    QString title;
    QString subject;
    Instant created;
};

/// The pages of a document, on which everything is placed in points from the top left. Stands between the
/// arithmetic of the flow and the library that writes the file.
class PdfCanvas {
public:
    PdfCanvas() = default;
    virtual ~PdfCanvas() = default;
    PdfCanvas(const PdfCanvas&) = delete;
    PdfCanvas& operator=(const PdfCanvas&) = delete;

    virtual void beginPage() = 0;
    virtual void endPage() = 0;

    /// How high `text` is when it is wrapped at `width`, at most `limit`.
    virtual double heightOf(const QString& text, const PdfTextStyle& style, double width, double limit) = 0;
    /// Draws the lines of `text` that lie inside `box`, the first one in any case. Web addresses become
    /// links.
    virtual void drawText(const QString& text, const PdfTextStyle& style, const QRectF& box) = 0;
    /// How many UTF-16 units of `text` stand on the lines that are at most `height` high together; at least
    /// one line's.
    virtual qsizetype fitting(const QString& text, const PdfTextStyle& style, double width,
                              double height) = 0;

    virtual void fillRect(const QRectF& rect, const PdfColor& color) = 0;
    virtual void fillCircle(const QPointF& center, double diameter, const PdfColor& color) = 0;
    virtual void strokeLine(const QList<QPointF>& points, double width, const PdfColor& color) = 0;
    /// Fits an encoded picture into the rectangle's top left, upright. One that can't be decoded is left out.
    virtual void drawImage(const QByteArray& data, const QRectF& rect) = 0;
    /// Names this height of the page in the document's outline.
    virtual void addToOutline(const QString& title, double y) = 0;

    /// Ends the document and gives its bytes. Nothing may be called after it.
    virtual QByteArray finish() = 0;
};

} // namespace ormiva
