#include "crypt/EcryptfsReader.h"
#include "crypt/KeyStore.h"
#include "drive/EcryptfsHeader.h"
#include "support/DriveBuilder.h"
#include "support/EcryptfsWriter.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/TestClips.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cerrno>
#include <random>
#include <sys/stat.h>

namespace {

// The file's permission bits, as the system keeps them.
int modeOf(const QString &path)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? int(st.st_mode & 07777) : -1;
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
    }

    // The pages ahead of a streaming demuxer are decrypted on another thread:
    // a read that fails there, or a stop, reaches the demuxer where it
    // stands, with every byte before it right.
    void failureAheadReachesTheReaderInPlace()
    {
        KEELHOLD_FAULTY_FS(fs, mount);
        const QByteArray plain = DriveBuilder::randomBytes(4096 * 64 * 12, 3);
        const QByteArray key = EcryptfsWriter::fileKey(2);
        fs.addFile(QStringLiteral("a.mp4"), EcryptfsWriter::encrypt(plain, key, EcryptfsWriter::keyBlock(2)));
        const qint64 badPage = 64 * 7 + 5;
        fs.failReadsFrom(QStringLiteral("a.mp4"), Ecryptfs::payloadOffset + badPage * 4096);
        std::atomic<bool> stop = false;
        auto reader = EcryptfsReader::open(mount.filePath(QStringLiteral("a.mp4")), key, [&] { return stop.load(); });
        QVERIFY(reader);

        QByteArray buffer(256 * 1024, '\0');
        qint64 at = 0;
        int n = 0;
        while ((n = reader->read(reinterpret_cast<uint8_t *>(buffer.data()), int(buffer.size()))) > 0) {
            QVERIFY2(buffer.left(n) == plain.mid(at, n), qPrintable(QStringLiteral("at %1").arg(at)));
            at += n;
        }
        QVERIFY(n < 0);
        QVERIFY2(at <= badPage * 4096 && at > badPage * 4096 - buffer.size(), qPrintable(QString::number(at)));

        // Back to the start, streaming again, then stopped.
        QCOMPARE(reader->seek(0, SEEK_SET), qint64(0));
        for (int reads = 0; reads < 3; ++reads)
            QCOMPARE(reader->read(reinterpret_cast<uint8_t *>(buffer.data()), int(buffer.size())), int(buffer.size()));
        QVERIFY(buffer == plain.mid(2 * buffer.size(), buffer.size()));
        stop = true;
        n = reader->read(reinterpret_cast<uint8_t *>(buffer.data()), int(buffer.size()));
        QVERIFY2(n == -ECANCELED || (n > 0 && buffer.left(n) == plain.mid(3 * buffer.size(), n)), qPrintable(QString::number(n)));
        while (n > 0)
            n = reader->read(reinterpret_cast<uint8_t *>(buffer.data()), int(buffer.size()));
        QCOMPARE(n, -ECANCELED);
    }

    void keyThatDoesntFitIsToldApart()
    {
        const QString clip = TestClips::clip();
        const QString file = path(QStringLiteral("b.mp4"));
        EcryptfsWriter::encryptFile(clip, file, EcryptfsWriter::fileKey(2), EcryptfsWriter::keyBlock(2));
        QVERIFY(EcryptfsReader::open(file, EcryptfsWriter::fileKey(2))->keyFits());
        QVERIFY(!EcryptfsReader::open(file, QByteArray(15, 'k')));
        QVERIFY(!EcryptfsReader::open(clip, EcryptfsWriter::fileKey(2))); // a clear movie
    }

    void headerTellsEachKindOfFile()
    {
        const QByteArray plain = DriveBuilder::randomBytes(70000, 3);
        const EcryptfsWriter::KeyBlock written = EcryptfsWriter::keyBlock(7, "7SAYGDEE1PA000042");
        const QByteArray lower = EcryptfsWriter::encrypt(plain, EcryptfsWriter::fileKey(7), written);

        const Ecryptfs::Header good = Ecryptfs::read(writeLower(QStringLiteral("good.mp4"), lower));
        QCOMPARE(std::pair(good.state, good.plainSize), std::pair(Ecryptfs::Header::State::ok, qint64(plain.size())));
        const Ecryptfs::KeyBlock &read = good.keyBlock;
        QCOMPARE(std::tuple(read.keyId, read.vin, read.timestamp, read.publicKey, read.wrappedKey, read.raw),
                 std::tuple(written.keyId, QStringLiteral("7SAYGDEE1PA000042"), written.timestamp, written.publicKey,
                            written.wrappedKey, written.bytes()));

        // (A key block of zeros and a damaged header: the decrypt command's test.)
        // Cut short: the pages no longer cover the size the header promises.
        QCOMPARE(Ecryptfs::read(writeLower(QStringLiteral("short.mp4"), lower.left(lower.size() - 4096))).state,
                 Ecryptfs::Header::State::damaged);
        QCOMPARE(Ecryptfs::read(TestClips::clip()).state, Ecryptfs::Header::State::notEncrypted);
        QCOMPARE(Ecryptfs::read(path(QStringLiteral("missing.mp4"))).state, Ecryptfs::Header::State::notEncrypted);
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
        QVERIFY(!app.find(first) && !cli.find(second)); // both have read the file before either writes
        QVERIFY(app.add({{QStringLiteral("a.mp4"), first.keyId, first.vin, EcryptfsWriter::fileKey(21),
                          first.fingerprint()}}));
        QVERIFY(cli.add({{QStringLiteral("b.mp4"), second.keyId, second.vin, EcryptfsWriter::fileKey(22),
                          second.fingerprint()}}));
        QCOMPARE(std::pair(KeyStore(file).find(first), KeyStore(file).find(second)),
                 std::pair(std::optional(EcryptfsWriter::fileKey(21)), std::optional(EcryptfsWriter::fileKey(22))));
        QCOMPARE(app.find(second), EcryptfsWriter::fileKey(22));
        QCOMPARE(modeOf(file), 0600);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestEcryptfs)

#include "tst_ecryptfs.moc"
