#include "export/CompositeGraph.h"

#include "export/ExportError.h"
#include "export/OverlayText.h"
#include "export/TimeMarker.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/frame.h>
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

#include <QCoreApplication>
#include <QStringList>
#include <initializer_list>
#include <utility>

using Exporter::ExportError;

namespace {
const char *timeKey = "keelhold.time";
// Matches how the player and the ffmpeg tool scale by default: sharp enough
// for number plates when the front camera is shrunk into its cell.
const char *scaleFlags = "bicubic";
const char *font = "DejaVu Sans";

using Options = std::initializer_list<std::pair<const char *, QString>>;

// what: the step that failed, translated (or a filter's own name).
[[noreturn]] void unavailable(const QString &what, int averror = 0)
{
    if (averror >= 0)
        //: %1 is the step that failed, e.g. "stacking"
        throw ExportError::failed(
            QCoreApplication::translate("CompositeGraph", "The movie's pictures couldn't be put together (%1).")
                .arg(what));
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(averror, text, sizeof text);
    //: %1 is the step that failed, e.g. "stacking"; %2 the video library's reason
    throw ExportError::failed(
        QCoreApplication::translate("CompositeGraph", "The movie's pictures couldn't be put together (%1: %2).")
            .arg(what, QString::fromLocal8Bit(text)));
}

AVFilterContext *addFilter(AVFilterGraph *graph, const char *filter, const QString &name, Options options)
{
    const AVFilter *type = avfilter_get_by_name(filter);
    if (!type)
        //: Step of putting a movie's pictures together: %1 is a video filter's name
        unavailable(QCoreApplication::translate("CompositeGraph", "no %1 filter").arg(QString::fromLatin1(filter)));
    AVFilterContext *context = avfilter_graph_alloc_filter(graph, type, name.toUtf8().constData());
    if (!context)
        unavailable(QString::fromLatin1(filter), AVERROR(ENOMEM));
    Av::Dictionary dictionary;
    for (const auto &[key, value] : options)
        dictionary.set(key, value.toUtf8().constData());
    const int result = avfilter_init_dict(context, dictionary.out());
    if (result < 0)
        unavailable(QString::fromLatin1(filter), result);
    return context;
}

void link(AVFilterContext *from, AVFilterContext *to, unsigned pad = 0)
{
    const int result = avfilter_link(from, 0, to, pad);
    if (result < 0)
        //: Step of putting a movie's pictures together: %1 is a video filter's name
        unavailable(QCoreApplication::translate("CompositeGraph", "linking %1").arg(QString::fromUtf8(to->name)),
                    result);
}

AVFilterContext *chain(AVFilterGraph *graph, AVFilterContext *from, const char *filter, const QString &name,
                       Options options)
{
    AVFilterContext *next = addFilter(graph, filter, name, options);
    link(from, next);
    return next;
}

QString number(int value)
{
    return QString::number(value);
}

// Boxed text is white on a dark box, so it reads over any picture; the rest is grey.
AVFilterContext *drawText(AVFilterGraph *graph, AVFilterContext *from, const QString &name, const QString &text,
                          bool expand, int size, const QString &x, const QString &y, bool box)
{
    return chain(graph, from, "drawtext", name,
                 {{"font", QString::fromLatin1(font)},
                  {"text", text},
                  {"expansion", expand ? QStringLiteral("normal") : QStringLiteral("none")},
                  {"fontsize", number(size)},
                  {"fontcolor", box ? QStringLiteral("white") : QStringLiteral("0xB0B0B0")},
                  {"box", box ? QStringLiteral("1") : QStringLiteral("0")},
                  {"boxcolor", QStringLiteral("black@0.6")},
                  {"boxborderw", number(std::max(2, size / 5))},
                  {"x", x},
                  {"y", y}});
}

// Words and colour both from the frame's metadata.
AVFilterContext *drawPanelWords(AVFilterGraph *graph, AVFilterContext *from, const DrivingDataPanel::Words &words)
{
    const QString key = QLatin1String(DrivingDataPanel::metadataPrefix) + words.key;
    return chain(graph, from, "drawtext", QStringLiteral("panel.") + words.key,
                 {{"font", QString::fromLatin1(font) + (words.bold ? QStringLiteral(":bold") : QString())},
                  {"text", QStringLiteral("%{metadata:%1}").arg(key)},
                  {"fontcolor_expr", QStringLiteral("%{metadata:%1.colour}").arg(key)},
                  {"expansion", QStringLiteral("normal")},
                  {"fontsize", number(words.size)},
                  {"x", words.x},
                  {"y", words.y}});
}

void configure(AVFilterGraph *graph)
{
    const int result = avfilter_graph_config(graph, nullptr);
    if (result < 0)
        //: Step of putting a movie's pictures together: setting up the video filters
        unavailable(QCoreApplication::translate("CompositeGraph", "configuring"), result);
}

// A copy of the picture with words in its middle, in grey.
Av::Frame withWords(const AVFrame *picture, const QString &words, int size, const QString &timeBase,
                   const QString &rate)
{
    const Av::FilterGraph graph(avfilter_graph_alloc());
    if (!graph)
        //: Step of putting a movie's pictures together: getting memory
        unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
    AVFilterContext *source = addFilter(
        graph.get(), "buffer", QStringLiteral("picture"),
        {{"video_size", QStringLiteral("%1x%2").arg(picture->width).arg(picture->height)},
         {"pix_fmt", QString::fromLatin1(av_get_pix_fmt_name(AVPixelFormat(picture->format)))},
         {"time_base", timeBase},
         {"frame_rate", rate},
         {"pixel_aspect", QStringLiteral("1/1")}});
    AVFilterContext *text = drawText(graph.get(), source, QStringLiteral("words"), words, false, size,
                                     QStringLiteral("(w-text_w)/2"), QStringLiteral("(h-%1)/2").arg(size), false);
    AVFilterContext *sink = addFilter(graph.get(), "buffersink", QStringLiteral("done"), {});
    link(text, sink);
    configure(graph.get());
    Av::Frame in(av_frame_clone(picture));
    Av::Frame out(av_frame_alloc());
    if (!in || !out)
        unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
    in->pts = 0;
    int result = av_buffersrc_add_frame_flags(source, in.get(), 0);
    if (result >= 0)
        result = av_buffersrc_add_frame_flags(source, nullptr, 0);
    if (result >= 0)
        result = av_buffersink_get_frame(sink, out.get());
    if (result < 0)
        //: Step of putting a movie's pictures together: drawing words on a picture
        unavailable(QCoreApplication::translate("CompositeGraph", "drawing a name"), result);
    return out;
}
} // namespace

