#include "export/CombinedRender.h"

#include "export/CameraFeed.h"
#include "export/CombinedLayout.h"
#include "export/CompositeGraph.h"
#include "export/ExportError.h"
#include "export/H264Encoder.h"
#include "export/Mp4Writer.h"
#include "export/OverlayText.h"
#include "media/AvHandles.h"
#include "base/CancellationError.h"
#include "model/DrivingDataText.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/buffer.h>
#include <libavutil/frame.h>
#include <libavutil/hwcontext.h>
}

#include <QCoreApplication>
#include <QFile>
#include <cmath>
#include <limits>
#include <memory>

using Exporter::ExportError;

namespace {
constexpr auto reportInterval = std::chrono::milliseconds(100);
constexpr int fallbackFramesPerSecond = 30;
constexpr int mostFramesPerSecond = 60;
// The reader's frame times and the axis's may differ in the last bits.
constexpr double recordSlack = 1e-3;

// The large front camera of newer cars decodes at a third of the others' speed.
int decoderThreadsFor(const EventTimeline::CameraTrack &track)
{
    return track.camera == Camera::front ? 3 : 2;
}

// Pictures uploaded to the graphics hardware for its encoder.
Av::Buffer hardwareFrames(AVBufferRef *device, int width, int height)
{
    Av::Buffer frames(av_hwframe_ctx_alloc(device));
    if (!frames)
        return nullptr;
    auto *context = reinterpret_cast<AVHWFramesContext *>(frames->data);
    context->format = AV_PIX_FMT_VAAPI;
    context->sw_format = AV_PIX_FMT_NV12;
    context->width = width;
    context->height = height;
    context->initial_pool_size = 32;
    if (av_hwframe_ctx_init(frames.get()) < 0)
        return nullptr;
    return frames;
}
} // namespace

CombinedRender::CombinedRender(Footage footage, CombinedExportOptions options, std::chrono::milliseconds clipLimit)
    : footage_(std::move(footage)), options_(std::move(options)), clipLimit_(clipLimit)
{
}

void CombinedRender::run(const QString &path, const CombinedExportProgressCallback &progress, std::stop_token stop)
{
    usedHardware_ = false;
    if (options_.encoder == CombinedExportOptions::Encoder::automatic) {
        try {
            attempt(path, true, progress, stop);
            return;
        } catch (const HardwareUnusable &) {
            // Starts over with x264, from a clean file.
            QFile::remove(path);
        }
    }
    attempt(path, false, progress, stop);
}

