#include "ToolEntries.h"

#include <array>
#include <cstdio>

namespace ormiva {

namespace {

struct ToolEntry {
    QStringView flag;
    bool takesPath;
    /// `path` is empty for a flag without one.
    int (*run)(QStringView flag, const QString& path);
};

constexpr int statusNotBuilt = 70; // EX_SOFTWARE of sysexits.h

int notBuiltYet(QStringView flag, const QString&) {
    std::printf("%s is not part of this version of Ormiva yet.\n", flag.toUtf8().constData());
    return std::fflush(stdout) == 0 ? statusNotBuilt : 1;
}

/// In the order in which they are asked: the first whose flag is given decides.
constexpr std::array<ToolEntry, 6> entries = {{
    {u"--om-child-write", true, notBuiltYet},
    {u"--om-child-read", true, notBuiltYet},
    {u"--om-child-prefs", false, notBuiltYet},
    {u"--om-snapshots", true, notBuiltYet},
    {u"--om-example-care-sheet", true, notBuiltYet},
    {u"--selftest", false, notBuiltYet},
}};

} // namespace

std::optional<int> runTool(const QStringList& arguments) {
    for (const ToolEntry& entry : entries) {
        const qsizetype at = arguments.indexOf(entry.flag);
        if (at < 0 || (entry.takesPath && at + 1 >= arguments.size()))
            continue;
        return entry.run(entry.flag, entry.takesPath ? arguments.at(at + 1) : QString());
    }
    return std::nullopt;
}

} // namespace ormiva
