#include "drive/ClipProber.h"

#include <QtEndian>

#include "drive/EcryptfsHeader.h"
#include "drive/IOWatchdog.h"
#include "drive/MediaInput.h"
#include "drive/ReadOnlyFs.h"
#include "model/CancellationError.h"

#include <QFile>
#include <QThreadPool>
#include <QtGlobal>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavformat/avio.h>
#include <libavutil/mem.h>
}

namespace ClipProber {

namespace {

constexpr int signatureLength = 12;

// What the load under the watchdog learns about one file.
struct Loaded {
    bool playable = false;
    std::optional<double> duration;
};

class LoadFailed : public std::exception {
public:
    const char *what() const noexcept override { return "The file could not be opened as a movie."; }
};

struct CodecContextDeleter {
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
};

// Throws when the file can't be opened as a movie at all; returns
// not-playable when it opens but holds no video that can be decoded.
Loaded load(const QString &path, std::stop_token stop)
{
    // Opened here, under the limit: an open that hangs (a dead drive, a FIFO)
    // is the watchdog's to bound, so non-regular files are not refused early.
    const auto input = MediaInput::open(path, stop, {.mp4Only = true});
    if (!input)
        throw LoadFailed();
    AVFormatContext *format = input->context();
    if (avformat_find_stream_info(format, nullptr) < 0)
        throw LoadFailed();

    Loaded loaded;
    const AVCodec *decoder = nullptr;
    const int streamIndex = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (streamIndex < 0 || !decoder)
        return loaded;
    std::unique_ptr<AVCodecContext, CodecContextDeleter> codec(avcodec_alloc_context3(decoder));
    if (!codec || avcodec_parameters_to_context(codec.get(), format->streams[streamIndex]->codecpar) < 0)
        return loaded;
    // One thread: we only ask whether the decoder opens, and frame threads cost.
    codec->thread_count = 1;
    if (avcodec_open2(codec.get(), decoder, nullptr) < 0)
        return loaded;

    loaded.playable = true;
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
                try {
                    const Loaded loaded = load(path, token);
                    if (loaded.playable)
                        return {ClipHealth::ok, loaded.duration};
                } catch (const LoadFailed &) {
                }
                if (token.stop_requested())
                    throw CancellationError();
                return {refused, std::nullopt};
            },
            stop);
    } catch (const IOWatchdog::TimedOut &) {
        return {ClipHealth::timedOut, std::nullopt};
    } catch (const CancellationError &) {
        throw;
    } catch (...) {
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
