#pragma once

#include "model/Date.h"

#include <QByteArray>
#include <QString>
#include <optional>

// The car's event.json, read with tolerance: one odd field costs only that
// field. Decoding fails only when the text is not a JSON object.
struct EventJSONPayload {
    std::optional<QString> timestampRaw;
    std::optional<QString> city;
    std::optional<QString> street;
    std::optional<double> estLat;
    std::optional<double> estLon;
    std::optional<QString> reason;
    std::optional<QString> cameraRaw;

    // Zoned ISO 8601, then local "yyyy-MM-ddTHH:mm:ss", then the folder-name style.
    std::optional<Date> parsedTimestamp() const;

    static std::optional<EventJSONPayload> decode(const QByteArray &data);
};
