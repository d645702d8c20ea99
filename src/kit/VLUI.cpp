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

QList<int> VLUI::zoomLevels() const {
    return VLZoom::levels();
}

QString VLUI::zoomLevelTitle(int percent) const {
    return VLZoom::levelTitle(percent);
}

void VLUI::zoomIn() {
    AppModel::shared().act([] { VLZoom::zoomIn(); });
}

void VLUI::zoomOut() {
    AppModel::shared().act([] { VLZoom::zoomOut(); });
}

void VLUI::zoomTo(int percent) {
    AppModel::shared().act([percent] { VLZoom::setValue(percent / 100.0); });
}

QColor VLUI::inkOn(const QColor& ground) const {
    constexpr double wellReadable = 4.5; // the least contrast of text in WCAG 2, level AA
    const VLKTheme::RGB below = {ground.redF(), ground.greenF(), ground.blueF()};
    const double white = VLKTheme::RGB::contrast({1, 1, 1}, below);
    const double black = VLKTheme::RGB::contrast({0, 0, 0}, below);
    return white >= wellReadable || white >= black ? Qt::white : Qt::black;
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
