#include "support/DamagedHeaders.h"

#include "support/Mp4Boxes.h"
#include "support/TestClips.h"

#include <QTest>
#include <QtEndian>
#include <stdexcept>

namespace DamagedHeaders {

namespace {

const QByteArray trak = "moov/trak";
const QByteArray stbl = "moov/trak/mdia/minf/stbl";

QByteArray be32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

// The sample entry's picture size (avc1: 24 bytes into the entry's payload).
QByteArray withPictureSize(const QByteArray &clip, quint16 width, quint16 height)
{
    Mp4Boxes boxes(clip);
    boxes.setField16(stbl + "/stsd", 8 + 32, width);
    boxes.setField16(stbl + "/stsd", 8 + 34, height);
    return boxes.bytes();
}

// The track's edit list, made when the clip has none.
Mp4Boxes withEditList(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    if (!boxes.has(trak + "/edts/elst")) {
        // One edit over the whole media: version 0, one entry.
        const quint32 movieDuration = boxes.field32("moov/mvhd", 16);
        boxes.insertChild(trak, "edts", QByteArray());
        boxes.insertChild(trak + "/edts", "elst", be32(0) + be32(1) + be32(movieDuration) + be32(0) + be32(0x10000));
    }
    return boxes;
}

QByteArray impossiblePicture(const QByteArray &clip)
{
    return withPictureSize(clip, 16000, 16000);
}

// Within what a camera could film, but not what the stream holds.
QByteArray pictureOfAnotherStream(const QByteArray &clip)
{
    return withPictureSize(clip, 1280, 960);
}

// The first picture lasts a whole minute, as long as a clip of the car's.
QByteArray sampleSpanningTheClip(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    const QByteArray stts = boxes.payload(stbl + "/stts");
    const quint32 count = qFromBigEndian<quint32>(stts.constData() + 8);
    const quint32 delta = qFromBigEndian<quint32>(stts.constData() + 12);
    const quint32 scale = boxes.field32("moov/trak/mdia/mdhd", 12);
    boxes.setPayload(stbl + "/stts", be32(0) + be32(2) + be32(1) + be32(60 * scale) + be32(count - 1) + be32(delta));
    return boxes.bytes();
}

// Every sample as large as a whole drive: none fits in the file.
QByteArray sampleSizesPastTheEnd(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    boxes.setField32(stbl + "/stsz", 4, 0x7fff0000);
    return boxes.bytes();
}

// The size and time tables name twice the samples the chunks hold.
QByteArray sampleCountTwiceTheTruth(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    const QByteArray stsz = boxes.payload(stbl + "/stsz");
    const quint32 count = qFromBigEndian<quint32>(stsz.constData() + 8);
    const QByteArray sizes = stsz.mid(12);
    boxes.setPayload(stbl + "/stsz", stsz.left(8) + be32(2 * count) + sizes + sizes);
    const QByteArray stts = boxes.payload(stbl + "/stts");
    const quint32 delta = qFromBigEndian<quint32>(stts.constData() + 12);
    boxes.setPayload(stbl + "/stts", be32(0) + be32(1) + be32(2 * count) + be32(delta));
    return boxes.bytes();
}

// One tick a second: every picture lasts as many seconds as it had ticks.
QByteArray timeScaleOfOne(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    boxes.setField32("moov/trak/mdia/mdhd", 12, 1);
    return boxes.bytes();
}

QByteArray negativeEditList(const QByteArray &clip)
{
    Mp4Boxes boxes = withEditList(clip);
    boxes.setField32(trak + "/edts/elst", 12, quint32(-100000));
    return boxes.bytes();
}

// An edit that plays the media for weeks.
QByteArray hugeEditList(const QByteArray &clip)
{
    Mp4Boxes boxes = withEditList(clip);
    boxes.setField32(trak + "/edts/elst", 8, 0x7fffffff);
    return boxes.bytes();
}

// The track of pictures is declared a sound track.
QByteArray trackNotVideo(const QByteArray &clip)
{
    Mp4Boxes boxes(clip);
    boxes.setPayload("moov/trak/mdia/hdlr", boxes.payload("moov/trak/mdia/hdlr").replace(8, 4, "soun"));
    return boxes.bytes();
}

} // namespace

const std::vector<Damage> &family()
{
    static const std::vector<Damage> all{
        {QStringLiteral("impossible picture size"), &impossiblePicture},
        {QStringLiteral("picture size of another stream"), &pictureOfAnotherStream},
        {QStringLiteral("one sample spanning the clip"), &sampleSpanningTheClip},
        {QStringLiteral("sample sizes past the end of the file"), &sampleSizesPastTheEnd},
        {QStringLiteral("sample count twice the truth"), &sampleCountTwiceTheTruth},
        {QStringLiteral("time scale of 1"), &timeScaleOfOne},
        {QStringLiteral("negative edit list"), &negativeEditList},
        {QStringLiteral("huge edit list"), &hugeEditList},
        {QStringLiteral("track not video"), &trackNotVideo},
    };
    return all;
}

void addRows()
{
    QTest::addColumn<int>("damage");
    for (size_t i = 0; i < family().size(); ++i)
        QTest::newRow(qPrintable(family()[i].name)) << int(i);
}

QByteArray damaged(int damage, const QString &clipPath)
{
    return family().at(size_t(damage)).apply(Mp4Boxes::read(clipPath).bytes());
}

QByteArray cutShort(const QByteArray &indexFirstClip, double fraction)
{
    const qint64 mdat = TestClips::topLevelBoxOffset(indexFirstClip, "mdat");
    const qint64 moov = TestClips::topLevelBoxOffset(indexFirstClip, "moov");
    if (mdat < 0 || moov < 0 || moov > mdat)
        throw std::runtime_error("the clip's index does not come first");
    return indexFirstClip.left(mdat + qint64(double(indexFirstClip.size() - mdat) * fraction));
}

} // namespace DamagedHeaders
