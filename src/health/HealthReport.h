#pragma once

#include "health/Recommendation.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// How a drive is doing: fullness, damaged clips, format, unkept events, and
// what to do about it.
struct HealthReport {
    std::optional<double> fullnessFraction; // 0…1; absent when unknown
    int corruptClipCount = 0;
    int probedClipCount = 0;
    QString formatVerdict;
    bool encryptedClipsPresent = false;
    int unarchivedEventCount = 0;
    std::vector<Recommendation> recommendations; // never empty, most severe first

    bool operator==(const HealthReport &) const = default;

    // For the command-line tool; severities as their names.
    QJsonObject toJson() const;
};
