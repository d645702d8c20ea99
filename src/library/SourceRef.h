#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace ormiva {

/// One cited web page.
struct SourceRef {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString publisher MEMBER publisher)
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString url MEMBER url)
    Q_PROPERTY(QString checked MEMBER checked)
    Q_PROPERTY(QString shortName READ shortName)

public:
    QString key;
    QString publisher;
    QString kind; ///< what sort of body the publisher is
    QString title;
    QString url;
    QString checked; ///< the day on which the page was last read, yyyy-MM-dd

    /// The name on a source chip: a known short form, else the publisher up to its first " (".
    QString shortName() const;

    friend bool operator==(const SourceRef&, const SourceRef&) = default;
};

/// The whole of sources.json.
struct SourceFile {
    QString checked; ///< the day on which the whole list was last checked, shown as it stands
    QList<SourceRef> sources;
};

} // namespace ormiva
