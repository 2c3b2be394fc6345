#pragma once

// The one way a clip is opened, for every reader of footage: its bytes come
// through the clip reader (the installed one unless another is handed in),
// its header is read and, where asked, measured against its data, and its
// video decoder is opened, on the graphics hardware where asked. With a
// read limit the whole open runs under the I/O watchdog.

#include "media/ClipReader.h"
#include "media/Demuxer.h"
#include "media/HeaderCheck.h"
#include "media/VideoDecoder.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

struct AVStream;

class MediaClip {
public:
    enum class Outcome {
        opened,      // a movie with a video stream (and its decoder, where asked)
        notAMovie,   // the file can't be read, or isn't a movie FFmpeg can open
        noVideo,     // a movie without pictures
        undecodable, // pictures no decoder here takes
    };
    enum class StreamInfo {
        never,          // the header alone (MP4 headers describe their streams)
        whenIncomplete, // read packets only when the header leaves the video's format or length out
        always,         // read packets for what the header leaves out, as a player does
    };
    struct Options {
        // The car writes ISO base media only; the player takes any movie.
        bool mp4Only = true;
        StreamInfo streamInfo = StreamInfo::never;
        // Measure the header against the data (facts()); reads the first picture's sample.
        bool checkHeader = false;
        std::optional<VideoDecoder::Options> decode;
        ClipReaderFactory reader; // empty: the installed one
        // Only the header and a sample or two will be read: small reads.
        bool lookOnly = false;
    };

    // Never null. Stop requested while opening gives notAMovie.
    static std::unique_ptr<MediaClip> open(const QString &path, std::stop_token stop, const Options &options);
    // The same under the watchdog's limit: throws IOWatchdog::TimedOut when
    // the drive doesn't answer in time, CancellationError when stop is
    // requested. The clip hears stop only while it opens.
    static std::unique_ptr<MediaClip> openWithin(std::chrono::milliseconds limit, const QString &path,
                                                 std::stop_token stop, Options options);

    Outcome outcome() const { return outcome_; }
    bool isOpened() const { return outcome_ == Outcome::opened; }
    // Null for notAMovie.
    Demuxer *demuxer() const { return demuxer_.get(); }
    AVFormatContext *context() const { return demuxer_ ? demuxer_->context() : nullptr; }
    int videoStream() const { return videoStream_; }
    AVStream *video() const;
    // With checkHeader: the header measured against the data (also for a
    // notAMovie whose header could be read).
    const HeaderCheck::ClipFacts &facts() const { return facts_; }
    // With decode, or after openDecoder.
    VideoDecoder *decoder() const { return decoder_.get(); }
    // Opens the video's decoder now, for a caller that chooses its options
    // by what the header says; false when no decoder takes the stream.
    bool openDecoder(const VideoDecoder::Options &options);

private:
    MediaClip() = default;

    Outcome outcome_ = Outcome::notAMovie;
    std::unique_ptr<Demuxer> demuxer_;
    int videoStream_ = -1;
    HeaderCheck::ClipFacts facts_;
    // Declared last: freed before the demuxer whose stream it decodes.
    std::unique_ptr<VideoDecoder> decoder_;
};
