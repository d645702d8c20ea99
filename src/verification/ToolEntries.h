#pragma once

#include <QStringList>

#include <optional>

namespace ormiva {

/// The command-line tools in this executable, asked in a fixed order. Gives the exit status of the tool whose
/// flag is among `arguments` (the program's name left out), or nothing when the window is wanted. A flag is
/// looked for anywhere; one that takes a path uses the argument behind it, and without one counts as not
/// given. Unknown flags are ignored. No tool needs a display or touches the user's own records.
std::optional<int> runTool(const QStringList& arguments);

} // namespace ormiva
