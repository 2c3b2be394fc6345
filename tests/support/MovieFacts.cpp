#include "support/MovieFacts.h"

#include "media/AvHandles.h"
#include "support/TestClips.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <QFile>
#include <memory>

const MovieFacts::Stream *MovieFacts::firstOf(const QString &type) const
{
    for (const Stream &s : streams)
        if (s.type == type)
            return &s;
    return nullptr;
}

bool MovieFacts::indexBeforeData() const
{
    return moovBeforeMdat;
}

MovieFacts MovieFacts::read(const QString &path, bool decode)
{
    MovieFacts facts;
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const qint64 moov = TestClips::topLevelBoxOffset(bytes, "moov");
    facts.moovBeforeMdat = moov >= 0 && moov < TestClips::topLevelBoxOffset(bytes, "mdat");
    AVFormatContext *format = nullptr;
    if (avformat_open_input(&format, QFile::encodeName(path).constData(), nullptr, nullptr) < 0)
        return facts;
    const Av::InputContext closer(format);
    if (avformat_find_stream_info(format, nullptr) < 0)
        return facts;
    facts.opened = true;
    facts.duration = format->duration == AV_NOPTS_VALUE ? 0.0 : double(format->duration) / AV_TIME_BASE;

    std::vector<Av::CodecContext> owned(format->nb_streams);
    std::vector<AVCodecContext *> decoders(format->nb_streams, nullptr);
    std::vector<int64_t> lastDts(format->nb_streams, AV_NOPTS_VALUE);
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const AVStream *st = format->streams[i];
        Stream s;
        s.type = QString::fromLatin1(av_get_media_type_string(st->codecpar->codec_type));
        s.codec = QString::fromLatin1(avcodec_get_name(st->codecpar->codec_id));
        const unsigned tag = st->codecpar->codec_tag;
        for (int shift = 0; shift < 32 && tag; shift += 8)
            s.tag += QLatin1Char(char((tag >> shift) & 0xff));
        s.width = st->codecpar->width;
        s.height = st->codecpar->height;
        s.extradata = QByteArray(reinterpret_cast<const char *>(st->codecpar->extradata), st->codecpar->extradata_size);
        s.duration = st->duration == AV_NOPTS_VALUE ? 0.0 : double(st->duration) * av_q2d(st->time_base);
        s.firstPts = st->start_time == AV_NOPTS_VALUE ? 0.0 : double(st->start_time) * av_q2d(st->time_base);
        facts.streams.push_back(s);
        if (decode && st->codecpar->codec_type == AVMEDIA_TYPE_VIDEO) {
            const AVCodec *codec = avcodec_find_decoder(st->codecpar->codec_id);
            Av::CodecContext ctx(codec ? avcodec_alloc_context3(codec) : nullptr);
            if (ctx && avcodec_parameters_to_context(ctx.get(), st->codecpar) >= 0
                && avcodec_open2(ctx.get(), codec, nullptr) >= 0) {
                decoders[i] = ctx.get();
                owned[i] = std::move(ctx);
            }
        }
    }

    const Av::Packet packing = Av::makePacket();
    const Av::Frame framing = Av::makeFrame();
    AVPacket *packet = packing.get();
    AVFrame *frame = framing.get();
    const auto drain = [&](unsigned index) {
        while (avcodec_receive_frame(decoders[index], frame) >= 0) {
            ++facts.streams[index].decodedFrames;
            if (frame->decode_error_flags || (frame->flags & AV_FRAME_FLAG_CORRUPT))
                ++facts.streams[index].decodeErrors;
            av_frame_unref(frame);
        }
    };
    while (av_read_frame(format, packet) >= 0) {
        const unsigned index = unsigned(packet->stream_index);
        Stream &s = facts.streams[index];
        ++s.packets;
        if (packet->dts != AV_NOPTS_VALUE) {
            if (lastDts[index] != AV_NOPTS_VALUE) {
                if (packet->dts <= lastDts[index])
                    s.dtsStrictlyIncreasing = false;
                s.largestDtsStep = std::max(s.largestDtsStep, double(packet->dts - lastDts[index])
                                                                  * av_q2d(format->streams[index]->time_base));
            }
            lastDts[index] = packet->dts;
        }
        if (decoders[index]) {
            if (avcodec_send_packet(decoders[index], packet) < 0)
                ++s.decodeErrors;
            drain(index);
        }
        av_packet_unref(packet);
    }
    for (unsigned i = 0; i < decoders.size(); ++i) {
        if (!decoders[i])
            continue;
        avcodec_send_packet(decoders[i], nullptr);
        drain(i);
    }
    return facts;
}
