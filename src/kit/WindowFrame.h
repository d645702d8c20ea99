#pragma once

#include <QPointer>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// Keeps where a window stands and how large it is under a key of the preferences, and brings it back there,
/// inside a screen that is there now.
class WindowFrame : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged FINAL)
    Q_PROPERTY(QString key MEMBER m_key)

public:
    explicit WindowFrame(QObject* parent = nullptr);
    ~WindowFrame() override;

    QQuickWindow* window() const { return m_window; }
    void setWindow(QQuickWindow* window);

    /// Puts the window where it was; in the middle of its screen when nothing usable is stored or there is no
    /// key. To be called before the window is shown for the first time.
    Q_INVOKABLE void restore();
    /// Stores where the window is now, unless it was never shown.
    void save();

    /// `frame` made to fit into `room`: as large as it may be, and moved inside.
    static QRect inside(const QRect& frame, const QRect& room);

Q_SIGNALS:
    void windowChanged();

private:
    void changed();

    QPointer<QQuickWindow> m_window;
    QString m_key;
    QTimer m_settled;
};

} // namespace ormiva
