#pragma once

#include "SystemCalls.h"

#include <QString>

#include <string>
#include <vector>

namespace ormiva::testing {

/// What goes wrong with a call.
enum class Trouble {
    Refused,    ///< EACCES
    NoSpace,    ///< ENOSPC
    Broken,     ///< EIO
    Busy,       ///< EBUSY
    ShortWrite, ///< half is written, the rest finds no space; other calls fail with ENOSPC
    Killed,     ///< the process ends with SIGKILL
};

/// The system's own words for an errno value, in the language of the run.
QString systemWords(int error);

/// The machine's calls, of which some fail. Calls are counted from 1.
class FailingSystem : public SystemCalls {
public:
    /// Nothing fails.
    FailingSystem() = default;
    /// The call number `first` fails, and when `lasting` all after it.
    FailingSystem(int first, Trouble trouble, bool lasting = false)
        : m_first(first)
        , m_trouble(trouble)
        , m_lasting(lasting) {}

    /// The calls so far, failed ones included: "open /a", "rename /a /b".
    const std::vector<std::string>& calls() const { return m_calls; }
    bool hasFailed() const { return m_failures > 0; }
    /// From here on nothing fails.
    void recover() { m_first = 0; }

    int open(const char* path, int flags, mode_t mode) override;
    ssize_t read(int file, void* bytes, std::size_t size) override;
    ssize_t write(int file, const void* bytes, std::size_t size) override;
    int fsync(int file) override;
    int close(int file) override;
    int link(const char* from, const char* to) override;
    int rename(const char* from, const char* to) override;
    int unlink(const char* path) override;
    int stat(const char* path, struct stat* result) override;

private:
    /// Counts a call; true when it must fail, with errno set.
    bool fails(const std::string& call);

    int m_first = 0;
    Trouble m_trouble = Trouble::Broken;
    bool m_lasting = false;
    int m_failures = 0;
    std::vector<std::string> m_calls;
};

} // namespace ormiva::testing
