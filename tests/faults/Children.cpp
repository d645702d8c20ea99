#include "Children.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ormiva::testing {

namespace {

constexpr unsigned nobody = 65534;

[[noreturn]] void stop(const char* what) {
    std::perror(what);
    std::abort();
}

} // namespace

int runUnprivileged(const std::function<int()>& body) {
    const int pid = fork();
    if (pid < 0)
        stop("fork");
    if (pid == 0) {
        if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0))
            _exit(126);
        _exit(body());
    }
    int status = 0;
    if (waitpid(pid, &status, 0) != pid)
        stop("waitpid");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

HeldChild::HeldChild(const std::function<void(const std::function<void()>& ready)>& body) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        stop("pipe");
    m_pid = fork();
    if (m_pid < 0)
        stop("fork");
    if (m_pid == 0) {
        body([&] {
            if (write(ends[1], "r", 1) != 1)
                _exit(1);
        });
        _exit(0);
    }
    close(ends[1]);
    char answer = 0;
    if (read(ends[0], &answer, 1) != 1)
        stop("the child ended too early");
    close(ends[0]);
}

HeldChild::~HeldChild() {
    kill(m_pid, SIGKILL);
    waitpid(m_pid, nullptr, 0);
}

} // namespace ormiva::testing
