#pragma once

#include <functional>

/// Child processes for what a test can't do in its own: losing privileges, holding a lock, being killed.
namespace ormiva::testing {

/// Runs `body` in a child that has no privileges and gives its exit status (body's result, or 128 + the
/// signal).
int runUnprivileged(const std::function<int()>& body);

/// Runs `body` in a child until this object ends it with SIGKILL. The constructor returns once the child has
/// called the function that it is given; a body that ends before that aborts the test program.
class HeldChild {
public:
    explicit HeldChild(const std::function<void(const std::function<void()>& ready)>& body);
    ~HeldChild();
    HeldChild(const HeldChild&) = delete;
    HeldChild& operator=(const HeldChild&) = delete;

private:
    int m_pid = -1;
};

} // namespace ormiva::testing