CompositeGraph::CompositeGraph(const CombinedLayout &layout, const std::vector<Input> &inputs, const Texts &texts,
                               int framesPerSecond, bool nv12)
    : layout_(layout), texts_(texts), framesPerSecond_(framesPerSecond)
{
    const auto &cells = layout.cells();
    if (cells.empty() || cells.size() != inputs.size())
        //: Step of putting a movie's pictures together: there were no cameras to show
        unavailable(QCoreApplication::translate("CompositeGraph", "no cameras"));
    compose_.reset(avfilter_graph_alloc());
    if (!compose_)
        unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
    const QString timeBase = QStringLiteral("1/%1").arg(framesPerSecond);
    const QString rate = QStringLiteral("%1/1").arg(framesPerSecond);
    const int labelSize = layout.labelTextSize();
    const int margin = layout.margin();

    std::vector<AVFilterContext *> cellOutputs;
    for (size_t i = 0; i < cells.size(); ++i) {
        const CombinedLayout::Cell &cell = cells[i];
        Input input = inputs[i];
        if (input.width <= 0 || input.height <= 0 || input.pixelFormat < 0)
            input = Input{cell.picture.width, cell.picture.height, AV_PIX_FMT_YUV420P};
        const AVPixelFormat format = AVPixelFormat(input.pixelFormat);
        const char *formatName = av_get_pix_fmt_name(format);
        if (!formatName)
            //: Step of putting a movie's pictures together: a camera's picture format was not known
            unavailable(QCoreApplication::translate("CompositeGraph", "unknown picture format"));
        const QString suffix = QString::number(i);
        AVFilterContext *source = addFilter(compose_.get(), "buffer", QStringLiteral("in") + suffix,
                                            {{"video_size", QStringLiteral("%1x%2").arg(input.width).arg(input.height)},
                                             {"pix_fmt", QString::fromLatin1(formatName)},
                                             {"time_base", timeBase},
                                             {"frame_rate", rate},
                                             {"pixel_aspect", QStringLiteral("1/1")}});
        sources_.push_back(source);

        // The black a missing minute shows, in the camera's own format.
        Av::Frame black(av_frame_alloc());
        if (!black)
            unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
        black->format = format;
        black->width = input.width;
        black->height = input.height;
        const bool fullRange = format == AV_PIX_FMT_YUVJ420P || format == AV_PIX_FMT_YUVJ422P
            || format == AV_PIX_FMT_YUVJ444P;
        black->color_range = fullRange ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
        if (av_frame_get_buffer(black.get(), 0) < 0)
            unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
        ptrdiff_t linesizes[4] = {black->linesize[0], black->linesize[1], black->linesize[2], black->linesize[3]};
        av_image_fill_black(black->data, linesizes, format, black->color_range, input.width, input.height);
        // The camera's name goes on once, at the size it will have in its
        // cell, instead of onto every frame.
        const int gapSize = std::max(8, labelSize * 3 / 2 * input.height / std::max(2, cell.picture.height));
        black_.push_back(withWords(black.get(), OverlayText::noFootage(cell.camera), gapSize, timeBase, rate));

        AVFilterContext *last = chain(compose_.get(), source, "scale", QStringLiteral("scale") + suffix,
                                      {{"w", number(cell.picture.width)},
                                       {"h", number(cell.picture.height)},
                                       {"flags", QString::fromLatin1(scaleFlags)}});
        last = chain(compose_.get(), last, "format", QStringLiteral("format") + suffix, {{"pix_fmts", QStringLiteral("yuv420p")}});
        if (cell.picture.width != cell.area.width || cell.picture.height != cell.area.height)
            last = chain(compose_.get(), last, "pad", QStringLiteral("pad") + suffix,
                         {{"width", number(cell.area.width)},
                          {"height", number(cell.area.height)},
                          {"x", number(cell.picture.x)},
                          {"y", number(cell.picture.y)},
                          {"color", QStringLiteral("black")}});
        // Placed by the font's size, not the words' own height, so that
        // names with and without descenders stand on one line.
        if (texts.names)
            last = drawText(compose_.get(), last, QStringLiteral("name") + suffix, cell.camera.displayName(), false,
                            labelSize, number(margin), QStringLiteral("h-%1").arg(labelSize * 5 / 4 + margin), true);
        cellOutputs.push_back(last);
    }

    AVFilterContext *canvas = cellOutputs.front();
    if (cellOutputs.size() > 1) {
        QStringList places;
        for (const CombinedLayout::Cell &cell : cells)
            places << QStringLiteral("%1_%2").arg(cell.area.x).arg(cell.area.y);
        canvas = addFilter(compose_.get(), "xstack", QStringLiteral("stack"),
                           {{"inputs", number(int(cellOutputs.size()))},
                            {"layout", places.join(QLatin1Char('|'))},
                            {"fill", QStringLiteral("black")}});
        for (size_t i = 0; i < cellOutputs.size(); ++i)
            link(cellOutputs[i], canvas, unsigned(i));
    }
    composed_ = addFilter(compose_.get(), "buffersink", QStringLiteral("composed"), {});
    link(canvas, composed_);
    configure(compose_.get());

    // The whole canvas's words need each frame's own text, which the
    // stacking above doesn't pass on: they are drawn in a graph of their own.
    if (!texts.time && !texts.reason && !texts.drivingData && !nv12)
        return;
    overlay_.reset(avfilter_graph_alloc());
    if (!overlay_)
        unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
    overlayIn_ = addFilter(overlay_.get(), "buffer", QStringLiteral("canvas"),
                           {{"video_size", QStringLiteral("%1x%2").arg(layout.width()).arg(layout.height())},
                            {"pix_fmt", QStringLiteral("yuv420p")},
                            {"time_base", timeBase},
                            {"frame_rate", rate},
                            {"pixel_aspect", QStringLiteral("1/1")}});
    AVFilterContext *last = overlayIn_;
    if (texts.time) {
        const int left = margin + (texts.marker ? TimeMarker::blocks * layout.markerBlock() + margin : 0);
        last = drawText(overlay_.get(), last, QStringLiteral("time"),
                        QStringLiteral("%{metadata:%1}").arg(QString::fromLatin1(timeKey)), true,
                        layout.timeTextSize(), number(left), number(margin), true);
    }
    if (texts.reason)
        last = drawText(overlay_.get(), last, QStringLiteral("reason"), *texts.reason, false, layout.labelTextSize(),
                        QStringLiteral("w-text_w-%1").arg(margin), number(margin), true);
    if (texts.drivingData) {
        panel_.emplace(layout);
        for (const DrivingDataPanel::Words &words : panel_->words())
            last = drawPanelWords(overlay_.get(), last, words);
    }
    if (nv12)
        last = chain(overlay_.get(), last, "format", QStringLiteral("upload"), {{"pix_fmts", QStringLiteral("nv12")}});
    overlayOut_ = addFilter(overlay_.get(), "buffersink", QStringLiteral("finished"), {});
    link(last, overlayOut_);
    configure(overlay_.get());
}