void CombinedRender::attempt(const QString &path, bool hardware, const CombinedExportProgressCallback &progress,
                             std::stop_token stop)
{
    Av::Buffer device;
    if (hardware) {
        device.reset(H264Encoder::openHardwareDevice(options_.hardwareDevice));
        if (!device)
            throw HardwareUnusable();
    }

    std::vector<std::unique_ptr<CameraFeed>> feeds;
    std::vector<CombinedLayout::Source> sources;
    double rate = 0;
    for (const EventTimeline::CameraTrack &track : footage_.cameras) {
        auto feed = std::make_unique<CameraFeed>(track.camera, track.composition, footage_.clips, clipLimit_,
                                                 decoderThreadsFor(track), stop);
        feed->start(footage_.from);
        sources.push_back(CombinedLayout::Source{track.camera, feed->width(), feed->height()});
        rate = std::max(rate, feed->frameRate());
        feeds.push_back(std::move(feed));
    }
    if (std::all_of(feeds.begin(), feeds.end(), [](const auto &f) { return f->width() <= 0; }))
        throw ExportError(ExportError::noClipsForCamera);
    const int framesPerSecond
        = rate >= 1.0 ? std::min(mostFramesPerSecond, int(std::lround(rate))) : fallbackFramesPerSecond;
    const CombinedLayout layout = CombinedLayout::make(options_.layout, sources, options_.size);

    std::vector<CompositeGraph::Input> inputs;
    for (const auto &feed : feeds)
        inputs.push_back(CompositeGraph::Input{feed->width(), feed->height(), feed->pixelFormat()});
    CompositeGraph::Texts texts;
    texts.names = options_.overlay.names;
    texts.time = options_.overlay.time;
    if (options_.overlay.reason)
        texts.reason = footage_.reasonLine;
    texts.marker = options_.timeMarker;
    // Footage without the car's records gets no panel at all.
    const EventTelemetry *telemetry
        = options_.overlay.telemetry && footage_.telemetry && footage_.telemetry->hasRecords() ? footage_.telemetry.get()
                                                                                               : nullptr;
    texts.drivingData = telemetry != nullptr;
    const bool miles = options_.speedInMiles.value_or(DrivingDataText::milesByDefault());

    Av::Buffer frames;
    std::unique_ptr<H264Encoder> encoder;
    if (hardware) {
        frames = hardwareFrames(device.get(), layout.width(), layout.height());
        if (frames)
            encoder = H264Encoder::hardware(frames.get(), layout.width(), layout.height(), framesPerSecond);
        if (!encoder)
            throw HardwareUnusable();
    } else {
        encoder = H264Encoder::software(layout.width(), layout.height(), framesPerSecond);
    }
    CompositeGraph graph(layout, inputs, texts, framesPerSecond, hardware);

    if (stop.stop_requested())
        throw CancellationError();
    Mp4Writer writer(path, stop);
    int stream = -1;
    {
        const Av::CodecParameters parameters(avcodec_parameters_alloc());
        if (!parameters)
            throw ExportError(ExportError::compositionFailed);
        encoder->parametersInto(parameters.get());
        stream = writer.addStream(parameters.get(), encoder->timeBase());
    }
    writer.begin();
    const AVRational streamBase = writer.timeBase(stream);

    const double span = footage_.to - footage_.from;
    const qint64 total = std::max<qint64>(1, qint64(std::ceil(span * framesPerSecond - 1e-6)));
    CombinedExportProgress state;
    state.framesTotal = total;
    const auto started = std::chrono::steady_clock::now();
    auto lastReport = started - reportInterval;
    const auto report = [&](bool force) {
        if (!progress)
            return;
        const auto now = std::chrono::steady_clock::now();
        if (!force && now - lastReport < reportInterval)
            return;
        lastReport = now;
        const double elapsed = std::chrono::duration<double>(now - started).count();
        if (elapsed > 0 && state.framesDone > 0) {
            state.framesPerSecond = double(state.framesDone) / elapsed;
            state.secondsLeft = double(state.framesTotal - state.framesDone) / state.framesPerSecond;
        }
        progress(state);
    };
    report(true);

    bool wrote = false;
    const H264Encoder::PacketSink write = [&](AVPacket *packet) {
        av_packet_rescale_ts(packet, encoder->timeBase(), streamBase);
        packet->stream_index = stream;
        try {
            writer.write(packet);
        } catch (const Mp4Writer::PacketRefused &) {
            throw ExportError::failed(QCoreApplication::translate("CombinedRender", "The movie couldn't be written."));
        }
        wrote = true;
    };
    const CompositeGraph::Sink encode = [&](AVFrame *canvas) {
        Av::Frame owned(canvas);
        if (hardware) {
            Av::Frame uploaded(av_frame_alloc());
            if (!uploaded || av_hwframe_get_buffer(frames.get(), uploaded.get(), 0) < 0
                || av_hwframe_transfer_data(uploaded.get(), canvas, 0) < 0)
                throw HardwareUnusable();
            uploaded->pts = canvas->pts;
            owned = std::move(uploaded);
        }
        try {
            encoder->encode(owned.get(), write);
        } catch (const H264Encoder::HardwareFailed &) {
            throw HardwareUnusable();
        }
        ++state.framesDone;
        report(false);
    };

    // The time shown changes once a second; its text is made once for each.
    qint64 shownSecond = std::numeric_limits<qint64>::min();
    QString shownText;
    // Records repeat over many frames while the car is parked; each is worded once.
    const TelemetryRecord *shownRecord = nullptr;
    std::optional<DrivingDataPanel::Reading> shownReading;
    std::vector<const AVFrame *> pictures(feeds.size());
    try {
        for (qint64 tick = 0; tick < total; ++tick) {
            if (stop.stop_requested())
                throw CancellationError();
            const double t = footage_.from + double(tick) / framesPerSecond;
            std::optional<Date> shownAt;
            for (size_t i = 0; i < feeds.size(); ++i) {
                const CameraFeed::Picture picture = feeds[i]->at(t);
                pictures[i] = picture.frame;
                if (picture.frame && !shownAt)
                    shownAt = picture.shownAt;
            }
            // With no camera on show, the axis itself tells the time.
            const Date moment = shownAt.value_or(footage_.origin.addingTimeInterval(t));
            const qint64 second = qint64(std::floor(moment.unixSeconds()));
            if (second != shownSecond) {
                shownSecond = second;
                shownText = OverlayText::frameTime(moment);
            }
            const double sinceStart = std::max(0.0, moment.timeIntervalSince(footage_.origin));
            CompositeGraph::Label label{shownText, quint32(std::min(4294967295.0, std::round(sinceStart * 1000.0))),
                                        std::nullopt};
            if (telemetry) {
                const TelemetryRecord *record = telemetry->recordAt(t + recordSlack);
                if (record != shownRecord) {
                    shownRecord = record;
                    shownReading = record ? std::optional(DrivingDataPanel::read(*record, miles)) : std::nullopt;
                }
                label.drivingData = shownReading;
            }
            graph.add(tick, pictures, label, encode);
        }
        graph.finish(encode);
        encoder->encode(nullptr, write);
    } catch (const H264Encoder::HardwareFailed &) {
        throw HardwareUnusable();
    } catch (const CancellationError &) {
        throw ExportError(ExportError::cancelled);
    }
    if (!wrote)
        throw ExportError(ExportError::noClipsForCamera);

    state.finishing = true;
    report(true);
    writer.finish();
    if (stop.stop_requested())
        throw ExportError(ExportError::cancelled);
    usedHardware_ = hardware;
    state.finishing = false;
    state.complete = true;
    report(true);
}
