#pragma once

#include "model/Camera.h"
#include "model/EventTelemetry.h"
#include "model/TeslaEvent.h"

#include <QFuture>

// The engine's part that reads the driving data the clips carry: all the
// player and the map need of it.
class TelemetryAccess {
public:
    virtual ~TelemetryAccess() = default;

    // The driving data one camera's clips of an event carry, on the event's
    // time axis; without records when the clips have none. For drive and
    // Vault events alike; a clip that can't be read is left out.
    virtual QFuture<EventTelemetry> loadTelemetry(const TeslaEvent &event, Camera camera) = 0;
};
