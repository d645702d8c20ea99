#include "HelpForQml.h"

namespace ormiva {

namespace {

std::optional<QString> given(const QString& id) {
    return id.isEmpty() ? std::nullopt : std::optional(id);
}

} // namespace

HelpForQml::HelpForQml() {
    VLKHelp::opener = [this](const std::optional<QString>& topic) {
        Q_EMIT requested(topic.value_or(QString()));
    };
}

HelpForQml::~HelpForQml() {
    VLKHelp::opener = nullptr;
}

QList<VLKHelpTopic> HelpForQml::search(const QString& query) const {
    return VLKHelp::search(query);
}

VLKHelpTopic HelpForQml::current(const QString& selected, const QString& initial,
                                 const QString& query) const {
    return VLKHelp::current(given(selected), given(initial), VLKHelp::search(query)).value_or(VLKHelpTopic());
}

void HelpForQml::show(const QString& topic) const {
    VLKHelp::show(given(topic));
}

} // namespace ormiva
