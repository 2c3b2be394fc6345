#include "crypt/EcryptfsReader.h"
#include "crypt/KeyStore.h"
#include "crypt/PageIV.h"
#include "drive/EcryptfsHeader.h"
#include "support/DriveBuilder.h"
#include "support/EcryptfsWriter.h"
#include "support/IsolatedHome.h"
#include "support/TestClips.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/mem.h>
}

#include <openssl/evp.h>
#include <random>
#include <sys/stat.h>

namespace {

// The file's permission bits, as the system keeps them.
int modeOf(const QString &path)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? int(st.st_mode & 07777) : -1;
}

// Every packet of a movie, read through a custom reader or from the file.
struct Packets {
    int count = 0;
    qint64 bytes = 0;
    QByteArray firstKeyFrame;
    bool ok = false;
};

Packets demux(AVIOContext *io, const char *url)
{
    Packets p;
    AVFormatContext *format = avformat_alloc_context();
    if (io) {
        format->pb = io;
        format->flags |= AVFMT_FLAG_CUSTOM_IO;
    }
    if (avformat_open_input(&format, url, nullptr, nullptr) < 0)
        return p;
    AVPacket *packet = av_packet_alloc();
    while (av_read_frame(format, packet) >= 0) {
        ++p.count;
        p.bytes += packet->size;
        if (p.firstKeyFrame.isEmpty() && (packet->flags & AV_PKT_FLAG_KEY))
            p.firstKeyFrame = QByteArray(reinterpret_cast<const char *>(packet->data), packet->size);
        av_packet_unref(packet);
    }
    av_packet_free(&packet);
    avformat_close_input(&format);
    p.ok = true;
    return p;
}

} // namespace

class TestEcryptfs : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString path(const QString &name) const { return dir_.filePath(name); }

    QString writeLower(const QString &name, const QByteArray &bytes)
    {
        TeslaCamFixture::writeFile(path(name), bytes);
        return path(name);
    }

