#include "FailingSystem.h"

#include <cerrno>
#include <csignal>
#include <system_error>
#include <unistd.h>

namespace ormiva::testing {

namespace {

int errnoOf(Trouble trouble) {
    switch (trouble) {
    case Trouble::Refused:
        return EACCES;
    case Trouble::Broken:
        return EIO;
    case Trouble::Busy:
        return EBUSY;
    case Trouble::NoSpace:
    case Trouble::ShortWrite:
    case Trouble::Killed:
        break;
    }
    return ENOSPC;
}

} // namespace

QString systemWords(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

bool FailingSystem::fails(const std::string& call) {
    m_calls.push_back(call);
    const int number = static_cast<int>(m_calls.size());
    if (m_first == 0 || (m_lasting ? number < m_first : number != m_first))
        return false;
    if (m_trouble == Trouble::Killed)
        ::raise(SIGKILL);
    ++m_failures;
    errno = errnoOf(m_trouble);
    return true;
}

int FailingSystem::open(const char* path, int flags, mode_t mode) {
    return fails(std::string("open ") + path) ? -1 : SystemCalls::open(path, flags, mode);
}

ssize_t FailingSystem::read(int file, void* bytes, std::size_t size) {
    return fails("read") ? -1 : SystemCalls::read(file, bytes, size);
}

ssize_t FailingSystem::write(int file, const void* bytes, std::size_t size) {
    if (!fails("write"))
        return SystemCalls::write(file, bytes, size);
    if (m_trouble != Trouble::ShortWrite || size < 2)
        return -1;
    m_first =
        static_cast<int>(m_calls.size()) + 1; // The next one, which wants to write the rest, fails as well.
    m_trouble = Trouble::NoSpace;
    return SystemCalls::write(file, bytes, size / 2);
}

int FailingSystem::fsync(int file) {
    return fails("fsync") ? -1 : SystemCalls::fsync(file);
}

int FailingSystem::close(int file) {
    const bool failing = fails("close");
    const int error = errno;
    const int result = SystemCalls::close(file); // A close that fails has closed all the same.
    errno = error;
    return failing ? -1 : result;
}

int FailingSystem::link(const char* from, const char* to) {
    return fails(std::string("link ") + from + " " + to) ? -1 : SystemCalls::link(from, to);
}

int FailingSystem::rename(const char* from, const char* to) {
    return fails(std::string("rename ") + from + " " + to) ? -1 : SystemCalls::rename(from, to);
}

int FailingSystem::unlink(const char* path) {
    return fails(std::string("unlink ") + path) ? -1 : SystemCalls::unlink(path);
}

int FailingSystem::stat(const char* path, struct stat* result) {
    return fails(std::string("stat ") + path) ? -1 : SystemCalls::stat(path, result);
}

} // namespace ormiva::testing
