#include "drive/ClipProber.h"

#include "base/LogCategories.h"
#include "media/MediaClip.h"
#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/ReadOnlyFs.h"
#include "base/ReadPriority.h"

#include "drive/EcryptfsHeader.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <QThreadPool>
#include <QtEndian>
#include <QtGlobal>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <memory>
#include <mutex>
#include <unistd.h>

namespace ClipProber {

namespace {

constexpr int signatureLength = 12;

// What opening the file under the watchdog learns about it.
struct Loaded {
    bool playable = false;
    bool headerHolds = true; // false: the header promises what the data don't hold
    std::optional<double> duration;
};

// Not playable when the file can't be opened as a movie, or holds no video
// that can be decoded.
Loaded load(const QString &path, std::stop_token stop)
{
    // Opened here, under the limit: an open that hangs (a dead drive, a FIFO)
    // is the watchdog's to bound, so non-regular files are not refused early.
    MediaClip::Options options;
    options.streamInfo = MediaClip::StreamInfo::always;
    options.checkHeader = true;
    // One thread: we only ask whether the decoder opens, and frame threads cost.
    options.decode = VideoDecoder::Options{};
    const auto clip = MediaClip::open(path, stop, options);
    Loaded loaded;
    // A movie whose header describes its pictures as something else holds
    // them all the same: damage, not encryption.
    if (!clip->facts().usable()) {
        loaded.headerHolds = false;
        return loaded;
    }
    if (!clip->isOpened())
        return loaded;
    loaded.playable = true;
    loaded.headerHolds = clip->facts().verdict == HeaderCheck::ClipFacts::Verdict::sound;
    const AVFormatContext *format = clip->context();
    if (format->duration != AV_NOPTS_VALUE) {
        const double seconds = double(format->duration) / AV_TIME_BASE;
        if (std::isfinite(seconds))
            loaded.duration = seconds;
    }
    return loaded;
}

void applyMassRule(std::vector<std::optional<ProbeResult>> &results)
{
    // A handful of bad clips stays damage; when half or more of a drive fails
    // the same way, it is the car's encrypted footage. Empty files are left
    // out of the share: they say nothing about how the car writes.
    int unreadable = 0;
    int counted = 0;
    for (const auto &result : results) {
        if (!result)
            continue;
        if (result->health == ClipHealth::unreadable)
            ++unreadable;
        if (result->health != ClipHealth::zeroByte)
            ++counted;
    }
    if (counted == 0 || unreadable <= 2 || double(unreadable) / double(counted) < 0.5)
        return;
    for (auto &result : results) {
        if (result && result->health == ClipHealth::unreadable)
            result->health = ClipHealth::encrypted;
    }
}

// Up to `size` bytes from the start of the file; fewer at its end.
QByteArray readHead(const QString &path, int size)
{
    // Regular files only: a FIFO would otherwise wait here for a writer,
    // outside any time limit.
    const int fd = ReadOnlyFs::openRead(path);
    if (fd < 0)
        return {};
    QByteArray head(size, '\0');
    int got = 0;
    while (got < size) {
        const ssize_t n = ::read(fd, head.data() + got, size_t(size - got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        got += int(n);
    }
    ::close(fd);
    head.truncate(got);
    return head;
}

} // namespace

bool sniffEcryptfs(const QString &path)
{
    return Ecryptfs::hasMarker(readHead(path, 16));
}

bool sniffFtyp(const QString &path)
{
    const QByteArray head = readHead(path, signatureLength);
    return head.size() == signatureLength && std::memcmp(head.constData() + 4, "ftyp", 4) == 0;
}

ProbeResult probeDetailed(const ClipRef &clip, std::chrono::milliseconds timeout, std::stop_token stop)
{
    // The scanned size decides the first two cases; such files are not opened.
    if (clip.fileSize == 0)
        return {ClipHealth::zeroByte, std::nullopt};
    if (clip.fileSize < minimumBelievableSize)
        return {ClipHealth::truncated, std::nullopt};

    // Every read of the file, its first bytes too, is under the limit: a
    // drive can stop answering at any byte.
    try {
        return IOWatchdog::run(
            timeout,
            [path = clip.url](std::stop_token token) -> ProbeResult {
                // The eCryptfs marker is a sure sign on its own: no need to open it as a movie.
                if (sniffEcryptfs(path))
                    return {ClipHealth::encrypted, std::nullopt};
                // A file that starts like an MP4 and still won't play is taken to be the
                // car's encryption; one that doesn't even start like one is damage.
                const ClipHealth refused = sniffFtyp(path) ? ClipHealth::encrypted : ClipHealth::unreadable;
                if (token.stop_requested())
                    throw CancellationError();
                const Loaded loaded = load(path, token);
                if (token.stop_requested())
                    throw CancellationError();
                // Opens, but its data stop short of (or don't fit) what its header says.
                if (!loaded.headerHolds)
                    return {ClipHealth::truncated, std::nullopt};
                if (loaded.playable)
                    return {ClipHealth::ok, loaded.duration};
                return {refused, std::nullopt};
            },
            stop);
    } catch (const IOWatchdog::TimedOut &) {
        return {ClipHealth::timedOut, std::nullopt};
    } catch (const CancellationError &) {
        throw;
    } catch (const std::exception &e) {
        // No thread for the watchdog, no memory: the clip is not known to play.
        qCWarning(lcDrive) << "probing" << clip.url << "failed:" << e.what();
        return {ClipHealth::unreadable, std::nullopt};
    }
}

ClipHealth probe(const ClipRef &clip, std::chrono::milliseconds timeout, std::stop_token stop)
{
    return probeDetailed(clip, timeout, stop).health;
}

std::vector<TeslaEvent> probeAll(const std::vector<TeslaEvent> &events, std::chrono::milliseconds timeout,
                                 int concurrencyCap, const Progress &progress, std::stop_token stop)
{
    if (concurrencyCap < 0)
        qFatal("ClipProber::probeAll: negative concurrency cap %d", concurrencyCap);

    struct Ref {
        qsizetype eventIndex;
        qsizetype clipIndex;
        ClipRef clip;
    };
    std::vector<Ref> refs;
    for (qsizetype e = 0; e < qsizetype(events.size()); ++e) {
        const auto &clips = events[size_t(e)].clips;
        for (qsizetype c = 0; c < qsizetype(clips.size()); ++c)
            refs.push_back({e, c, clips[size_t(c)]});
    }
    if (refs.empty())
        return events;
    if (stop.stop_requested())
        throw CancellationError();

    const int total = int(refs.size());
    std::vector<std::optional<ProbeResult>> results(refs.size());

    // Children hand their results over through this queue; the results, the
    // counters and progress belong to this thread alone.
    struct Finished {
        size_t index = 0;
        std::optional<ProbeResult> result; // absent when the probe was cancelled
    };
    std::mutex mutex;
    std::condition_variable arrived;
    std::deque<Finished> finished;
    // Declared last so that it is destroyed first, waiting for every child.
    QThreadPool children;
    children.setMaxThreadCount(std::max(1, std::min(concurrencyCap, total)));

    size_t next = 0;
    int inFlight = 0;
    auto submitNext = [&] {
        const size_t index = next++;
        ++inFlight;
        children.start([&, index] {
            Finished done{index, std::nullopt};
            try {
                ReadPriority::yieldToUrgent(stop);
                done.result = probeDetailed(refs[index].clip, timeout, stop);
            } catch (const CancellationError &) {
            }
            std::lock_guard lock(mutex);
            finished.push_back(std::move(done));
            arrived.notify_one();
        });
    };

    const size_t initial = std::min(size_t(concurrencyCap), refs.size());
    while (next < initial)
        submitNext();

    int completed = 0;
    bool cancelled = false;
    while (inFlight > 0) {
        Finished done;
        {
            std::unique_lock lock(mutex);
            arrived.wait(lock, [&] { return !finished.empty(); });
            done = std::move(finished.front());
            finished.pop_front();
        }
        --inFlight;
        cancelled = cancelled || !done.result || stop.stop_requested();
        if (cancelled)
            continue; // let the rest drain; the pass is abandoned
        results[done.index] = done.result;
        ++completed;
        if (progress)
            progress(completed, total);
        if (next < refs.size())
            submitNext();
    }
    if (cancelled)
        throw CancellationError();

    applyMassRule(results);

    std::vector<TeslaEvent> updated = events;
    for (size_t i = 0; i < refs.size(); ++i) {
        if (!results[i])
            continue;
        ClipRef &clip = updated[size_t(refs[i].eventIndex)].clips[size_t(refs[i].clipIndex)];
        clip.health = results[i]->health;
        if (results[i]->duration)
            clip.duration = results[i]->duration;
    }
    return updated;
}

} // namespace ClipProber
