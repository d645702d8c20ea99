#pragma once

#include <QHash>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QStringList>

#include <memory>

namespace ormiva::testing {

/// A canvas that writes down what is painted on it instead of painting: a line for each fill and stroke, with
/// the colour, how it is stroked and the bounding box as "x y width height", in units of the canvas.
class DrawingRecorder : public QPaintDevice {
public:
    /// Colours that are told by a name: "p@0.75" and not "#c82828@0.75".
    explicit DrawingRecorder(const QHash<QRgb, QString>& names = {});
    ~DrawingRecorder() override;

    const QStringList& lines() const { return m_lines; }
    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    friend class RecordingEngine;

    void record(const QPaintEngineState& state, const QPainterPath& path);
    QString color(const QColor& color) const;
    QString fill(const QBrush& brush) const;
    QString stroke(const QPen& pen) const;

    QHash<QRgb, QString> m_names;
    QStringList m_lines;
    std::unique_ptr<QPaintEngine> m_engine;
};

} // namespace ormiva::testing
