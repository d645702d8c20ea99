#pragma once

#include "PdfCanvas.h"

#include <memory>

namespace ormiva {

/// US Letter pages drawn with Cairo, and text set with Pango: it stays text in the file, in subsets of the
/// fonts.
class CairoCanvas final : public PdfCanvas {
public:
    explicit CairoCanvas(const PdfInfo& info);
    ~CairoCanvas() override;

    void beginPage() override;
    void endPage() override;
    double heightOf(const QString& text, const PdfTextStyle& style, double width, double limit) override;
    void drawText(const QString& text, const PdfTextStyle& style, const QRectF& box) override;
    qsizetype fitting(const QString& text, const PdfTextStyle& style, double width, double height) override;
    void fillRect(const QRectF& rect, const PdfColor& color) override;
    void fillCircle(const QPointF& center, double diameter, const PdfColor& color) override;
    void strokeLine(const QList<QPointF>& points, double width, const PdfColor& color) override;
    void drawImage(const QByteArray& data, const QRectF& rect) override;
    void addToOutline(const QString& title, double y) override;
    QByteArray finish() override;

private:
    struct Parts;
    std::unique_ptr<Parts> m;
};

} // namespace ormiva
