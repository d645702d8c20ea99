#pragma once

#include "VLKHelp.h"

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

struct HelpTopicForQml {
    Q_GADGET
    QML_FOREIGN(ormiva::VLKHelpTopic)
    QML_VALUE_TYPE(helpTopic)
};

/// The manual for QML, where it is called `VLKHelp`. Whoever has the window for it listens to `requested`.
class HelpForQml final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(VLKHelp)
    QML_SINGLETON
    Q_PROPERTY(QList<ormiva::VLKHelpTopic> topics READ topics CONSTANT FINAL)

public:
    HelpForQml();
    ~HelpForQml() override;

    QList<VLKHelpTopic> topics() const { return VLKHelp::allTopics(); }
    Q_INVOKABLE QList<ormiva::VLKHelpTopic> search(const QString& query) const;
    /// The topic on show; an empty id stands for none, and a topic with an empty id for no topic.
    Q_INVOKABLE ormiva::VLKHelpTopic current(const QString& selected, const QString& initial,
                                             const QString& query) const;
    /// Shows the manual, on that topic unless the id is empty.
    Q_INVOKABLE void show(const QString& topic = {}) const;

Q_SIGNALS:
    void requested(const QString& topic);
};

} // namespace ormiva
