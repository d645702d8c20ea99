#pragma once

class QQuickWindow;

namespace ormiva {

class OMStore;

/// The records' file is looked over once per run, beside the main thread and after the window is up.
namespace DamageReport {

/// Checks the file of `store` (nothing when null) after the window's first frame; what is damaged is told to
/// the user.
void afterFirstFrame(QQuickWindow& window, OMStore* store);

} // namespace DamageReport

} // namespace ormiva
