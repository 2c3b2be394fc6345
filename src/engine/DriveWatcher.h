#pragma once

#include "engine/DriveEventStream.h"
#include "engine/MountTable.h"
#include "model/VolumeCandidate.h"

#include <QObject>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

class QSocketNotifier;

// Turns changes of the mount table into one stream of drive events, and
// lists the removable volumes mounted now. Decides nothing about a drive.
//
// The kernel flags /proc/self/mountinfo on every change of the table; the
// watcher then reads the table again and reports the difference. Events are
// built and sent on the main thread, in order.
class DriveWatcher : public QObject {
    Q_OBJECT
public:
    explicit DriveWatcher(QObject *parent = nullptr);
    ~DriveWatcher() override;

    // The first call builds the stream and starts watching; later calls give
    // the same stream. Once the stream has been finished, watching stops for
    // good and the finished stream keeps being answered.
    std::shared_ptr<DriveEventStream> events();

    // Every visible removable volume, with or without a TeslaCam folder:
    // those with one first, then by name.
    static std::vector<VolumeCandidate> mountedTeslaCamVolumes();
    // Blocks while the volume is asked for its name and size.
    static std::optional<VolumeCandidate> volumeCandidate(const QString &mountPoint);
    static void sortCandidates(std::vector<VolumeCandidate> &candidates);

private:
    void startWatching();
    void stopWatching();
    void tableChanged();

    std::shared_ptr<DriveEventStream> stream_;
    std::vector<MountTable::Entry> known_;
    QSocketNotifier *notifier_ = nullptr;
    int fd_ = -1;
};
