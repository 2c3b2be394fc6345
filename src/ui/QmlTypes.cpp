#include "QmlTypes.h"

#include "EventPlayerPresenter.h"
#include "ExportFlow.h"
#include "FileHandOff.h"
#include "KeyboardHints.h"
#include "ListPlayerKeyRouter.h"
#include "PlayerDrivingData.h"
#include "PlayerKeyboardShortcuts.h"
#include "PlayerLayout.h"
#include "SpeedStrip.h"
#include "ActivityStrip.h"
#include "PlayerMoments.h"
#include "VideoMirror.h"
#include "playback/SyncPlayerController.h"
#include "playback/TrackPlayer.h"
#include "state/DriveFailure.h"
#include "state/SidebarSection.h"

#include <QtQml>

namespace QmlTypes {

void registerAll()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const char *uri = "Keelhold";
    qmlRegisterUncreatableMetaObject(SidebarSection::staticMetaObject, uri, 1, 0, "SidebarSection",
                                     QStringLiteral("an enumeration"));
    qmlRegisterUncreatableMetaObject(DriveFailure::staticMetaObject, uri, 1, 0, "DriveFailure",
                                     QStringLiteral("an enumeration"));
    qmlRegisterType<EventPlayerPresenter>(uri, 1, 0, "EventPlayerPresenter");
    qmlRegisterType<PlayerKeyboardShortcuts>(uri, 1, 0, "PlayerKeyboardShortcutsRouter");
    qmlRegisterType<ListPlayerKeyRouter>(uri, 1, 0, "ListPlayerKeyRouter");
    qmlRegisterType<KeyboardHints>(uri, 1, 0, "KeyboardHints");
    qmlRegisterType<PlayerLayout>(uri, 1, 0, "PlayerLayout");
    qmlRegisterType<FileHandOff>(uri, 1, 0, "FileHandOff");
    qmlRegisterType<VideoMirror>(uri, 1, 0, "VideoMirror");
    qmlRegisterUncreatableType<ExportFlow>(uri, 1, 0, "ExportFlow", QStringLiteral("made by the player screen"));
    qmlRegisterUncreatableType<SyncPlayerController>(uri, 1, 0, "SyncPlayerController",
                                                     QStringLiteral("made by the player screen"));
    qmlRegisterUncreatableType<PlayerDrivingData>(uri, 1, 0, "PlayerDrivingData",
                                                  QStringLiteral("made by the player screen"));
    qmlRegisterType<SpeedStrip>(uri, 1, 0, "SpeedStrip");
    qmlRegisterType<ActivityStrip>(uri, 1, 0, "ActivityStrip");
    qmlRegisterUncreatableType<PlayerMoments>(uri, 1, 0, "PlayerMoments", QStringLiteral("made by the player screen"));
    qmlRegisterUncreatableType<TrackPlayer>(uri, 1, 0, "TrackPlayer", QStringLiteral("made by the controller"));
}

} // namespace QmlTypes
