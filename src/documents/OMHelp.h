#pragma once

#include "VLKHelp.h"

namespace ormiva {

class CareLibrary;

/// The application's own pages of the manual, with the figures of a care library filled in.
namespace OMHelp {

/// All of them, the credits last.
QList<VLKHelpTopic> topics(const CareLibrary& library);
/// Every source by its publisher.
VLKHelpTopic creditsTopic(const CareLibrary& library);

} // namespace OMHelp
} // namespace ormiva
