#pragma once

#include <csignal>
#include <stop_token>
#include <thread>

// Ctrl-C or a polite kill stops long work (an export, a report) the way the
// app's Stop does, so a half-written file is cleaned up instead of left
// behind. One at a time.
namespace CliInterrupt {

class StopsWork {
public:
    StopsWork();
    ~StopsWork();
    StopsWork(const StopsWork &) = delete;
    StopsWork &operator=(const StopsWork &) = delete;
    std::stop_token token() const { return source_.get_token(); }

private:
    std::stop_source source_;
    struct sigaction previousInt_ {};
    struct sigaction previousTerm_ {};
    std::jthread watcher_;
};

} // namespace CliInterrupt
