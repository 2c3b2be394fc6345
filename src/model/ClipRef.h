#pragma once

#include "model/Camera.h"
#include "model/ClipHealth.h"
#include "model/Date.h"

#include <QJsonObject>
#include <QString>
#include <optional>

// One file of one camera, normally one minute of footage.
struct ClipRef {
    QString url; // absolute path
    Camera camera = Camera::front;
    Date startDate;
    qint64 fileSize = 0;
    std::optional<double> duration;
    ClipHealth health = ClipHealth::unknown;

    QString id() const { return url; }
    QString fileName() const;

    bool operator==(const ClipRef &) const = default;

    QJsonObject toJson() const;
    static ClipRef fromJson(const QJsonValue &value);
};

size_t qHash(const ClipRef &c, size_t seed = 0) noexcept;

// Clip order: start date ascending, then the cameras' grid order. Stable.
namespace ClipOrder {
bool lessThan(const ClipRef &a, const ClipRef &b);
void sort(std::vector<ClipRef> &clips);
} // namespace ClipOrder
