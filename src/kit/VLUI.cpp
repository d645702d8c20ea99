#include "VLUI.h"

#include "AppModel.h"
#include "OMPrefs.h"
#include "SoftShadow.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QScreen>

namespace ormiva {

VLUI* VLUI::create(QQmlEngine* engine, QJSEngine*) {
    if (!engine->imageProvider(SoftShadow::provider))
        engine->addImageProvider(SoftShadow::provider, new SoftShadow); // The engine owns it.
    return new VLUI(engine);
}

VLUI::VLUI(QObject* parent)
    : QObject(parent)
    , m_zoom(VLZoom::value()) {
    readTheme();
    connect(&OMPrefs::notifier(), &PrefsNotifier::changed, this, &VLUI::follow);
}

QList<ThemeChoice> VLUI::themes() const {
    QList<ThemeChoice> choices;
    for (const VLKTheme& theme : VLKThemes::all())
        choices.append({theme.id, theme.name});
    return choices;
}

double VLUI::pointsPerPixel() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return 72 / (screen ? screen->logicalDotsPerInchY() : 96);
}

QString VLUI::fontFamily() const {
    return QGuiApplication::font().family();
}

QString VLUI::iconFamily() const {
    return QStringLiteral("Material Design Icons");
}

QString VLUI::shadowSource() const {
    return QStringLiteral("image://%1/%2").arg(SoftShadow::provider, SoftShadow::card);
}

void VLUI::chooseTheme(const QString& id) {
    AppModel::shared().act([&id] { VLKThemes::setCurrentID(id); });
}

QColor VLUI::at(QColor base, double opacity) const {
    base.setAlphaF(static_cast<float>(opacity));
    return base;
}

QColor VLUI::mix(const QColor& first, const QColor& second, double part) const {
    const auto blend = [share = static_cast<float>(part)](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(blend(first.redF(), second.redF()), blend(first.greenF(), second.greenF()),
                            blend(first.blueF(), second.blueF()));
}

QColor VLUI::inkOn(const QColor& ground) const {
    const auto rgb = [](const QColor& color) {
        return VLKTheme::RGB{color.redF(), color.greenF(), color.blueF()};
    };
    const QColor dark(0x12, 0x16, 0x14);
    return VLKTheme::RGB::contrast(rgb(ground), rgb(Qt::white)) >=
                   VLKTheme::RGB::contrast(rgb(ground), rgb(dark))
               ? QColor(Qt::white)
               : dark;
}

void VLUI::follow(const QString& key) {
    if (key == VLKThemes::key) {
        readTheme();
        Q_EMIT themeChanged();
    } else if (key == VLZoom::key && m_zoom != VLZoom::value()) {
        m_zoom = VLZoom::value();
        Q_EMIT zoomChanged();
    }
}

void VLUI::readTheme() {
    const VLKTheme theme = VLKThemes::current();
    m_colors = theme.kitTheme();
    m_themeID = theme.id;
}

} // namespace ormiva