CompositeGraph::~CompositeGraph() = default;

void CompositeGraph::add(int64_t tick, const std::vector<const AVFrame *> &pictures, const Label &label,
                         const Sink &sink)
{
    labels_[tick] = label;
    for (size_t i = 0; i < sources_.size(); ++i) {
        const AVFrame *picture = i < pictures.size() ? pictures[i] : nullptr;
        Av::Frame frame(av_frame_clone(picture ? picture : black_[i].get()));
        if (!frame)
            unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
        frame->pts = tick;
        frame->pict_type = AV_PICTURE_TYPE_NONE;
        const int result = av_buffersrc_add_frame_flags(sources_[i], frame.get(), 0);
        if (result < 0)
            //: Step of putting a movie's pictures together: adding a camera's picture
            unavailable(QCoreApplication::translate("CompositeGraph", "adding a picture"), result);
    }
    drain(sink);
}

void CompositeGraph::finish(const Sink &sink)
{
    for (AVFilterContext *source : sources_)
        if (const int result = av_buffersrc_add_frame_flags(source, nullptr, 0); result < 0)
            //: Step of putting a movie's pictures together: ending the movie
            unavailable(QCoreApplication::translate("CompositeGraph", "ending"), result);
    drain(sink);
    if (overlay_) {
        if (const int result = av_buffersrc_add_frame_flags(overlayIn_, nullptr, 0); result < 0)
            unavailable(QCoreApplication::translate("CompositeGraph", "ending"), result);
        decorate(nullptr, sink);
    }
}

