#pragma once

/// How the screens are being drawn.
namespace ormiva::OMRender {

/// True while screens are drawn into picture files, with no window around them. Lists and scrollers are then
/// as high as what they hold, and nothing moves or appears late. It is set before the first page is made and
/// stays.
inline bool snapshotMode = false;

} // namespace ormiva::OMRender
