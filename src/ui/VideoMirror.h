#pragma once

#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QVideoSink>

// Shows one camera's player in any number of video views. A player feeds
// exactly one sink; that sink is a hub owned by the player, and each view
// takes copies of its frames (they are shared, not copied in memory). The
// player's sink thus never changes when the layout does, so switching
// between the grid and the focused layout can't disturb playback.
class VideoMirror : public QObject {
    Q_OBJECT
    Q_PROPERTY(QObject *player READ player WRITE setPlayer NOTIFY playerChanged)
    Q_PROPERTY(QVideoSink *target READ target WRITE setTarget NOTIFY targetChanged)

public:
    explicit VideoMirror(QObject *parent = nullptr) : QObject(parent) {}
    ~VideoMirror() override;

    QObject *player() const { return player_; }
    void setPlayer(QObject *player);
    QVideoSink *target() const { return target_; }
    void setTarget(QVideoSink *target);

    // The hub sink of a player (a TrackPlayer), made and attached on first use.
    static QVideoSink *hubFor(QObject *player);

Q_SIGNALS:
    void playerChanged();
    void targetChanged();

private:
    void reconnect();

    QPointer<QObject> player_;
    QPointer<QVideoSink> target_;
    QMetaObject::Connection connection_;
};
