#pragma once

#include "model/ReasonCategory.h"

#include <QJsonObject>
#include <QString>
#include <optional>

// The interpreted reason of an event, with the words the user reads.
struct PlainReason {
    ReasonCategory category = ReasonCategory::unknown;
    std::optional<QString> raw;
    std::optional<double> accelValue;

    QString label() const;
    QString shortLabel() const;
    QString symbolName() const;
    QString blurb() const;
    // Bumps and alarms are what an owner most needs to keep.
    bool isUrgentForProtection() const
    {
        return category == ReasonCategory::impact || category == ReasonCategory::panic;
    }

    bool operator==(const PlainReason &) const = default;

    QJsonObject toJson() const;
    static PlainReason fromJson(const QJsonValue &value);
};

size_t qHash(const PlainReason &r, size_t seed = 0) noexcept;
