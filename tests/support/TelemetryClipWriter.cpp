#include "support/TelemetryClipWriter.h"

#include "media/AvHandles.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <QFile>
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace TelemetryClipWriter {

namespace {

void appendSeiNumber(QByteArray &out, int value)
{
    while (value >= 255) {
        out.append(char(0xFF));
        value -= 255;
    }
    out.append(char(value));
}

void appendMessage(QByteArray &out, int type, const QByteArray &body)
{
    appendSeiNumber(out, type);
    appendSeiNumber(out, int(body.size()));
    out.append(body);
}

[[noreturn]] void fail(const std::string &what)
{
    throw std::runtime_error(what);
}

using Packet = Av::Packet;

} // namespace

QByteArray escape(const QByteArray &rbsp)
{
    QByteArray out;
    int zeros = 0;
    for (const char c : rbsp) {
        const auto b = uint8_t(c);
        if (zeros >= 2 && b <= 3) {
            out.append(char(3));
            zeros = 0;
        }
        out.append(c);
        zeros = b == 0 ? zeros + 1 : 0;
    }
    return out;
}

QByteArray payload(const FrameRecord &record)
{
    QByteArray out(record.markerLength, char(0x42));
    out.append(char(record.damage == Damage::badMarker ? 0x6A : 0x69));
    std::string message = record.message.SerializeAsString();
    switch (record.damage) {
    case Damage::none:
    case Damage::badMarker:
        break;
    case Damage::badProtobuf:
        // Field 1 with wire type 7, which no message has.
        message.insert(0, "\x0f\x01", 2);
        break;
    case Damage::cutShort:
        message.resize(message.size() > 3 ? message.size() - 3 : 0);
        break;
    }
    out.append(message.data(), qsizetype(message.size()));
    return out;
}

QByteArray seiUnit(const FrameRecord &record, bool hevc)
{
    QByteArray rbsp;
    if (record.afterLongMessage) {
        QByteArray other(300, 'u');
        other.replace(0, 16, "0123456789abcdef"); // its UUID
        appendMessage(rbsp, 5, other);
    }
    appendMessage(rbsp, 5, payload(record));
    rbsp.append(char(0x80));
    const QByteArray header = hevc ? QByteArray("\x4e\x01", 2) : QByteArray("\x06", 1);
    return header + escape(rbsp);
}

void remux(const QString &source, const QString &dest, const RecordFor &recordFor, bool faststart,
           const QString &creationTime)
{
    AVFormatContext *opened = nullptr;
    if (avformat_open_input(&opened, QFile::encodeName(source).constData(), nullptr, nullptr) < 0)
        fail("can't open " + source.toStdString());
    const Av::InputContext input(opened);
    AVFormatContext *in = input.get();
    if (avformat_find_stream_info(in, nullptr) < 0)
        fail("can't read " + source.toStdString());
    const int video = av_find_best_stream(in, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (video < 0)
        fail("no video in " + source.toStdString());
    const AVCodecParameters *vpar = in->streams[video]->codecpar;
    const bool hevc = vpar->codec_id == AV_CODEC_ID_HEVC;
    if (!hevc && vpar->codec_id != AV_CODEC_ID_H264)
        fail("not H.264 or H.265: " + source.toStdString());
    int lengthSize = 4;
    if (!hevc && vpar->extradata_size >= 7 && vpar->extradata[0] == 1)
        lengthSize = (vpar->extradata[4] & 3) + 1;
    if (hevc && vpar->extradata_size >= 23 && vpar->extradata[0] == 1)
        lengthSize = (vpar->extradata[21] & 3) + 1;

    // All packets first: the frames are numbered in presentation order.
    std::vector<Packet> packets;
    for (;;) {
        Packet p(av_packet_alloc());
        if (av_read_frame(in, p.get()) < 0)
            break;
        packets.push_back(std::move(p));
    }
    std::vector<int64_t> times;
    for (const Packet &p : packets)
        if (p->stream_index == video && p->pts != AV_NOPTS_VALUE)
            times.push_back(p->pts);
    std::sort(times.begin(), times.end());
    const AVStream *vs = in->streams[video];
    const int64_t first = vs->start_time != AV_NOPTS_VALUE ? vs->start_time : (times.empty() ? 0 : times.front());

    AVFormatContext *made = nullptr;
    if (avformat_alloc_output_context2(&made, nullptr, "mp4", QFile::encodeName(dest).constData()) < 0 || !made)
        fail("can't make " + dest.toStdString());
    const Av::OutputContext output(made);
    AVFormatContext *out = output.get();
    out->flags |= AVFMT_FLAG_BITEXACT; // the same bytes on every build
    if (!creationTime.isEmpty())
        av_dict_set(&out->metadata, "creation_time", creationTime.toLatin1().constData(), 0);
    for (unsigned i = 0; i < in->nb_streams; ++i) {
        AVStream *s = avformat_new_stream(out, nullptr);
        if (!s || avcodec_parameters_copy(s->codecpar, in->streams[i]->codecpar) < 0)
            fail("can't copy streams");
        s->codecpar->codec_tag = 0;
        if (hevc && int(i) == video)
            s->codecpar->codec_tag = MKTAG('h', 'v', 'c', '1');
        s->time_base = in->streams[i]->time_base;
    }
    if (avio_open(&out->pb, QFile::encodeName(dest).constData(), AVIO_FLAG_WRITE) < 0)
        fail("can't write " + dest.toStdString());
    const std::unique_ptr<AVIOContext *, int (*)(AVIOContext **)> closeOut(&out->pb, avio_closep);
    Av::Dictionary options;
    if (faststart)
        options.set("movflags", "+faststart");
    const int written = avformat_write_header(out, options.out());
    if (written < 0)
        fail("can't write the header of " + dest.toStdString());

    for (Packet &p : packets) {
        const AVStream *is = in->streams[p->stream_index];
        if (p->stream_index == video && p->pts != AV_NOPTS_VALUE) {
            const int frame = int(std::lower_bound(times.begin(), times.end(), p->pts) - times.begin());
            const double time = double(p->pts - first) * av_q2d(is->time_base);
            if (const std::optional<FrameRecord> record = recordFor(frame, time)) {
                const QByteArray unit = seiUnit(*record, hevc);
                Packet q(av_packet_alloc());
                if (av_new_packet(q.get(), int(unit.size()) + lengthSize + p->size) < 0)
                    fail("out of memory");
                av_packet_copy_props(q.get(), p.get());
                uint8_t *at = q->data;
                for (int i = lengthSize - 1; i >= 0; --i)
                    *at++ = uint8_t(unit.size() >> (8 * i));
                std::copy(unit.begin(), unit.end(), at);
                std::copy(p->data, p->data + p->size, at + unit.size());
                p = std::move(q);
            }
        }
        const AVStream *os = out->streams[p->stream_index];
        av_packet_rescale_ts(p.get(), is->time_base, os->time_base);
        p->pos = -1;
        if (av_interleaved_write_frame(out, p.get()) < 0)
            fail("can't write a packet to " + dest.toStdString());
    }
    if (av_write_trailer(out) < 0)
        fail("can't finish " + dest.toStdString());
}

} // namespace TelemetryClipWriter
