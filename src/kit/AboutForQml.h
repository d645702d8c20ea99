#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// What the about box says, for QML, where it is called `VLKAbout`. Whoever has the window for it listens to
/// `requested`.
class AboutForQml final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(VLKAbout)
    QML_SINGLETON
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(QStringList extraLines READ extraLines CONSTANT FINAL)
    Q_PROPERTY(QString website READ website CONSTANT FINAL)
    Q_PROPERTY(QString websiteName READ websiteName CONSTANT FINAL)

public:
    AboutForQml();
    ~AboutForQml() override;

    QString version() const;
    QStringList extraLines() const;
    QString website() const;
    /// The website's host.
    QString websiteName() const;
    /// Asked anew each time, since the year may turn.
    Q_INVOKABLE QString closingLine() const;
    Q_INVOKABLE void show() const;

Q_SIGNALS:
    void requested();
};

} // namespace ormiva
