#include "playback/ThumbnailLoader.h"
#include "support/TeslaCamFixture.h"

#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

class TestThumbnailLoader : public QObject {
    Q_OBJECT

    QTemporaryDir dir;

    QString writeImage(const QString &name, QSize size, QImageIOHandler::Transformations transform = {})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        // A marker in the top-left corner shows where the transform put it.
        QPainter(&image).fillRect(0, 0, size.width() / 4, size.height() / 4, Qt::blue);
        const QString path = dir.filePath(name);
        QImageWriter writer(path);
        writer.setTransformation(transform);
        writer.setQuality(95);
        if (!writer.write(image))
            qFatal("could not write %s", qPrintable(path));
        return path;
    }

private Q_SLOTS:
    void init() { ThumbnailLoader::clearCache(); }

    void scalesToTwoHundredPixelsAndKeepsSmallOnes()
    {
        const auto big = ThumbnailLoader::load(writeImage("big.png", QSize(1448, 938))).result();
        QCOMPARE(big.value_or(QImage()).size(), QSize(200, 130));
        const auto small = ThumbnailLoader::loadNow(writeImage("small.png", QSize(120, 80)));
        QCOMPARE(small.value_or(QImage()).size(), QSize(120, 80));
    }

    void obeysTheImagesOwnOrientation()
    {
        if (!QImageWriter(dir.filePath("probe.jpg")).supportsOption(QImageIOHandler::ImageTransformation))
            QSKIP("this Qt can't write an oriented JPEG");
        const QString path = writeImage("turned.jpg", QSize(400, 200), QImageIOHandler::TransformationRotate90);
        const auto image = ThumbnailLoader::loadNow(path);
        QVERIFY(image);
        QCOMPARE(image->size(), QSize(100, 200));
        // Turned a quarter clockwise: the marker is now top right.
        QVERIFY(qBlue(image->pixel(image->width() - 5, 5)) > 200);
        QVERIFY(qRed(image->pixel(5, 5)) > 200);
    }

    void cachesSuccessesOnly()
    {
        const QString path = dir.filePath("thumb.png");
        TeslaCamFixture::writeFile(path, "not a picture");
        QVERIFY(!ThumbnailLoader::load(path).result());
        QVERIFY(!ThumbnailLoader::cached(path));
        QCOMPARE(ThumbnailLoader::cachedCount(), 0);
        QVERIFY(!ThumbnailLoader::loadNow(dir.filePath("missing.png")));

        // Asked again later (the access epoch changed), the repaired file loads.
        QFile::remove(path);
        writeImage("thumb.png", QSize(300, 300));
        QVERIFY(ThumbnailLoader::load(path).result());
        QVERIFY(ThumbnailLoader::cached(path));
        // From the cache without touching the file at all.
        QFile::remove(path);
        const auto again = ThumbnailLoader::load(path);
        QVERIFY(again.isFinished());
        QCOMPARE(again.result()->size(), QSize(200, 200));
    }

    void cacheHoldsAtMostAThousand()
    {
        const QString path = writeImage("one.png", QSize(10, 10));
        for (int i = 0; i < 1005; ++i) {
            // Hard links, since symbolic links are never followed on a drive.
            const QString link = dir.filePath(QString("l%1.png").arg(i));
            QVERIFY(::link(QFile::encodeName(path).constData(), QFile::encodeName(link).constData()) == 0);
            QVERIFY(ThumbnailLoader::loadNow(link));
        }
        QCOMPARE(ThumbnailLoader::cachedCount(), ThumbnailLoader::cacheLimit);
    }
};

QTEST_MAIN(TestThumbnailLoader)
#include "tst_thumbnailloader.moc"
