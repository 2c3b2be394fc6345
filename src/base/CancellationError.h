#pragma once

#include <exception>

// Raised when the caller cancelled the work. Never a failure to report:
// whoever cancelled knows why.
class CancellationError : public std::exception {
public:
    const char *what() const noexcept override { return "The operation was cancelled."; }
};
