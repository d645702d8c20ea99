#include "VLKKit.h"

#include "VLKThemes.h"

namespace ormiva::VLKKit {

namespace {
QString& storedName() {
    static QString name;
    return name;
}
} // namespace

void install(const QString& appName, const QList<VLKHelpTopic>& helpTopics,
             const QList<VLKTheme>& extraThemes) {
    storedName() = appName;
    VLKHelp::topics = helpTopics;
    VLKThemes::registerThemes(extraThemes);
}

const QString& appName() {
    return storedName();
}

} // namespace ormiva::VLKKit