void CompositeGraph::drain(const Sink &sink)
{
    const AVRational base = av_buffersink_get_time_base(composed_);
    for (;;) {
        Av::Frame canvas(av_frame_alloc());
        if (!canvas)
            unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
        const int result = av_buffersink_get_frame(composed_, canvas.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        if (result < 0)
            //: Step of putting a movie's pictures together: putting the cameras side by side
            unavailable(QCoreApplication::translate("CompositeGraph", "stacking"), result);
        canvas->pts = av_rescale_q(canvas->pts, base, AVRational{1, framesPerSecond_});
        decorate(canvas.release(), sink);
    }
}

void CompositeGraph::decorate(AVFrame *canvas, const Sink &sink)
{
    const auto marked = [this, &sink](AVFrame *frame) {
        const auto label = labels_.find(frame->pts);
        if (texts_.marker && label != labels_.end() && av_frame_make_writable(frame) >= 0) {
            const int margin = layout_.margin();
            TimeMarker::draw(frame, margin, margin, layout_.markerBlock(), label->second.marker);
        }
        if (label != labels_.end())
            labels_.erase(labels_.begin(), std::next(label));
        sink(frame);
    };
    if (!overlay_) {
        if (canvas)
            marked(canvas);
        return;
    }
    if (canvas) {
        const Av::Frame owned(canvas);
        const auto label = labels_.find(canvas->pts);
        av_dict_set(&canvas->metadata, timeKey, label != labels_.end() ? label->second.time.toUtf8().constData() : "", 0);
        if (panel_) {
            const std::optional<DrivingDataPanel::Reading> reading
                = label != labels_.end() ? label->second.drivingData : std::nullopt;
            // The box goes under the words; a canvas the graph still holds is copied first.
            if (reading && av_frame_make_writable(canvas) >= 0)
                panel_->paint(canvas, *reading);
            panel_->label(canvas, reading);
        }
        const int result = av_buffersrc_add_frame_flags(overlayIn_, owned.get(), 0);
        if (result < 0)
            //: Step of putting a movie's pictures together: drawing the date and time
            unavailable(QCoreApplication::translate("CompositeGraph", "drawing the time"), result);
    }
    const AVRational base = av_buffersink_get_time_base(overlayOut_);
    for (;;) {
        Av::Frame finished(av_frame_alloc());
        if (!finished)
            unavailable(QCoreApplication::translate("CompositeGraph", "memory"), AVERROR(ENOMEM));
        const int result = av_buffersink_get_frame(overlayOut_, finished.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        if (result < 0)
            unavailable(QCoreApplication::translate("CompositeGraph", "drawing the time"), result);
        finished->pts = av_rescale_q(finished->pts, base, AVRational{1, framesPerSecond_});
        marked(finished.release());
    }
}
