#pragma once

#include <QObject>
#include <QQuickTextDocument>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// Writes a topic of the manual into the document of a text item: headings, bullets and paragraphs.
class HelpDocument : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document MEMBER m_document WRITE setDocument)
    Q_PROPERTY(QString body READ body WRITE setBody NOTIFY bodyChanged FINAL)
    Q_PROPERTY(double pointsPerPixel MEMBER m_pointsPerPixel)

public:
    using QObject::QObject;

    void setDocument(QQuickTextDocument* document);
    const QString& body() const { return m_body; }
    void setBody(const QString& body);

Q_SIGNALS:
    void bodyChanged();

private:
    void write();

    QQuickTextDocument* m_document = nullptr;
    QString m_body;
    double m_pointsPerPixel = 0.75;
};

} // namespace ormiva
