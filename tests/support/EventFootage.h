#pragma once

#include "export/ExportError.h"
#include "model/TeslaEvent.h"

#include <QTemporaryDir>

#include <atomic>
#include <exception>
#include <optional>
#include <stop_token>
#include <thread>

// One Sentry event's footage in a TeslaCam folder of a temporary drive, as the
// car names it; each clip starts where the test says, in seconds from the
// footage's first moment. Movies go to a folder beside the drive.
class EventFootage {
public:
    EventFootage();

    QString root() const;
    QString folder() const;
    QString outputs() const;
    QString output(const QString &name = QStringLiteral("movie.mp4")) const;
    Date base() const { return base_; }

    // A copy of source; its path.
    QString add(Camera camera, const QString &source, double startSecond);
    QString addBytes(Camera camera, const QByteArray &bytes, double startSecond);
    // A clip the scan saw that is gone by now.
    void addMissing(Camera camera, double startSecond);
    // A file already in place, added to the event as it is.
    void place(Camera camera, const QString &path, double startSecond);

    TeslaEvent event;

private:
    QString pathFor(Camera camera, double startSecond) const;

    QTemporaryDir dir_;
    Date base_;
};

// The case of the export error f throws; none when it throws none.
template <typename F>
std::optional<Exporter::ExportError::Case> exportErrorOf(F &&f)
{
    try {
        f();
    } catch (const Exporter::ExportError &e) {
        return e.errorCase();
    }
    return std::nullopt;
}

// An export on its own thread, for a test to stop while the drive holds a read; stopped and joined when it goes.
struct ExportThread {
    std::stop_source stop;
    std::exception_ptr error;
    std::atomic<bool> ended{false};
    std::thread thread;

    template <typename F>
    explicit ExportThread(F work)
        : thread([this, work] {
              try {
                  work(stop.get_token());
              } catch (...) {
                  error = std::current_exception();
              }
              ended = true;
          })
    {
    }
    ~ExportThread()
    {
        stop.request_stop();
        if (thread.joinable())
            thread.join();
    }
};
