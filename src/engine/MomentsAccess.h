#pragma once

#include "model/TeslaEvent.h"
#include "moments/EventActivity.h"

#include <QFuture>

// The engine's part that finds where to look in an event: each camera's
// activity, worked out from the clips' headers and kept between runs.
class MomentsAccess {
public:
    virtual ~MomentsAccess() = default;
    // For drive and Vault events alike; a clip that can't be read is left
    // out. The reads the user waits on (an event opening) go first.
    virtual QFuture<EventActivity> loadActivity(const TeslaEvent &event) = 0;
};
