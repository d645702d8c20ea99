#pragma once

#include "CareLines.h"

#include <QQuickTextDocument>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// Lays a care text out in the document of a TextEdit: a block a line, bullet rows as list items.
class CareDocument : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document READ document WRITE setDocument NOTIFY documentChanged FINAL)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged FINAL)
    Q_PROPERTY(QList<ormiva::CareLine> lines READ lines NOTIFY textChanged FINAL)

public:
    explicit CareDocument(QObject* parent = nullptr);

    QQuickTextDocument* document() const { return m_document; }
    void setDocument(QQuickTextDocument* document);
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    /// The type size in points, on which the indent of the bullets hangs.
    double size() const { return m_size; }
    void setSize(double size);
    QList<CareLine> lines() const { return careLines(m_text); }

Q_SIGNALS:
    void documentChanged();
    void textChanged();
    void sizeChanged();

private:
    void write();

    QQuickTextDocument* m_document = nullptr;
    QString m_text;
    double m_size = 13;
};

} // namespace ormiva
