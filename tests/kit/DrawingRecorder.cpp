#include "DrawingRecorder.h"

#include <QGradient>
#include <QPainter>

#include <cmath>

namespace ormiva::testing {

namespace {

/// At most two decimals, and none that say nothing.
QString number(double value) {
    const double rounded = std::round(value * 100) / 100;
    return QString::number(rounded == 0 ? 0 : rounded, 'g', 12);
}

QString point(const QPointF& point) {
    return number(point.x()) + u',' + number(point.y());
}

QString capOf(Qt::PenCapStyle cap) {
    return cap == Qt::RoundCap ? QStringLiteral("round") : QStringLiteral("butt");
}

QString joinOf(const QPen& pen) {
    return pen.joinStyle() == Qt::RoundJoin ? QStringLiteral("round")
                                            : QStringLiteral("miter ") + number(pen.miterLimit());
}

} // namespace

class RecordingEngine : public QPaintEngine {
public:
    explicit RecordingEngine(DrawingRecorder& recorder)
        : QPaintEngine(AllFeatures)
        , m_recorder(recorder) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPath(const QPainterPath& path) override { m_recorder.record(*state, path); }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }

private:
    DrawingRecorder& m_recorder;
};

DrawingRecorder::DrawingRecorder(const QHash<QRgb, QString>& names)
    : m_names(names)
    , m_engine(std::make_unique<RecordingEngine>(*this)) {}

DrawingRecorder::~DrawingRecorder() = default;

QPaintEngine* DrawingRecorder::paintEngine() const {
    return m_engine.get();
}

int DrawingRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return 100;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 96;
    }
}

void DrawingRecorder::record(const QPaintEngineState& state, const QPainterPath& path) {
    const QRectF box = state.transform().map(path).boundingRect();
    const bool isStroke = state.pen().style() != Qt::NoPen;
    m_lines.append((isStroke ? stroke(state.pen()) : fill(state.brush())) + QStringLiteral(" | ") +
                   number(box.x()) + u' ' + number(box.y()) + u' ' + number(box.width()) + u' ' +
                   number(box.height()));
}

QString DrawingRecorder::color(const QColor& color) const {
    if (color.alpha() == 0)
        return QStringLiteral("clear");
    const QString name = m_names.value(color.rgb() | 0xFF000000, color.name());
    return color.alpha() == 255 ? name : name + u'@' + number(color.alphaF());
}

QString DrawingRecorder::fill(const QBrush& brush) const {
    const QGradient* gradient = brush.gradient();
    if (!gradient)
        return QStringLiteral("fill ") + color(brush.color());
    QString text;
    if (gradient->type() == QGradient::LinearGradient) {
        const auto* linear = static_cast<const QLinearGradient*>(gradient);
        text = QStringLiteral("fill linear ") + point(linear->start()) + u'-' + point(linear->finalStop());
    } else {
        const auto* radial = static_cast<const QRadialGradient*>(gradient);
        text = QStringLiteral("fill radial ") + point(radial->center()) + QStringLiteral(" r ") +
               number(radial->radius());
    }
    for (const auto& [at, stop] : gradient->stops())
        text += u' ' + number(at) + u':' + color(stop);
    return text;
}

QString DrawingRecorder::stroke(const QPen& pen) const {
    QString text = pen.brush().gradient()
                       ? fill(pen.brush()).replace(QStringLiteral("fill"), QStringLiteral("stroke"))
                       : QStringLiteral("stroke ") + color(pen.color());
    text +=
        QStringLiteral(" width ") + number(pen.widthF()) + u' ' + capOf(pen.capStyle()) + u' ' + joinOf(pen);
    if (pen.style() != Qt::CustomDashLine)
        return text;
    // Qt counts dashes in widths of the pen.
    text += QStringLiteral(" dash");
    for (const double dash : pen.dashPattern())
        text += u' ' + number(dash * pen.widthF());
    return text + QStringLiteral(" phase ") + number(pen.dashOffset() * pen.widthF());
}

} // namespace ormiva::testing
