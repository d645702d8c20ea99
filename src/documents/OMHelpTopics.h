#pragma once

#include "VLKHelp.h"

namespace ormiva {

/// The texts of the application's manual. "{appName}", "{creditLine}", "{species count}", "{notAVet}",
/// "{doseNote}", "{poisonPhone}" and "{footer}" stand for what `OMHelp::topics` puts there.
const QList<VLKHelpTopic>& helpTopicTexts();

} // namespace ormiva
