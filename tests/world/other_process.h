#pragma once

#include <array>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace qf::world {

/// Another process at work on the database. The work calls its argument once it has come as far as the test
/// wants; the process then lives until it is killed.
class OtherProcess {
  public:
    explicit OtherProcess(const std::function<void(const std::function<void()>&)>& work)
    {
        std::array<int, 2> ready{};
        if (::pipe(ready.data()) != 0) {
            return;
        }
        child_ = ::fork();
        if (child_ == 0) {
            ::close(ready[0]);
            try {
                work([&] { [[maybe_unused]] const auto sent = ::write(ready[1], "r", 1); });
                ::pause();
            } catch (...) { // NOLINT(bugprone-empty-catch)
            }
            ::_exit(1);
        }
        ::close(ready[1]);
        char signal = 0;
        isReady_ = ::read(ready[0], &signal, 1) == 1;
        ::close(ready[0]);
    }
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    bool IsReady() const { return isReady_; }
    void Kill()
    {
        if (child_ > 0) {
            ::kill(child_, SIGKILL);
            ::waitpid(child_, nullptr, 0);
            child_ = -1;
        }
    }

  private:
    pid_t child_ = -1;
    bool  isReady_ = false;
};

} // namespace qf::world
