#include "SystemCalls.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace ormiva {

SystemCalls& SystemCalls::real() {
    static SystemCalls calls;
    return calls;
}

int SystemCalls::open(const char* path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
}

ssize_t SystemCalls::read(int file, void* bytes, std::size_t size) {
    return ::read(file, bytes, size);
}

ssize_t SystemCalls::write(int file, const void* bytes, std::size_t size) {
    return ::write(file, bytes, size);
}

int SystemCalls::fsync(int file) {
    return ::fsync(file);
}

int SystemCalls::close(int file) {
    return ::close(file);
}

int SystemCalls::link(const char* from, const char* to) {
    return ::link(from, to);
}

int SystemCalls::rename(const char* from, const char* to) {
    return ::rename(from, to);
}

int SystemCalls::unlink(const char* path) {
    return ::unlink(path);
}

int SystemCalls::stat(const char* path, struct stat* result) {
    return ::stat(path, result);
}

} // namespace ormiva
