#pragma once

#include "OMColors.h"
#include "VLKitTheme.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace ormiva {

/// A theme as the menus and the settings list it.
struct ThemeChoice {
    Q_GADGET
    QML_VALUE_TYPE(themeChoice)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)

public:
    QString id;
    QString name;
};

/// The look of the interface for QML: the colours of the theme in use, those that are the same in every
/// theme, and the zoom. It follows the preferences, so that every binding takes a new theme at once.
class VLUI final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor bg READ bg NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor text READ text NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor dim READ dim NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor rim READ rim NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor panelTop READ panelTop NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor panelBottom READ panelBottom NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor leaf READ leaf CONSTANT FINAL)
    Q_PROPERTY(QColor warmLight READ warmLight CONSTANT FINAL)
    Q_PROPERTY(QColor stone READ stone CONSTANT FINAL)
    Q_PROPERTY(QColor emergency READ emergency CONSTANT FINAL)
    Q_PROPERTY(QColor soon READ soon CONSTANT FINAL)
    Q_PROPERTY(QColor monitor READ monitor CONSTANT FINAL)
    Q_PROPERTY(QColor alert READ alert CONSTANT FINAL)
    Q_PROPERTY(QList<ormiva::ThemeChoice> themes READ themes CONSTANT FINAL)
    Q_PROPERTY(QString currentThemeID READ currentThemeID NOTIFY themeChanged FINAL)
    Q_PROPERTY(double zoom READ zoom NOTIFY zoomChanged FINAL)
    Q_PROPERTY(double pointsPerPixel READ pointsPerPixel CONSTANT FINAL)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT FINAL)
    Q_PROPERTY(QString iconFamily READ iconFamily CONSTANT FINAL)
    Q_PROPERTY(QString shadowSource READ shadowSource CONSTANT FINAL)

public:
    static VLUI* create(QQmlEngine* engine, QJSEngine* scripts);

    explicit VLUI(QObject* parent);

    QColor bg() const { return m_colors.bg; }
    QColor text() const { return m_colors.text; }
    QColor dim() const { return m_colors.dim; }
    QColor rim() const { return m_colors.rim; }
    QColor accent() const { return m_colors.accent; }
    QColor panelTop() const { return m_colors.panelTop; }
    QColor panelBottom() const { return m_colors.panelBottom; }
    QColor leaf() const { return OMColors::leaf(); }
    QColor warmLight() const { return OMColors::warmLight(); }
    QColor stone() const { return OMColors::stone(); }
    QColor emergency() const { return OMColors::emergency(); }
    QColor soon() const { return OMColors::soon(); }
    QColor monitor() const { return OMColors::monitor(); }
    QColor alert() const { return OMColors::alert(); }
    QList<ThemeChoice> themes() const;
    /// The id of the theme on show, which may not be the stored one when that is unknown.
    QString currentThemeID() const { return m_themeID; }
    double zoom() const { return m_zoom; }
    /// What a type size in pixels is multiplied by to be a point size. Only point sizes may have fractions.
    double pointsPerPixel() const;
    /// The application's font, for the items that the platform would give another.
    QString fontFamily() const;
    QString iconFamily() const;
    QString shadowSource() const;

    /// Stores the theme of that id; a failure becomes the waiting message.
    Q_INVOKABLE void chooseTheme(const QString& id);
    /// `base` at an opacity from 0 to 1.
    Q_INVOKABLE QColor at(QColor base, double opacity) const;
    /// The mixture of two opaque colours, `part` (0 to 1) of it the second.
    Q_INVOKABLE QColor mix(const QColor& first, const QColor& second, double part) const;
    /// White or a near black, whichever is easier to read on an opaque `ground`.
    Q_INVOKABLE QColor inkOn(const QColor& ground) const;

Q_SIGNALS:
    void themeChanged();
    void zoomChanged();

private:
    void follow(const QString& key);
    void readTheme();

    VLKitTheme m_colors;
    QString m_themeID;
    double m_zoom = 1;
};

} // namespace ormiva
