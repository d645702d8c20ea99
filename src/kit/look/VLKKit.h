#pragma once

#include "VLKHelp.h"
#include "VLKTheme.h"

#include <QList>
#include <QString>

/// What an application tells the shared interface kit once, at start-up.
namespace ormiva::VLKKit {

void install(const QString& appName, const QList<VLKHelpTopic>& helpTopics,
             const QList<VLKTheme>& extraThemes);
const QString& appName();

} // namespace ormiva::VLKKit
