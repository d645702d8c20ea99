#pragma once

#include "PDFFlow.h"

#include "Printers.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace ormiva::testing {

/// A canvas that only writes down what it is asked for. A text has the height that its first number says, as
/// "h=25 some words", and else one of 12 points for each of its lines; it never wraps.
class FakeCanvas : public PdfCanvas {
public:
    explicit FakeCanvas(QStringList& log)
        : m_log(log) {}

    static double height(const QString& text) {
        return text.startsWith(u"h=") ? text.mid(2).section(u' ', 0, 0).toDouble()
                                      : 12.0 * static_cast<double>(text.count(u'\n') + 1);
    }
    static QString number(double value) { return QString::number(value, 'f', 2); }
    static QString rect(const QRectF& box) {
        return (QStringList{number(box.x()), number(box.y()), number(box.width()), number(box.height())})
            .join(u' ');
    }
    static QString color(const PdfColor& color) {
        return QStringLiteral("%1/%2/%3/%4")
            .arg(number(color.red), number(color.green), number(color.blue), number(color.alpha));
    }

    void beginPage() override { m_log.append(u"page"_qs); }
    void endPage() override { m_log.append(u"end"_qs); }
    double heightOf(const QString& text, const PdfTextStyle&, double width, double limit) override {
        lastWidth = width;
        return std::min(height(text), limit);
    }
    void drawText(const QString& text, const PdfTextStyle& style, const QRectF& box) override {
        m_log.append(u"text \"%1\" %2 at %3"_qs.arg(text, number(style.size), rect(box)));
    }
    qsizetype fitting(const QString& text, const PdfTextStyle&, double, double room) override {
        // Words of one line each.
        qsizetype end = -1;
        for (int lines = 0; lines < static_cast<int>(room / 12); ++lines) {
            const qsizetype next = text.indexOf(u'\n', end + 1);
            if (next < 0)
                return text.size();
            end = next;
        }
        return end + 1;
    }
    void fillRect(const QRectF& box, const PdfColor& fill) override {
        m_log.append(u"rect %1 %2"_qs.arg(rect(box), color(fill)));
    }
    void fillCircle(const QPointF& center, double diameter, const PdfColor& fill) override {
        m_log.append(u"circle %1 %2 %3 %4"_qs.arg(number(center.x()), number(center.y()), number(diameter),
                                                  color(fill)));
    }
    void strokeLine(const QList<QPointF>& points, double width, const PdfColor& stroke) override {
        QStringList path;
        for (const QPointF& point : points)
            path.append(number(point.x()) + u' ' + number(point.y()));
        m_log.append(u"line %1 %2 %3"_qs.arg(path.join(u", "), number(width), color(stroke)));
    }
    void drawImage(const QByteArray& data, const QRectF& box) override {
        m_log.append(u"image %1 %2"_qs.arg(data.size()).arg(rect(box)));
    }
    void addToOutline(const QString& title, double y) override {
        m_log.append(u"outline \"%1\" %2"_qs.arg(title, number(y)));
    }
    QByteArray finish() override {
        m_log.append(u"finish"_qs);
        return "bytes";
    }

    inline static double lastWidth = 0;

private:
    QStringList& m_log;
};

/// A flow on a fake canvas with the footer "Foot".
struct FakeFlow {
    QStringList log;
    PDFFlow flow{u"Foot"_qs, std::make_unique<FakeCanvas>(log)};

    /// What was drawn since the last call.
    QStringList drawn() { return std::exchange(log, {}); }
};

inline QStringList footerOf(int page) {
    return {u"rect 42.00 756.00 528.00 0.80 0.18/0.42/0.24/0.85"_qs,
            u"text \"Foot · page %1\" 8.50 at 42.00 760.00 528.00 14.00"_qs.arg(page), u"end"_qs};
}

} // namespace ormiva::testing
