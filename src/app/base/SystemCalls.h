#pragma once

#include <cstddef>
#include <sys/stat.h>
#include <sys/types.h>

namespace ormiva {

/// The system calls behind `Files`, so that a test can make any of them fail. Results and errno are those of
/// the calls of the same names.
class SystemCalls {
public:
    SystemCalls() = default;
    virtual ~SystemCalls() = default;
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    /// The machine's.
    static SystemCalls& real();

    virtual int open(const char* path, int flags, mode_t mode);
    virtual ssize_t read(int file, void* bytes, std::size_t size);
    virtual ssize_t write(int file, const void* bytes, std::size_t size);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int link(const char* from, const char* to);
    virtual int rename(const char* from, const char* to);
    virtual int unlink(const char* path);
    virtual int stat(const char* path, struct stat* result);
};

} // namespace ormiva
