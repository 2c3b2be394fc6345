#include "base/IOWatchdog.h"
#include "drive/SeiTelemetry.h"
#include "drive/TelemetryReader.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/TelemetryClipWriter.h"
#include "support/TestClips.h"
#include "playback/MediaSource.h"

extern "C" {
#include <libavutil/frame.h>
}

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace std::chrono_literals;
using Message = TelemetryClipWriter::Message;
using FrameRecord = TelemetryClipWriter::FrameRecord;
using Damage = TelemetryClipWriter::Damage;

namespace {

// A moving car whose every field changes from frame to frame.
Message driving(int frame)
{
    Message m;
    m.set_version(1);
    m.set_gear_state(frame < 40 ? Message::GEAR_DRIVE : Message::GEAR_REVERSE);
    m.set_frame_seq_no(5000 + quint64(frame));
    m.set_vehicle_speed_mps(10.0f + 0.25f * float(frame));
    m.set_accelerator_pedal_position(frame % 2 ? 0.3f : 0.0f);
    m.set_steering_wheel_angle(-12.5f + float(frame));
    m.set_blinker_on_left(frame >= 30);
    m.set_blinker_on_right(frame % 7 == 0);
    m.set_brake_applied(frame % 10 == 0);
    m.set_autopilot_state(frame < 20 ? Message::NONE : Message::AUTOSTEER);
    m.set_latitude_deg(30.2672 + 1e-5 * frame);
    m.set_longitude_deg(-97.7431 - 1e-5 * frame);
    m.set_heading_deg(87.125 + frame);
    m.set_linear_acceleration_mps2_x(0.125 * frame);
    m.set_linear_acceleration_mps2_y(-0.5);
    m.set_linear_acceleration_mps2_z(9.81);
    return m;
}

bool sameFields(const TelemetryRecord &r, const Message &m)
{
    return r.version == m.version() && int(r.gear) == int(m.gear_state()) && r.frameSequenceNumber == m.frame_seq_no()
        && r.speed == m.vehicle_speed_mps() && r.acceleratorPedal == m.accelerator_pedal_position()
        && r.steeringAngle == m.steering_wheel_angle() && r.blinkerLeft == m.blinker_on_left()
        && r.blinkerRight == m.blinker_on_right() && r.brakeApplied == m.brake_applied()
        && int(r.autopilot) == int(m.autopilot_state()) && r.latitude == m.latitude_deg()
        && r.longitude == m.longitude_deg() && r.heading == m.heading_deg()
        && r.accelerationX == m.linear_acceleration_mps2_x() && r.accelerationY == m.linear_acceleration_mps2_y()
        && r.accelerationZ == m.linear_acceleration_mps2_z();
}

ClipRef clipAt(const QString &path)
{
    ClipRef clip;
    clip.url = path;
    return clip;
}

TestClips::ClipOptions smallClip()
{
    TestClips::ClipOptions options;
    options.width = 160;
    options.height = 120;
    return options;
}

} // namespace

