#include "SymbolIcons.h"

#include <QFileInfo>
#include <QHash>
#include <QUrl>

namespace SymbolIcons {
namespace {

const QHash<QString, QString> &table()
{
    static const QHash<QString, QString> t{
        // Sidebar and shell
        {QStringLiteral("externaldrive.connected.to.line.below"), QStringLiteral("devices/drive-harddisk-usb")},
        {QStringLiteral("lock.shield"), QStringLiteral("status/security-high")},
        {QStringLiteral("map"), QStringLiteral("actions/mark-location")},
        {QStringLiteral("waveform.path.ecg"), QStringLiteral("status/power-profile-balanced")},
        {QStringLiteral("questionmark.circle"), QStringLiteral("legacy/help-browser")},
        {QStringLiteral("sparkles"), QStringLiteral("actions/star-new")},
        // Onboarding
        {QStringLiteral("car.side"), QStringLiteral("categories/emoji-travel")},
        {QStringLiteral("car"), QStringLiteral("categories/emoji-travel")},
        {QStringLiteral("externaldrive.fill"), QStringLiteral("devices/drive-removable-media")},
        {QStringLiteral("externaldrive.badge.questionmark"), QStringLiteral("devices/media-removable")},
        {QStringLiteral("chevron.right"), QStringLiteral("ui/pan-end")},
        {QStringLiteral("chevron.left"), QStringLiteral("ui/pan-start")},
        // Failures
        {QStringLiteral("folder.badge.questionmark"), QStringLiteral("places/folder-saved-search")},
        {QStringLiteral("exclamationmark.arrow.triangle.2.circlepath"), QStringLiteral("status/software-update-urgent")},
        {QStringLiteral("lock.doc"), QStringLiteral("status/channel-secure")},
        {QStringLiteral("eject.circle"), QStringLiteral("actions/media-eject")},
        {QStringLiteral("questionmark.folder"), QStringLiteral("status/folder-visiting")},
        {QStringLiteral("tray"), QStringLiteral("places/folder")},
        // Encryption guide
        {QStringLiteral("lock.open"), QStringLiteral("status/changes-allow")},
        {QStringLiteral("shield"), QStringLiteral("status/security-medium")},
        {QStringLiteral("switch.2"), QStringLiteral("categories/preferences-system")},
        {QStringLiteral("checkmark.seal"), QStringLiteral("emblems/emblem-ok")},
        {QStringLiteral("globe"), QStringLiteral("legacy/web-browser")},
        {QStringLiteral("wifi.slash"), QStringLiteral("status/network-error")},
        {QStringLiteral("square.grid.2x2"), QStringLiteral("actions/view-grid")},
        {QStringLiteral("hand.thumbsup"), QStringLiteral("emotes/face-smile")},
        // Help
        {QStringLiteral("shield.checkered"), QStringLiteral("status/security-medium")},
        {QStringLiteral("film"), QStringLiteral("mimetypes/video-x-generic")},
        {QStringLiteral("questionmark.video"), QStringLiteral("status/camera-disabled")},
        {QStringLiteral("hand.raised"), QStringLiteral("status/changes-prevent")},
        {QStringLiteral("keyboard"), QStringLiteral("devices/input-keyboard")},
        // Health
        {QStringLiteral("checkmark.circle"), QStringLiteral("emblems/emblem-default")},
        {QStringLiteral("exclamationmark.triangle"), QStringLiteral("status/dialog-warning")},
        {QStringLiteral("tray.and.arrow.down"), QStringLiteral("actions/document-save")},
        {QStringLiteral("info.circle"), QStringLiteral("status/dialog-information")},
        {QStringLiteral("chart.pie"), QStringLiteral("status/content-loading")},
        // Shared by later screens
        {QStringLiteral("play.fill"), QStringLiteral("actions/media-playback-start")},
        {QStringLiteral("pause.fill"), QStringLiteral("actions/media-playback-pause")},
        {QStringLiteral("trash"), QStringLiteral("places/user-trash")},
        {QStringLiteral("square.and.arrow.up"), QStringLiteral("actions/document-send")},
        {QStringLiteral("xmark.circle"), QStringLiteral("actions/process-stop")},
        {QStringLiteral("folder"), QStringLiteral("places/folder")},
        {QStringLiteral("video"), QStringLiteral("devices/camera-video")},
        {QStringLiteral("mappin"), QStringLiteral("actions/mark-location")},
        // Inbox, Vault and map
        {QStringLiteral("arrow.triangle.2.circlepath"), QStringLiteral("actions/view-refresh")},
        {QStringLiteral("road.lanes"), QStringLiteral("categories/emoji-travel")},
        {QStringLiteral("video.fill"), QStringLiteral("devices/camera-video")},
        {QStringLiteral("checkmark.shield"), QStringLiteral("status/security-high")},
        {QStringLiteral("checkmark.shield.fill"), QStringLiteral("status/security-high")},
        {QStringLiteral("line.3.horizontal.decrease.circle"), QStringLiteral("actions/view-list")},
        {QStringLiteral("line.3.horizontal.decrease.circle.fill"), QStringLiteral("actions/view-list-bullet")},
        {QStringLiteral("checklist"), QStringLiteral("actions/selection-mode")},
        {QStringLiteral("xmark"), QStringLiteral("ui/window-close")},
        {QStringLiteral("checkmark.circle.fill"), QStringLiteral("emblems/emblem-ok")},
        {QStringLiteral("circle"), QStringLiteral("ui/radio")},
        {QStringLiteral("exclamationmark.triangle.fill"), QStringLiteral("status/dialog-warning")},
        {QStringLiteral("internaldrive"), QStringLiteral("devices/drive-harddisk")},
        {QStringLiteral("folder.badge.gearshape"), QStringLiteral("status/folder-open")},
        {QStringLiteral("doc.on.doc"), QStringLiteral("actions/edit-copy")},
        {QStringLiteral("pause.circle"), QStringLiteral("actions/media-playback-pause")},
        {QStringLiteral("checkmark.seal.fill"), QStringLiteral("emblems/emblem-ok")},
        {QStringLiteral("play.rectangle"), QStringLiteral("mimetypes/video-x-generic")},
        {QStringLiteral("figure.walk.motion"), QStringLiteral("categories/emoji-people")},
        {QStringLiteral("hand.tap"), QStringLiteral("devices/input-touchpad")},
        {QStringLiteral("horn.blast"), QStringLiteral("status/audio-volume-high")},
        {QStringLiteral("light.beacon.max"), QStringLiteral("status/alarm")},
        // Player
        {QStringLiteral("gobackward.5"), QStringLiteral("actions/media-seek-backward")},
        {QStringLiteral("goforward.5"), QStringLiteral("actions/media-seek-forward")},
        {QStringLiteral("backward.frame"), QStringLiteral("actions/go-previous")},
        {QStringLiteral("forward.frame"), QStringLiteral("actions/go-next")},
        {QStringLiteral("flag.fill"), QStringLiteral("categories/emoji-flags")},
        {QStringLiteral("video.slash"), QStringLiteral("status/camera-disabled")},
        {QStringLiteral("hourglass"), QStringLiteral("status/content-loading")},
        {QStringLiteral("calendar"), QStringLiteral("mimetypes/x-office-calendar")},
        {QStringLiteral("mappin.and.ellipse"), QStringLiteral("actions/mark-location")},
        {QStringLiteral("location"), QStringLiteral("status/location-services-active")},
        {QStringLiteral("location.slash"), QStringLiteral("status/location-services-disabled")},
        {QStringLiteral("arrow.up.left.and.arrow.down.right"), QStringLiteral("actions/view-fullscreen")},
        {QStringLiteral("arrow.down.right.and.arrow.up.left"), QStringLiteral("actions/view-restore")},
        {QStringLiteral("gauge.with.needle"), QStringLiteral("status/power-profile-performance")},
        // Encrypted footage: locked, and unlocked with its keys held
        {QStringLiteral("lock.fill"), QStringLiteral("status/channel-secure")},
        {QStringLiteral("lock.open.fill"), QStringLiteral("status/changes-allow")},
        {QStringLiteral("key"), QStringLiteral("status/dialog-password")},
    };
    return t;
}

} // namespace

QString themeRoot() { return QStringLiteral("/usr/share/icons/Adwaita/scalable"); }

QString neutralIconUrl() { return QStringLiteral("qrc:/Keelhold/icons/neutral.svg"); }

QString themeIconName(const QString &symbolName) { return table().value(symbolName); }

QStringList symbolNames() { return table().keys(); }

QString iconUrl(const QString &symbolName)
{
    const QString name = themeIconName(symbolName);
    if (name.isEmpty())
        return neutralIconUrl();
    const QString path = themeRoot() + QLatin1Char('/') + name + QStringLiteral("-symbolic.svg");
    if (!QFileInfo::exists(path))
        return neutralIconUrl();
    return QUrl::fromLocalFile(path).toString();
}

} // namespace SymbolIcons
