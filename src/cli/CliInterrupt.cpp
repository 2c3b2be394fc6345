#include "cli/CliInterrupt.h"

#include <atomic>
#include <chrono>

namespace CliInterrupt {

namespace {
std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void onInterrupt(int)
{
    interrupted.store(true);
}
} // namespace

StopsWork::StopsWork()
{
    struct sigaction action {};
    action.sa_handler = onInterrupt;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previousInt_);
    sigaction(SIGTERM, &action, &previousTerm_);
    watcher_ = std::jthread([this](std::stop_token done) {
        while (!done.stop_requested()) {
            if (interrupted.load()) {
                source_.request_stop();
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    });
}

StopsWork::~StopsWork()
{
    watcher_ = std::jthread();
    sigaction(SIGINT, &previousInt_, nullptr);
    sigaction(SIGTERM, &previousTerm_, nullptr);
}

} // namespace CliInterrupt
