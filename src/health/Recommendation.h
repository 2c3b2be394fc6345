#pragma once

#include <QString>

// One piece of advice of the health report, in plain English.
struct Recommendation {
    // Ordered by raw value; `urgent` is never produced by the computer but
    // stays for the screen.
    enum class Severity : int { info = 0, advice = 1, warning = 2, urgent = 3 };

    QString id;
    Severity severity = Severity::info;
    QString title;
    QString detail;
    QString symbolName;

    bool operator==(const Recommendation &) const = default;
};

size_t qHash(const Recommendation &r, size_t seed = 0) noexcept;
