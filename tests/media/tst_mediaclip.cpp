#include "drive/ClipProber.h"
#include "drive/TelemetryReader.h"
#include "media/ClipReader.h"
#include "media/MediaClip.h"
#include "playback/MediaSource.h"
#include "playback/ThumbnailLoader.h"
#include "support/DamagedHeaders.h"
#include "support/DriveBuilder.h"
#include "support/Mp4Boxes.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QFile>
#include <QImage>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

using Verdict = HeaderCheck::ClipFacts::Verdict;

namespace {

HeaderCheck::ClipFacts factsOf(const QString &path)
{
    MediaClip::Options options;
    options.checkHeader = true;
    return MediaClip::open(path, {}, options)->facts();
}

// Every byte turned by a key, as a stand-in for the car's encryption: no
// reader of plain files can make anything of such a clip.
QByteArray scrambled(QByteArray bytes)
{
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = char(bytes[i] ^ char(0x5a + i % 7));
    return bytes;
}

// The reader a decrypting feature supplies: the plain movie, page by page
// from the scrambled file, with its own notion of position and size.
class UnscramblingReader : public ClipReader {
public:
    explicit UnscramblingReader(QByteArray scrambledBytes) : bytes_(scrambled(std::move(scrambledBytes))) {}
    int read(unsigned char *buffer, int size) override
    {
        const int n = int(std::min<qint64>(size, bytes_.size() - position_));
        std::memcpy(buffer, bytes_.constData() + position_, size_t(std::max(0, n)));
        position_ += std::max(0, n);
        return std::max(0, n);
    }
    int64_t seek(int64_t position) override { return position_ = std::clamp<int64_t>(position, 0, bytes_.size()); }
    int64_t size() override { return bytes_.size(); }

private:
    QByteArray bytes_;
    int64_t position_ = 0;
};

ClipRef clipAt(const QString &path, Date start = Date::fromUnixSeconds(1717254000))
{
    ClipRef clip;
    clip.url = path;
    clip.camera = Camera::front;
    clip.startDate = start;
    clip.fileSize = QFileInfo(path).size();
    return clip;
}

} // namespace

class TestMediaClip : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString good_;

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        av_log_set_level(AV_LOG_QUIET);
        good_ = TestClips::clip();
    }

    // Each damage contradicts the data, and nothing of such a clip is
    // trusted; the good clip is sound at its own length.
    void everyDamagedHeaderIsContradicted_data()
    {
        DamagedHeaders::addRows();
    }
    void everyDamagedHeaderIsContradicted()
    {
        QFETCH(int, damage);
        QCOMPARE(factsOf(good_).verdict, Verdict::sound);
        QVERIFY(std::abs(factsOf(good_).lengthSeconds - 2.0) < 0.01);
        const QString path = dir_.filePath(QStringLiteral("damaged-%1.mp4").arg(damage));
        TeslaCamFixture::writeFile(path, DamagedHeaders::damaged(damage, good_));
        const HeaderCheck::ClipFacts facts = factsOf(path);
        QVERIFY2(facts.verdict == Verdict::contradicted && !facts.reason.isEmpty(), qPrintable(facts.reason));
    }

    // Data that stop short of the header's promise are used for what they
    // hold: a clip cut to a fifth of its samples, and a size table that
    // stops at half its time table.
    void dataShortOfTheHeaderKeepWhatTheyHold_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<double>("seconds");
        QTest::newRow("cut to a fifth") << QStringLiteral("cut") << 0.4;
        QTest::newRow("size table stops halfway") << QStringLiteral("sizes") << 1.0;
    }
    void dataShortOfTheHeaderKeepWhatTheyHold()
    {
        QFETCH(QString, kind);
        QFETCH(double, seconds);
        QByteArray bytes;
        if (kind == QLatin1String("cut")) {
            TestClips::ClipOptions indexFirst;
            indexFirst.faststart = true;
            bytes = DamagedHeaders::cutShort(DriveBuilder::readQuietly(TestClips::clip(indexFirst)), 0.2);
        } else {
            Mp4Boxes boxes = Mp4Boxes::read(good_);
            boxes.setField32("moov/trak/mdia/minf/stbl/stsz", 8, 36);
            bytes = boxes.bytes();
        }
        const QString path = dir_.filePath(kind + QStringLiteral(".mp4"));
        TeslaCamFixture::writeFile(path, bytes);
        const HeaderCheck::ClipFacts facts = factsOf(path);
        QVERIFY2(facts.verdict == Verdict::shortened, qPrintable(facts.reason));
        // A cut lands within a picture, which is lost with the rest.
        QVERIFY2(facts.lengthSeconds <= seconds + 0.03 && facts.lengthSeconds > seconds - 0.1,
                 qPrintable(QString::number(facts.lengthSeconds)));
    }

    // A reader supplied once serves every reader of footage: the prober,
    // the driving-data reader, the player and the event's picture all read a
    // clip no plain reader can make anything of (the exporter: the command line's encrypted export).
    void aReaderInstalledOnceServesEveryReader()
    {
        const QString source = dir_.filePath(QStringLiteral("records.mp4"));
        TelemetryClipWriter::remux(good_, source, [](int frame, double) {
            TelemetryClipWriter::FrameRecord record;
            record.message.set_version(1);
            record.message.set_frame_seq_no(quint64(frame));
            return std::optional(record);
        });
        const QString clip = dir_.filePath(QStringLiteral("2024-06-01_15-00-00-front.mp4"));
        TeslaCamFixture::writeFile(clip, scrambled(DriveBuilder::readQuietly(source)));
        const QString thumb = dir_.filePath(QStringLiteral("thumb.png"));
        TeslaCamFixture::writeFile(thumb, scrambled(TeslaCamFixture::flatPng(QSize(320, 240), Qt::red)));

        QCOMPARE(ClipProber::probe(clipAt(clip)), ClipHealth::unreadable);
        QVERIFY(!ThumbnailLoader::loadNow(thumb));
        ClipReaders::install([](const QString &path, std::stop_token) -> std::unique_ptr<ClipReader> {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                return nullptr;
            return std::make_unique<UnscramblingReader>(file.readAll());
        });
        const auto plainAgain = qScopeGuard([] { ClipReaders::install({}); });

        const ClipProber::ProbeResult probed = ClipProber::probeDetailed(clipAt(clip));
        QCOMPARE(probed.health, ClipHealth::ok);
        QVERIFY(probed.duration && std::abs(*probed.duration - 2.0) < 0.05);
        const auto track = TelemetryReader::readClip(clipAt(clip));
        QVERIFY(track);
        QCOMPARE(track->records.size(), size_t(72));
        QCOMPARE(ThumbnailLoader::loadNow(thumb).value_or(QImage()).pixelColor(10, 10), QColor(Qt::red));

        MediaSource played(clip, {}, 1);
        double time = -1;
        int frames = 0;
        while (played.nextFrame(&time))
            ++frames;
        QCOMPARE(frames, 72);
    }
};

QTEST_GUILESS_MAIN(TestMediaClip)
#include "tst_mediaclip.moc"
