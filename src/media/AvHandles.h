#pragma once

// One owner type per FFmpeg object, so that no other file writes a free call.

#include <memory>

struct AVBufferRef;
struct AVCodecContext;
struct AVCodecParameters;
struct AVCodecParserContext;
struct AVDictionary;
struct AVFilterGraph;
struct AVFormatContext;
struct AVFrame;
struct AVIOContext;
struct AVPacket;
struct SwsContext;

namespace Av {

struct PacketFree {
    void operator()(AVPacket *packet) const;
};
struct FrameFree {
    void operator()(AVFrame *frame) const;
};
struct CodecContextFree {
    void operator()(AVCodecContext *context) const;
};
struct CodecParametersFree {
    void operator()(AVCodecParameters *parameters) const;
};
struct BufferUnref {
    void operator()(AVBufferRef *buffer) const;
};
struct ScalerFree {
    void operator()(SwsContext *scaler) const;
};
struct FilterGraphFree {
    void operator()(AVFilterGraph *graph) const;
};
struct ParserClose {
    void operator()(AVCodecParserContext *parser) const;
};
// An output context made by avformat_alloc_output_context2 (never opened for input).
struct OutputContextFree {
    void operator()(AVFormatContext *context) const;
};
// A custom I/O context made by avio_alloc_context, with its buffer.
struct IoContextFree {
    void operator()(AVIOContext *context) const;
};
// An input context opened by avformat_open_input.
struct InputContextClose {
    void operator()(AVFormatContext *context) const;
};

using Packet = std::unique_ptr<AVPacket, PacketFree>;
using Frame = std::unique_ptr<AVFrame, FrameFree>;
using CodecContext = std::unique_ptr<AVCodecContext, CodecContextFree>;
using CodecParameters = std::unique_ptr<AVCodecParameters, CodecParametersFree>;
using SharedCodecParameters = std::shared_ptr<const AVCodecParameters>;
using Buffer = std::unique_ptr<AVBufferRef, BufferUnref>;
using Scaler = std::unique_ptr<SwsContext, ScalerFree>;
using FilterGraph = std::unique_ptr<AVFilterGraph, FilterGraphFree>;
using Parser = std::unique_ptr<AVCodecParserContext, ParserClose>;
using OutputContext = std::unique_ptr<AVFormatContext, OutputContextFree>;
using InputContext = std::unique_ptr<AVFormatContext, InputContextClose>;
using IoContext = std::unique_ptr<AVIOContext, IoContextFree>;

// Blank objects; throw std::bad_alloc when FFmpeg has no memory for them.
Packet makePacket();
Frame makeFrame();
// A copy that outlives the stream it came from; null when it can't be made.
SharedCodecParameters copyParameters(const AVCodecParameters *source);

// Options handed to an FFmpeg open call, freed with the object.
class Dictionary {
public:
    Dictionary() = default;
    ~Dictionary();
    Dictionary(const Dictionary &) = delete;
    Dictionary &operator=(const Dictionary &) = delete;

    void set(const char *key, const char *value);
    void set(const char *key, long long value);
    // For the call that takes the options and hands back what it didn't use.
    AVDictionary **out() { return &dictionary_; }

private:
    AVDictionary *dictionary_ = nullptr;
};

} // namespace Av
