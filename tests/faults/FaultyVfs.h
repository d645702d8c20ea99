#pragma once

#include <string>
#include <vector>

namespace ormiva::testing {

/// What SQLite meets when it uses a file.
enum class DiskTrouble {
    Broken,     ///< an input/output error
    Full,       ///< no space
    ShortWrite, ///< half is written, then there is no space
    CannotOpen, ///< the file can't be opened; other calls fail with an input/output error
    Locked,     ///< locks are refused once; other calls fail with an input/output error
    Killed,     ///< the process ends with SIGKILL
};

/// Stands between SQLite and the disk while it exists, counts SQLite's calls from 1 and lets some of them
/// fail. Only one at a time.
class FaultyVfs {
public:
    /// The call number `first` fails, and when `lasting` all after it; 0 lets none fail.
    explicit FaultyVfs(int first = 0, DiskTrouble trouble = DiskTrouble::Broken, bool lasting = false);
    ~FaultyVfs();
    FaultyVfs(const FaultyVfs&) = delete;
    FaultyVfs& operator=(const FaultyVfs&) = delete;

    /// The calls so far, as "xWrite".
    const std::vector<std::string>& calls() const;
    bool hasFailed() const;
    /// From here on nothing fails.
    void recover();
};

} // namespace ormiva::testing
