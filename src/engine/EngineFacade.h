#pragma once

#include "engine/BookmarkAccess.h"
#include "engine/DriveAccess.h"
#include "engine/ExportAccess.h"
#include "engine/MomentsAccess.h"
#include "engine/SettingsAccess.h"
#include "engine/TelemetryAccess.h"
#include "engine/TriageAccess.h"
#include "engine/VaultAccess.h"

// The one interface between the application state and everything that
// touches a disk, a volume or the settings. Callers never learn which
// implementation they hold; one that needs only a part takes only that
// role.
//
// An operation that returns a QFuture works off the caller's thread; its
// errors travel in the future as exceptions of their own type, and
// cancelling the future asks the work to stop. Every other operation runs
// on the caller's thread. Progress callbacks come from the thread the work
// runs on: the receiver moves to its own thread itself. Paths are absolute.
class EngineFacade : public DriveAccess,
                     public BookmarkAccess,
                     public VaultAccess,
                     public TriageAccess,
                     public TelemetryAccess,
                     public MomentsAccess,
                     public ExportAccess,
                     public SettingsAccess {
public:
    ~EngineFacade() override = default;
};
