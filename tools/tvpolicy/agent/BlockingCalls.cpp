#include "agent/BlockingCalls.h"

#include <csignal>
#include <exception>
#include <memory>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli::agent {

namespace {

// What the waiting thread and the call's thread share; the call's thread keeps it alive when it
// is left behind.
struct CallState {
    CallState()
    {
        int fds[2];
        if (::pipe2(fds, O_CLOEXEC) != 0) {
            throw std::runtime_error("cannot create the pipe of a background call");
        }
        doneRead.reset(fds[0]);
        doneWrite.reset(fds[1]);
    }

    OwnedFd doneRead;  // readable once the call has returned
    OwnedFd doneWrite;
    std::exception_ptr failure;
};

// While alive, the signals the agent handles are blocked on this thread, and so on the threads it
// starts: they reach the waiting thread, and never interrupt a call's system calls half-way.
class AgentSignalsBlocked {
public:
    AgentSignalsBlocked()
    {
        sigset_t handled;
        sigemptyset(&handled);
        for (int signal : {SIGINT, SIGTERM, SIGHUP}) {
            sigaddset(&handled, signal);
        }
        ::pthread_sigmask(SIG_BLOCK, &handled, &saved_);
    }
    ~AgentSignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &saved_, nullptr); }
    AgentSignalsBlocked(const AgentSignalsBlocked&) = delete;
    AgentSignalsBlocked& operator=(const AgentSignalsBlocked&) = delete;

private:
    sigset_t saved_{};
};

bool readableWithin(int fd, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        struct pollfd wait {
            fd, POLLIN, 0
        };
        int ready = ::poll(&wait, 1, static_cast<int>(std::max<long long>(left.count(), 0)));
        if (ready > 0) {
            return true;
        }
        if (ready == 0 || left.count() <= 0) {
            return false;
        }
    }
}

}  // namespace

BlockingCalls::BlockingCalls(AgentSignals& signals, CommandGroups& commands, Abandon abandon,
                             std::chrono::milliseconds grace)
    : signals_(signals),
      commands_(commands),
      abandon_(std::move(abandon)),
      grace_(grace)
{
}

bool BlockingCalls::perform(const std::string& what, std::function<void()> work)
{
    if (signals_.stopFlag()) {
        return false;
    }
    auto state = std::make_shared<CallState>();
    std::thread call;
    {
        AgentSignalsBlocked blocked;
        call = std::thread([state, work = std::move(work)] {
            try {
                work();
            } catch (...) {
                state->failure = std::current_exception();
            }
            char byte = 1;
            (void)::write(state->doneWrite.get(), &byte, 1);
        });
    }
    if (!signals_.waitForStopOr(state->doneRead.get())) {
        call.join();
        if (state->failure) {
            std::rethrow_exception(state->failure);
        }
        return true;
    }
    commands_.end();
    if (readableWithin(state->doneRead.get(), grace_)) {
        call.join();
        return false;
    }
    call.detach();
    abandon_(what);
    std::terminate();  // abandon_ ends the program; returning would unwind what the call still uses
}

}  // namespace tvpolicy::cli::agent