class TestTelemetryReader : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;

    QString writeClip(const QString &name, const TelemetryClipWriter::RecordFor &recordFor,
                      const TestClips::ClipOptions &options = smallClip())
    {
        const QString path = tmp_.filePath(name);
        TelemetryClipWriter::remux(TestClips::clip(options), path, recordFor);
        return path;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        QVERIFY(tmp_.isValid());
    }

    // B-frames: each record belongs to the frame it preceded; the encoder's own user data on frame one is skipped.
    void everyFrameReadsBackAtItsTime()
    {
        TestClips::ClipOptions options = smallClip();
        options.bFrames = 2;
        const QString path = writeClip(QStringLiteral("driving.mp4"), [](int frame, double) {
            return FrameRecord{driving(frame)};
        }, options);
        const auto track = TelemetryReader::readClip(clipAt(path));
        QVERIFY(track);
        QCOMPARE(std::tuple(track->frameTimes.size(), track->records.size(), track->duration),
                 std::tuple(size_t(72), size_t(72), 2.0));
        for (int frame : {0, 1, 2, 3, 37, 71}) {
            const TelemetryRecord &r = track->records[size_t(frame)];
            QCOMPARE(r.frameIndex, frame);
            QCOMPARE(r.mediaTime, frame / 36.0);
            QVERIFY2(sameFields(r, driving(frame)), qPrintable(QString::number(frame)));
        }
        // Between two frames, the earlier is on screen.
        for (const auto &[time, frame] : std::vector<std::pair<double, int>>{{10.5 / 36.0, 10}, {0.0, 0}, {1.999, 71}})
            QCOMPARE(track->recordAt(time)->frameIndex, frame);
        QVERIFY(!track->recordAt(-0.01));
        QVERIFY(!track->recordAt(2.0));
        QCOMPARE(track->wallClock(0.5), Date(0.5));
    }

    void aBadRecordCostsItsFrameOnly_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("frames");
        QTest::newRow("H.264") << QStringLiteral("libx264") << 72;
        QTest::newRow("H.265") << QStringLiteral("libx265") << 36;
    }

    void aBadRecordCostsItsFrameOnly()
    {
        QFETCH(QString, codec);
        QFETCH(int, frames);
        TestClips::ClipOptions options = smallClip();
        options.codec = codec;
        options.seconds = frames / 36.0;
        const QString name = codec + QStringLiteral("-damaged.mp4");
        const QString path = writeClip(name, [](int frame, double) -> std::optional<FrameRecord> {
            FrameRecord record{driving(frame)};
            switch (frame) {
            case 5: return std::nullopt;
            case 6: record.damage = Damage::badMarker; break;
            case 7: record.damage = Damage::badProtobuf; break;
            case 8: record.damage = Damage::cutShort; break;
            case 9:
                record.afterLongMessage = true;
                record.markerLength = 1;
                break;
            case 10: record.markerLength = 7; break;
            }
            return record;
        }, options);
        const auto track = TelemetryReader::readClip(clipAt(path));
        QVERIFY(track);
        QCOMPARE(std::tuple(track->frameTimes.size(), track->records.size()), std::tuple(size_t(frames), size_t(frames - 4)));
        for (int frame = 5; frame <= 8; ++frame) {
            QVERIFY(!track->recordOfFrame(frame));
            QVERIFY(!track->recordAt(frame / 36.0 + 0.001));
        }
        for (int frame : {4, 9, 10, 11})
            QVERIFY2(sameFields(*track->recordOfFrame(frame), driving(frame)), qPrintable(QString::number(frame)));
    }

    void escapedBytesInsideTheRecordReadBack()
    {
        // Round numbers are runs of zero bytes on the wire: 2.0f is 00 00 00 40.
        Message m;
        m.set_version(2);
        m.set_gear_state(Message::GEAR_DRIVE);
        m.set_vehicle_speed_mps(2.0f);
        m.set_frame_seq_no(0x30000);
        m.set_heading_deg(90.0);
        m.set_latitude_deg(1.0);
        m.set_longitude_deg(2.0);
        m.set_linear_acceleration_mps2_x(0.5);
        m.set_linear_acceleration_mps2_z(3.0);
        const QByteArray unit = TelemetryClipWriter::seiUnit(FrameRecord{m});
        QVERIFY(unit.count(QByteArray("\0\0\3", 3)) >= 3);

        const QString path = writeClip(QStringLiteral("escaped.mp4"), [m](int, double) { return FrameRecord{m}; });
        const auto track = TelemetryReader::readClip(clipAt(path));
        QVERIFY(track);
        QCOMPARE(track->records.size(), size_t(72));
        for (const TelemetryRecord &r : track->records)
            QVERIFY(sameFields(r, m));
        // Zeros followed by what looks like a start code or an escape byte.
        const QByteArray tricky("\0\0\0\0\3\0\0\1\0\0\2\0\0", 13);
        const QByteArray escaped = TelemetryClipWriter::escape(tricky);
        QVERIFY(!escaped.contains(QByteArray("\0\0\1", 3)));
        const auto back = SeiTelemetry::unescape(reinterpret_cast<const uint8_t *>(escaped.constData()),
                                                 size_t(escaped.size()));
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(back.data()), qsizetype(back.size())), tricky);
    }

    // A clip without records is the telemetry timeline's test; files that are no movie give nothing, quickly.
    void filesThatAreNoMovie()
    {
        const QString junk = tmp_.filePath(QStringLiteral("junk.mp4"));
        TeslaCamFixture::writeFile(junk, QByteArray(200000, 'j'));
        QVERIFY(!TelemetryReader::readClip(clipAt(junk)));
        QVERIFY(!TelemetryReader::readClip(clipAt(tmp_.filePath(QStringLiteral("gone.mp4")))));
        const QString fifo = tmp_.filePath(QStringLiteral("fifo-front.mp4"));
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        QVERIFY(!TelemetryReader::readClip(clipAt(fifo)));
    }

    // A drive failing with EIO mid-clip: the frames before the failure keep their records.
    void aReadFailingPartWayKeepsWhatCameBefore()
    {
        KEELHOLD_FAULTY_FS(fs, mount);
        // Large, and index first, so the failure lies beyond the first reads, in the samples.
        TestClips::ClipOptions options;
        options.lossless = true;
        const QString source = tmp_.filePath(QStringLiteral("failing-source.mp4"));
        TelemetryClipWriter::remux(
            TestClips::clip(options), source, [](int frame, double) { return FrameRecord{driving(frame)}; }, true);
        const QByteArray bytes = DriveBuilder::readQuietly(source);
        fs.addFile(QStringLiteral("clip.mp4"), bytes);
        fs.failReadsFrom(QStringLiteral("clip.mp4"), bytes.size() * 2 / 3);
        const auto track = TelemetryReader::readClip(clipAt(mount.filePath(QStringLiteral("clip.mp4"))));
        QVERIFY(track);
        QVERIFY2(track->records.size() > 10 && track->records.size() < 72, qPrintable(QString::number(track->records.size())));
        QVERIFY(sameFields(track->records[5], driving(5)));
    }

    // Ends when its watchdog gives up (the caller's stop: the telemetry engine's cancellingStopsAStuckLoad).
    void aHangingReadIsLeftBehind()
    {
        KEELHOLD_FAULTY_FS(fs, mount);
        const ClipRef clip = clipAt(fs.addHeldFile(QStringLiteral("held-front.mp4"), QByteArray(128 * 1024, 'x')));
        QVERIFY_THROWS_EXCEPTION(IOWatchdog::TimedOut, IOWatchdog::run(200ms, [clip](std::stop_token stop) {
            return TelemetryReader::readClip(clip, stop);
        }));
        fs.release();
    }

    // Playing, libavcodec hands user data over unescaped; our reading of the record agrees with its reading of the SEI.
    void theDecoderFindsTheSameRecords()
    {
        const QString path = writeClip(QStringLiteral("decoded.mp4"), [](int frame, double) {
            return FrameRecord{driving(frame)};
        });
        const auto track = TelemetryReader::readClip(clipAt(path));
        QVERIFY(track);
        MediaSource source(path, {}, 1);
        double time = 0;
        int frames = 0;
        while (const AVFrame *frame = source.nextFrame(&time)) {
            std::optional<TelemetryRecord> fromSideData;
            for (int i = 0; i < frame->nb_side_data; ++i) {
                const AVFrameSideData *sd = frame->side_data[i];
                if (sd->type == AV_FRAME_DATA_SEI_UNREGISTERED && !fromSideData)
                    fromSideData = SeiTelemetry::recordInPayload(sd->data, sd->size);
            }
            QVERIFY2(fromSideData, qPrintable(QString::number(frames)));
            const TelemetryRecord *fromPackets = track->recordAt(time);
            QVERIFY(fromPackets);
            fromSideData->mediaTime = fromPackets->mediaTime;
            fromSideData->frameIndex = fromPackets->frameIndex;
            QCOMPARE(*fromSideData, *fromPackets);
            ++frames;
        }
        QCOMPARE(frames, 72);
    }

    // Packets as a damaged or crafted file may hold them.
    void packetsThatLieAboutTheirUnits()
    {
        using SeiTelemetry::NalFormat;
        const QByteArray unit = TelemetryClipWriter::seiUnit(FrameRecord{driving(3)});
        auto bytes = [](const QByteArray &b) { return reinterpret_cast<const uint8_t *>(b.constData()); };
        auto lengthPrefixed = [](const QByteArray &u, quint32 claimed) {
            QByteArray p;
            for (int shift = 24; shift >= 0; shift -= 8)
                p.append(char(claimed >> shift));
            return p + u;
        };
        const NalFormat avcc{NalFormat::Codec::h264, 4};
        const QByteArray good = lengthPrefixed(unit, quint32(unit.size()));
        QVERIFY(SeiTelemetry::recordInPacket(bytes(good), size_t(good.size()), avcc));
        // A length past the packet's end: no record, and nothing read beyond.
        const QByteArray overlong = lengthPrefixed(unit, quint32(unit.size() + 1));
        QVERIFY(!SeiTelemetry::recordInPacket(bytes(overlong), size_t(overlong.size()), avcc));
        const QByteArray huge = lengthPrefixed(unit, 0xFFFFFFFFu);
        QVERIFY(!SeiTelemetry::recordInPacket(bytes(huge), size_t(huge.size()), avcc));
        // Cut anywhere, a unit gives a record or none, never a crash.
        for (int cut = 0; cut < good.size(); ++cut)
            SeiTelemetry::recordInPacket(bytes(good), size_t(cut), avcc);
        // Start codes instead of lengths, four-byte and three-byte.
        const QByteArray annexB = QByteArray("\0\0\0\1\x09\xf0", 6) + QByteArray("\0\0\1", 3) + unit;
        const auto fromStartCodes = SeiTelemetry::recordInPacket(bytes(annexB), size_t(annexB.size()),
                                                                 NalFormat{NalFormat::Codec::h264, 0});
        QVERIFY(fromStartCodes && sameFields(*fromStartCodes, driving(3)));
        // What libavcodec hands over as side data: the payload, unescaped.
        const QByteArray side = TelemetryClipWriter::payload(FrameRecord{driving(4)});
        const auto fromSide = SeiTelemetry::recordInPayload(bytes(side), size_t(side.size()));
        QVERIFY(fromSide && sameFields(*fromSide, driving(4)));
        QVERIFY(!SeiTelemetry::recordInPayload(bytes(side), 0));
        QVERIFY(!SeiTelemetry::recordInPayload(bytes(QByteArray("\x69\x08\x01", 3)), 3)); // no 0x42 before 0x69
    }
};

QTEST_GUILESS_MAIN(TestTelemetryReader)
#include "tst_telemetryreader.moc"