private Q_SLOTS:
    // Every byte read back at every kind of position: from the start, across
    // page edges, in the last short page, and past the end.
    void readsAndSeeksGiveThePlainBytes()
    {
        const QByteArray plain = DriveBuilder::randomBytes(3 * 4096 + 4096 * 64 * 8 + 1234, 11);
        const QByteArray key = EcryptfsWriter::fileKey(1);
        const QString file = writeLower(QStringLiteral("a.mp4"),
                                        EcryptfsWriter::encrypt(plain, key, EcryptfsWriter::keyBlock(1)));
        QCOMPARE(QFileInfo(file).size(), Ecryptfs::lowerFileSize(plain.size()));
        auto reader = EcryptfsReader::open(file, key);
        QVERIFY(reader);
        QCOMPARE(reader->size(), qint64(plain.size()));

        QByteArray all(plain.size() + 100, '\0');
        qint64 got = 0;
        for (int n; (n = reader->read(reinterpret_cast<uint8_t *>(all.data()) + got, 5000)) > 0;)
            got += n;
        QCOMPARE(got, qint64(plain.size()));
        QVERIFY(all.left(plain.size()) == plain);
        QCOMPARE(reader->read(reinterpret_cast<uint8_t *>(all.data()), 10), 0);

        std::mt19937 random(5);
        for (int i = 0; i < 200; ++i) {
            const qint64 at = qint64(random() % quint32(plain.size()));
            const int length = int(random() % 20000) + 1;
            QByteArray part(length, '\0');
            QCOMPARE(reader->seek(at, SEEK_SET), at);
            const int n = reader->read(reinterpret_cast<uint8_t *>(part.data()), length);
            QCOMPARE(n, int(std::min<qint64>(length, plain.size() - at)));
            QVERIFY2(part.left(n) == plain.mid(at, n), qPrintable(QStringLiteral("at %1").arg(at)));
        }
        // Whole pages from a page edge, as a demuxer asks, straight to the end.
        QCOMPARE(reader->seek(4096 * 3, SEEK_SET), qint64(4096 * 3));
        QByteArray big(300000, '\0');
        QByteArray rest;
        for (int n; (n = reader->read(reinterpret_cast<uint8_t *>(big.data()), int(big.size()))) > 0;)
            rest += big.left(n);
        QVERIFY(rest == plain.mid(4096 * 3));

        // A demuxer streaming from an odd place in long reads, which are shared
        // with a second thread and read ahead of; seeks back and forward
        // drop what was read ahead.
        for (const qint64 start : {qint64(777), qint64(4096 * 5)}) {
            qint64 at = reader->seek(start, SEEK_SET);
            for (int reads = 0;; ++reads) {
                if (reads == 3)
                    at = reader->seek(at - 50000, SEEK_SET);
                if (reads == 5)
                    at = reader->seek(at + 600000, SEEK_SET);
                const int n = reader->read(reinterpret_cast<uint8_t *>(big.data()), 256 * 1024);
                if (n <= 0)
                    break;
                QVERIFY2(big.left(n) == plain.mid(at, n), qPrintable(QStringLiteral("at %1").arg(at)));
                at += n;
            }
            QCOMPARE(at, qint64(plain.size()));
        }

        QCOMPARE(reader->seek(-10, SEEK_END), qint64(plain.size() - 10));
        QCOMPARE(reader->seek(4, SEEK_CUR), qint64(plain.size() - 6));
        QVERIFY(reader->seek(-1, SEEK_SET) < 0);
        QCOMPARE(EcryptfsReader::seekPacket(reader.get(), 0, AVSEEK_SIZE), int64_t(plain.size()));
    }

    // The page IVs' own MD5 against OpenSSL's.
    void pageIVsAreMD5()
    {
        std::mt19937 random(9);
        for (int i = 0; i < 500; ++i) {
            uint8_t input[32];
            for (uint8_t &b : input)
                b = uint8_t(random());
            uint8_t ours[16];
            PageIV::md5Of32(input, ours);
            unsigned char theirs[EVP_MAX_MD_SIZE];
            unsigned int length = 0;
            EVP_Digest(input, sizeof input, theirs, &length, EVP_md5(), nullptr);
            QCOMPARE(QByteArray(reinterpret_cast<const char *>(ours), 16),
                     QByteArray(reinterpret_cast<const char *>(theirs), int(length)));
        }
    }

    void keyThatDoesntFitIsToldApart()
    {
        const QString clip = TestClips::clip();
        const QString file = path(QStringLiteral("b.mp4"));
        EcryptfsWriter::encryptFile(clip, file, EcryptfsWriter::fileKey(2), EcryptfsWriter::keyBlock(2));
        QVERIFY(EcryptfsReader::open(file, EcryptfsWriter::fileKey(2))->keyFits());
        QVERIFY(!EcryptfsReader::open(file, EcryptfsWriter::fileKey(3))->keyFits());
        QVERIFY(!EcryptfsReader::open(file, QByteArray(15, 'k')));
        QVERIFY(!EcryptfsReader::open(clip, EcryptfsWriter::fileKey(2))); // a clear movie
    }

    // A demuxer on the reader's callbacks sees the same movie as on the plain file.
    void demuxerReadsThroughTheCallbacks()
    {
        const QString clip = TestClips::clip();
        const QString file = path(QStringLiteral("c.mp4"));
        EcryptfsWriter::encryptFile(clip, file, EcryptfsWriter::fileKey(4), EcryptfsWriter::keyBlock(4));
        auto reader = EcryptfsReader::open(file, EcryptfsWriter::fileKey(4));
        QVERIFY(reader);
        const int bufferSize = 32 * 1024;
        AVIOContext *io = avio_alloc_context(static_cast<unsigned char *>(av_malloc(bufferSize)), bufferSize, 0,
                                             reader.get(), &EcryptfsReader::readPacket, nullptr,
                                             &EcryptfsReader::seekPacket);
        const Packets decrypted = demux(io, "c.mp4");
        av_freep(&io->buffer);
        avio_context_free(&io);
        const Packets clear = demux(nullptr, QFile::encodeName(clip).constData());
        QVERIFY(decrypted.ok && clear.ok);
        QVERIFY(clear.count > 10);
        QCOMPARE(decrypted.count, clear.count);
        QCOMPARE(decrypted.bytes, clear.bytes);
        QVERIFY(decrypted.firstKeyFrame == clear.firstKeyFrame);
    }

    void headerTellsEachKindOfFile()
    {
        const QByteArray plain = DriveBuilder::randomBytes(70000, 3);
        const EcryptfsWriter::KeyBlock written = EcryptfsWriter::keyBlock(7, "7SAYGDEE1PA000042");
        const QByteArray lower = EcryptfsWriter::encrypt(plain, EcryptfsWriter::fileKey(7), written);

        const Ecryptfs::Header good = Ecryptfs::read(writeLower(QStringLiteral("good.mp4"), lower));
        QCOMPARE(good.state, Ecryptfs::Header::State::ok);
        QCOMPARE(good.plainSize, qint64(plain.size()));
        QCOMPARE(good.keyBlock.keyId, written.keyId);
        QCOMPARE(good.keyBlock.vin, QStringLiteral("7SAYGDEE1PA000042"));
        QCOMPARE(good.keyBlock.timestamp, written.timestamp);
        QCOMPARE(good.keyBlock.publicKey, written.publicKey);
        QCOMPARE(good.keyBlock.wrappedKey, written.wrappedKey);
        QCOMPARE(good.keyBlock.raw, written.bytes());

        const QByteArray zeroed = EcryptfsWriter::encrypt(plain, EcryptfsWriter::fileKey(7), std::nullopt);
        QCOMPARE(Ecryptfs::read(writeLower(QStringLiteral("zero.mp4"), zeroed)).state,
                 Ecryptfs::Header::State::zeroKeyBlock);
        QCOMPARE(Ecryptfs::read(writeLower(QStringLiteral("damaged.mp4"), EcryptfsWriter::damageHeader(lower))).state,
                 Ecryptfs::Header::State::damaged);
        // Cut short: the pages no longer cover the size the header promises.
        QCOMPARE(Ecryptfs::read(writeLower(QStringLiteral("short.mp4"), lower.left(lower.size() - 4096))).state,
                 Ecryptfs::Header::State::damaged);
        QCOMPARE(Ecryptfs::read(TestClips::clip()).state, Ecryptfs::Header::State::notEncrypted);
        QCOMPARE(Ecryptfs::read(path(QStringLiteral("missing.mp4"))).state, Ecryptfs::Header::State::notEncrypted);
    }

    // Keys live in the app's store and beside kept copies, readable by the
    // owner alone, and are found again by the file's key block wherever it lies.
    void keysAreKeptPrivatelyAndFoundByTheirBlock()
    {
        const QString plainClip = TestClips::clip();
        QDir().mkpath(path(QStringLiteral("drive")));
        QDir().mkpath(path(QStringLiteral("vault/2026/sentry/2026-07-21_02-11-05")));
        const QString onDrive = path(QStringLiteral("drive/2026-07-21_02-10-05-front.mp4"));
        EcryptfsWriter::encryptFile(plainClip, onDrive, EcryptfsWriter::fileKey(9), EcryptfsWriter::keyBlock(9));
        const QString keptFolder = path(QStringLiteral("vault/2026/sentry/2026-07-21_02-11-05"));
        const QString kept = keptFolder + QStringLiteral("/2026-07-21_02-10-05-front.mp4");
        QVERIFY(QFile::copy(onDrive, kept));
        QVERIFY(!KeyRing::keyFor(onDrive));
        QCOMPARE(KeyRing::storeBeside(keptFolder, {kept}), 0); // nothing known yet: no file
        QVERIFY(!QFileInfo::exists(keptFolder + QLatin1Char('/') + VaultKeys::fileName));

        const Ecryptfs::Header header = Ecryptfs::read(onDrive);
        QVERIFY(KeyStore::shared().add({{QStringLiteral("2026-07-21_02-10-05-front.mp4"), header.keyBlock.keyId,
                                         header.keyBlock.vin, EcryptfsWriter::fileKey(9),
                                         header.keyBlock.fingerprint()}}));
        QCOMPARE(modeOf(KeyStore::shared().path()), 0600);
        QCOMPARE(KeyStore(KeyStore::shared().path()).find(header.keyBlock), EcryptfsWriter::fileKey(9));
        QCOMPARE(KeyRing::keyFor(onDrive), EcryptfsWriter::fileKey(9));
        QCOMPARE(KeyRing::keyFor(kept), EcryptfsWriter::fileKey(9)); // same block, another place

        QCOMPARE(KeyRing::storeBeside(keptFolder, {kept}), 1);
        const QString keysFile = keptFolder + QLatin1Char('/') + VaultKeys::fileName;
        QCOMPARE(modeOf(keysFile), 0600);
        QFile f(keysFile);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QJsonObject root = QJsonDocument::fromJson(f.readAll()).object();
        QCOMPARE(root.value(QLatin1String("version")).toInt(), 1);
        const QJsonObject entry = root.value(QLatin1String("keys")).toArray().first().toObject();
        QCOMPARE(entry.value(QLatin1String("file")).toString(), QStringLiteral("2026-07-21_02-10-05-front.mp4"));
        QCOMPARE(entry.value(QLatin1String("keyId")).toInteger(), qint64(header.keyBlock.keyId));
        QCOMPARE(entry.value(QLatin1String("vin")).toString(), header.keyBlock.vin);
        QCOMPARE(QByteArray::fromBase64(entry.value(QLatin1String("key")).toString().toLatin1()),
                 EcryptfsWriter::fileKey(9));

        // A Vault taken to another computer: the app's store there knows nothing.
        KeyStore elsewhere(path(QStringLiteral("other-keys.json")));
        QVERIFY(!elsewhere.find(header.keyBlock));
        QVERIFY(VaultKeys::write(keptFolder, {})); // merging nothing keeps what is there
        QCOMPARE(VaultKeys::read(keptFolder).size(), size_t(1));
        QCOMPARE(KeyRing::keyFor(kept, Ecryptfs::read(kept), elsewhere), EcryptfsWriter::fileKey(9));
        QVERIFY(!KeyRing::keyFor(onDrive, header, elsewhere));
    }

    // The app and the command line fetching keys at once: each store writes
    // what the other wrote meanwhile too, and finds it without a restart.
    void twoStoresOnOneFileKeepEachOthersKeys()
    {
        const QString file = path(QStringLiteral("shared/keys.json"));
        KeyStore app(file), cli(file);
        auto blockOf = [this](quint32 seed) {
            const QString clip = path(QStringLiteral("shared-%1.mp4").arg(seed));
            EcryptfsWriter::encryptFile(TestClips::clip(), clip, EcryptfsWriter::fileKey(seed),
                                        EcryptfsWriter::keyBlock(seed));
            return Ecryptfs::read(clip).keyBlock;
        };
        const Ecryptfs::KeyBlock first = blockOf(21), second = blockOf(22);
        QVERIFY(!app.find(first)); // both have read the file before either writes
        QVERIFY(!cli.find(second));
        QVERIFY(app.add({{QStringLiteral("a.mp4"), first.keyId, first.vin, EcryptfsWriter::fileKey(21),
                          first.fingerprint()}}));
        QVERIFY(cli.add({{QStringLiteral("b.mp4"), second.keyId, second.vin, EcryptfsWriter::fileKey(22),
                          second.fingerprint()}}));
        QCOMPARE(KeyStore(file).find(first), EcryptfsWriter::fileKey(21));
        QCOMPARE(KeyStore(file).find(second), EcryptfsWriter::fileKey(22));
        QCOMPARE(app.find(second), EcryptfsWriter::fileKey(22));
        QCOMPARE(modeOf(file), 0600);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestEcryptfs)

#include "tst_ecryptfs.moc"
