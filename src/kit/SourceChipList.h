#pragma once

#include "SourceRef.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// A chip under a care text: the sources that share one short name.
struct SourceChip {
    Q_GADGET
    QML_VALUE_TYPE(sourceChip)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString tip READ tip)
    Q_PROPERTY(QList<ormiva::SourceRef> sources MEMBER sources)

public:
    QString title;
    QList<SourceRef> sources;

    /// "{title} (checked {day})" of its sources, one to a line.
    QString tip() const;

    friend bool operator==(const SourceChip&, const SourceChip&) = default;
};

/// The chips for those source keys, in the order in which each short name is first met. Keys that the library
/// doesn't know are dropped.
QList<SourceChip> sourceChips(const QStringList& keys);

/// The chips of `keys` for QML.
class SourceChipList : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList keys READ keys WRITE setKeys NOTIFY keysChanged FINAL)
    Q_PROPERTY(QList<ormiva::SourceChip> chips READ chips NOTIFY keysChanged FINAL)

public:
    explicit SourceChipList(QObject* parent = nullptr);

    const QStringList& keys() const { return m_keys; }
    void setKeys(const QStringList& keys);
    const QList<SourceChip>& chips() const { return m_chips; }

Q_SIGNALS:
    void keysChanged();

private:
    QStringList m_keys;
    QList<SourceChip> m_chips;
};

} // namespace ormiva
