#include "VideoMirror.h"

#include "playback/TrackPlayer.h"

#include <QVideoFrame>

namespace {
const char *const hubName = "keelhold-hub-sink";
}

VideoMirror::~VideoMirror()
{
    disconnect(connection_);
}

void VideoMirror::setPlayer(QObject *player)
{
    if (player_ == player)
        return;
    player_ = player;
    reconnect();
    Q_EMIT playerChanged();
}

void VideoMirror::setTarget(QVideoSink *target)
{
    if (target_ == target)
        return;
    target_ = target;
    reconnect();
    Q_EMIT targetChanged();
}

QVideoSink *VideoMirror::hubFor(QObject *player)
{
    auto *track = qobject_cast<TrackPlayer *>(player);
    if (!track)
        return nullptr;
    if (auto *hub = track->findChild<QVideoSink *>(QLatin1String(hubName), Qt::FindDirectChildrenOnly))
        return hub;
    auto *hub = new QVideoSink(track);
    hub->setObjectName(QLatin1String(hubName));
    track->setVideoSink(hub);
    return hub;
}

void VideoMirror::reconnect()
{
    disconnect(connection_);
    connection_ = {};
    QVideoSink *hub = hubFor(player_);
    if (!target_)
        return;
    // Without a picture of its own yet, the view keeps the one it had: the
    // tile shows it dimmed while the new camera opens, or hides it.
    if (!hub)
        return;
    QPointer<QVideoSink> target = target_;
    connection_ = connect(hub, &QVideoSink::videoFrameChanged, this, [target](const QVideoFrame &frame) {
        if (target)
            target->setVideoFrame(frame);
    });
    // A paused player sends nothing new: show what it shows now.
    if (hub->videoFrame().isValid())
        target_->setVideoFrame(hub->videoFrame());
}
