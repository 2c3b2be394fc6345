#pragma once

#include "engine/DriveEventStream.h"
#include "engine/MountTable.h"
#include "model/VolumeCandidate.h"

#include <QObject>
#include <QString>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class QSocketNotifier;
class QThread;
class QTimer;

// Turns changes of the mount table into one stream of drive events, and
// lists the removable volumes mounted now. Decides nothing about a drive.
//
// The kernel flags /proc/self/mountinfo on every change of the table. A
// thread of the watcher's own reads the table again at once and works out
// the difference, so a drive that leaves and returns is seen even while the
// main thread is busy. A block device that leaves is held back for a moment
// (renameWindow): if it returns at another mount point, as a relabelled
// drive does, that is one `renamed`. Candidates are built and events sent on
// the main thread, in order.
class DriveWatcher : public QObject {
    Q_OBJECT
public:
    explicit DriveWatcher(QObject *parent = nullptr);
    ~DriveWatcher() override;

    // The first call builds the stream and starts watching; later calls give
    // the same stream. Once the stream has been finished, watching stops for
    // good and the finished stream keeps being answered.
    std::shared_ptr<DriveEventStream> events();

    // How long a block device that left is held back in case it returns
    // under a new name (a rename); its unmount is reported after that.
    static constexpr std::chrono::milliseconds renameWindow{1500};

    // Every visible removable volume, with or without a TeslaCam folder:
    // those with one first, then by name.
    static std::vector<VolumeCandidate> mountedTeslaCamVolumes();
    // Blocks while the volume is asked for its name and size.
    static std::optional<VolumeCandidate> volumeCandidate(const QString &mountPoint);
    static void sortCandidates(std::vector<VolumeCandidate> &candidates);

private:
    void startWatching();
    void stopWatching();
    // Reader thread.
    void tableChanged();
    void releaseHeld();
    void post(std::vector<MountTable::Change> changes);
    // Main thread.
    void deliver(const std::vector<MountTable::Change> &changes);

    struct HeldUnmount {
        MountTable::Entry entry;
    };

    std::shared_ptr<DriveEventStream> stream_;
    QThread *readerThread_ = nullptr;
    QObject *readerContext_ = nullptr;
    // Reader thread only.
    std::vector<MountTable::Entry> known_;
    std::vector<HeldUnmount> held_;
    QTimer *holdTimer_ = nullptr;
    QSocketNotifier *notifier_ = nullptr;
    int fd_ = -1;
};
