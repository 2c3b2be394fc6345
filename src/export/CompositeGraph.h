#pragma once

#include "media/AvHandles.h"
#include "export/CombinedExportOptions.h"
#include "export/CombinedLayout.h"
#include "export/DrivingDataPanel.h"

#include <QString>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

struct AVFilterContext;
struct AVFilterGraph;
struct AVFrame;

// Puts the cameras' pictures of one moment on one canvas with libavfilter:
// each scaled into its cell without distortion and padded black, stacked
// (xstack), and the words drawn over them (drawtext). A cell without
// footage is black with the camera's name. A second, small graph draws the
// frame's own time and driving data over the finished canvas, where the
// time marker goes too.
class CompositeGraph {
public:
    // The picture a cell's camera gives, as its first frame had it; a
    // camera with no picture at all has width 0.
    struct Input {
        int width = 0;
        int height = 0;
        int pixelFormat = -1;
    };
    struct Texts {
        bool names = false;
        bool time = false;
        std::optional<QString> reason;
        bool marker = false;
        bool drivingData = false;
    };
    // What is drawn over one canvas.
    struct Label {
        QString time;
        quint32 marker = 0;
        std::optional<DrivingDataPanel::Reading> drivingData; // no panel without one
    };
    using Sink = std::function<void(AVFrame *)>;

    // inputs: one for each of the layout's cells, in order. nv12: hand out
    // NV12 pictures (for the hardware encoder) instead of planar 4:2:0.
    // Throws Exporter::ExportError when the filters can't be set up.
    CompositeGraph(const CombinedLayout &layout, const std::vector<Input> &inputs, const Texts &texts,
                   int framesPerSecond, bool nv12);
    ~CompositeGraph();
    CompositeGraph(const CompositeGraph &) = delete;
    CompositeGraph &operator=(const CompositeGraph &) = delete;

    // The pictures of one tick, one per cell (null where the camera has
    // nothing to show). Each finished canvas goes to sink, in order, with
    // its pts in ticks; the sink may keep it (it owns the frame).
    void add(int64_t tick, const std::vector<const AVFrame *> &pictures, const Label &label, const Sink &sink);
    // Hands out the canvases still inside.
    void finish(const Sink &sink);

private:
    void drain(const Sink &sink);
    void decorate(AVFrame *canvas, const Sink &sink);

    CombinedLayout layout_;
    Texts texts_;
    int framesPerSecond_;

    Av::FilterGraph compose_;
    std::vector<AVFilterContext *> sources_;
    std::vector<Av::Frame> black_;
    AVFilterContext *composed_ = nullptr;

    std::optional<DrivingDataPanel> panel_;
    Av::FilterGraph overlay_; // null when nothing is drawn over the whole canvas
    AVFilterContext *overlayIn_ = nullptr;
    AVFilterContext *overlayOut_ = nullptr;
    std::map<int64_t, Label> labels_;
};
