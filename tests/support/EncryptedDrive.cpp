#include "support/EncryptedDrive.h"

#include "support/KeyServiceStandIn.h"

#include <QFile>
#include <stdexcept>

EncryptedDrive::EncryptedDrive(const QString &teslaCamRoot, const QString &source, KeyServiceStandIn *service)
    : fixture_(teslaCamRoot), service_(service)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read the source movie");
    plain_ = in.readAll();

    const QString clear = fixture_.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-05-01_10-00-00"),
                                            TeslaCamFixture::eventJson(QStringLiteral("2026-05-01T09:59:40"),
                                                                       QStringLiteral("user_interaction_honk")));
    fixture_.addClip(clear, QStringLiteral("2026-05-01_09-59-00"), QStringLiteral("front"), 0, source);
    fixture_.addRecentClip(QStringLiteral("2026-07-20_18-30-00"), QStringLiteral("front"), 0, source);

    // What only the car can read: its key block is all zeros.
    const QByteArray sealedJson = EcryptfsWriter::encrypt(
        TeslaCamFixture::eventJson(QStringLiteral("2026-07-21T02:11:02"), QStringLiteral("sentry_aware_object_detection")),
        EcryptfsWriter::fileKey(90), std::nullopt);
    const QByteArray sealedThumb = EcryptfsWriter::encrypt(TeslaCamFixture::pngBytes(), EcryptfsWriter::fileKey(91),
                                                           std::nullopt);

    const QString sentry = fixture_.addEventFolder(QStringLiteral("EncryptedClips/SentryClips"),
                                                   QStringLiteral("2026-07-21_02-11-05"));
    TeslaCamFixture::writeFile(sentry + QStringLiteral("/event.json"), sealedJson);
    TeslaCamFixture::writeFile(sentry + QStringLiteral("/thumb.png"), sealedThumb);
    addClip(sentry, QStringLiteral("2026-07-21_02-10-05"), QStringLiteral("front"), 101);
    addClip(sentry, QStringLiteral("2026-07-21_02-10-05"), QStringLiteral("back"), 102);
    TeslaCamFixture::writeFile(sentry + QStringLiteral("/2026-07-21_02-10-05-left_repeater.mp4"),
                               EcryptfsWriter::encrypt(plain_, EcryptfsWriter::fileKey(103), std::nullopt));
    TeslaCamFixture::writeFile(sentry + QStringLiteral("/2026-07-21_02-10-05-right_repeater.mp4"),
                               EcryptfsWriter::damageHeader(EcryptfsWriter::encrypt(plain_, EcryptfsWriter::fileKey(104),
                                                                                    EcryptfsWriter::keyBlock(104))));

    const QString saved = fixture_.addEventFolder(QStringLiteral("EncryptedClips/SavedClips"),
                                                  QStringLiteral("2026-07-22_08-00-00"));
    TeslaCamFixture::writeFile(saved + QStringLiteral("/event.json"), sealedJson);
    addClip(saved, QStringLiteral("2026-07-22_07-59-00"), QStringLiteral("front"), 105);

    const QString recent = fixture_.path(QStringLiteral("EncryptedClips/RecentClips"));
    addClip(recent, QStringLiteral("2026-07-23_12-00-00"), QStringLiteral("front"), 106);
    addClip(recent, QStringLiteral("2026-07-23_12-01-00"), QStringLiteral("front"), 107);
}

QString EncryptedDrive::addClip(const QString &dir, const QString &stamp, const QString &camera, quint32 seed)
{
    const QString path = dir + QLatin1Char('/') + stamp + QLatin1Char('-') + camera + QStringLiteral(".mp4");
    const EcryptfsWriter::KeyBlock block = EcryptfsWriter::keyBlock(seed);
    TeslaCamFixture::writeFile(path, EcryptfsWriter::encrypt(plain_, EcryptfsWriter::fileKey(seed), block));
    if (service_)
        service_->addKey(block.wrappedKey, EcryptfsWriter::fileKey(seed));
    unlockable_.append(path);
    return path;
}
