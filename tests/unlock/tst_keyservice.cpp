#include "crypt/KeyStore.h"
#include "support/EcryptfsWriter.h"
#include "support/EncryptedDrive.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/KeyServiceStandIn.h"
#include "support/TestClips.h"
#include "unlock/KeyServiceClient.h"
#include "unlock/SignInLink.h"
#include "unlock/Unlocker.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrlQuery>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <qcoro/qcorotask.h>

using namespace std::chrono_literals;
using KeyService::Outcome;

namespace {
const QByteArray token = QByteArrayLiteral("stand-in-token-7c1d");

std::vector<Outcome> outcomesOf(const std::vector<Unlocker::FileOutcome> &outcomes)
{
    std::vector<Outcome> out;
    for (const auto &o : outcomes)
        out.push_back(o.outcome);
    return out;
}

QString plainClip()
{
    const QString clip = TestClips::clip();
    static QTemporaryDir dir;
    const QString padded = dir.filePath(QStringLiteral("plain.mp4"));
    if (!QFile::exists(padded)) {
        QFile::copy(clip, padded);
        TestClips::padTo(padded);
    }
    return padded;
}
} // namespace

class TestKeyService : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QNetworkAccessManager network_;

    QUrl urlOf(const KeyServiceStandIn &service) const
    {
        return QUrl(service.baseURL() + KeyService::batchPath);
    }

    std::vector<Unlocker::FileOutcome> unlock(const KeyServiceStandIn &service, const QStringList &paths,
                                              const QByteArray &withToken = token,
                                              std::chrono::milliseconds limit = KeyService::answerLimit)
    {
        Unlocker unlocker(network_, urlOf(service), limit);
        return QCoro::waitFor(unlocker.unlock(std::vector<QString>(paths.begin(), paths.end()), withToken));
    }

private Q_SLOTS:
    void batchOf31IsSplitInTwo()
    {
        KeyServiceStandIn service;
        service.setAcceptedToken(token);
        EncryptedDrive drive(dir_.filePath(QStringLiteral("b/TeslaCam")), plainClip(), &service);
        QStringList paths;
        for (quint32 i = 0; i < 31; ++i)
            paths << drive.addClip(dir_.filePath(QStringLiteral("b/many")),
                                   QStringLiteral("2026-07-24_10-%1-00").arg(i, 2, 10, QLatin1Char('0')),
                                   QStringLiteral("front"), 200 + i);
        QCOMPARE(Unlocker::unlockedCount(unlock(service, paths)), 31);
        std::vector<int> sizes;
        for (const auto &r : service.requests())
            sizes.push_back(r.items);
        QCOMPARE(sizes, (std::vector<int>{30, 1}));
    }

    // Each answer that isn't a key costs only its own files.
    void refusalsCostOnlyTheirFiles()
    {
        KeyServiceStandIn service;
        service.setAcceptedToken(token);
        const QString mine = EncryptedDrive(dir_.filePath(QStringLiteral("c/TeslaCam")), plainClip(), &service).sentryFront();
        // Another owner's car: the service holds no key for it.
        EncryptedDrive other(dir_.filePath(QStringLiteral("c/other/TeslaCam")), plainClip(), nullptr);
        const QString stranger = other.addClip(dir_.filePath(QStringLiteral("c/other")),
                                               QStringLiteral("2026-07-24_11-00-00"), QStringLiteral("front"), 300);
        // A key that comes but doesn't open its file is not kept.
        const QString wrongKey = dir_.filePath(QStringLiteral("c/2026-07-24_12-00-00-front.mp4"));
        TeslaCamFixture::writeFile(wrongKey, EcryptfsWriter::encrypt(other.plain(), EcryptfsWriter::fileKey(301),
                                                                     EcryptfsWriter::keyBlock(301)));
        service.addKey(EcryptfsWriter::keyBlock(301).wrappedKey, EcryptfsWriter::fileKey(999));

        const auto outcomes = unlock(service, {stranger, mine, wrongKey});
        QCOMPARE(outcomesOf(outcomes),
                 (std::vector<Outcome>{Outcome::ownershipNotConfirmed, Outcome::key, Outcome::keyDoesNotFit}));
        QCOMPARE(service.requests().size(), size_t(1));
        QCOMPARE(std::tuple(bool(KeyRing::keyFor(stranger)), bool(KeyRing::keyFor(mine)), bool(KeyRing::keyFor(wrongKey))),
                 std::tuple(false, true, false));
    }

    void serviceFailuresBecomeOneSentenceEach_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QByteArray>("sentToken");
        QTest::addColumn<int>("expected");
        using M = KeyServiceStandIn::Mode;
        QTest::newRow("401") << int(M::status401) << token << int(Outcome::signInExpired);
        QTest::newRow("403") << int(M::status403) << token << int(Outcome::signInExpired);
        QTest::newRow("500") << int(M::status500) << token << int(Outcome::refused);
        QTest::newRow("malformed") << int(M::malformed) << token << int(Outcome::malformedAnswer);
        QTest::newRow("no answer in time") << int(M::silent) << token << int(Outcome::unreachable);
    }

    void serviceFailuresBecomeOneSentenceEach()
    {
        QFETCH(int, mode);
        QFETCH(QByteArray, sentToken);
        QFETCH(int, expected);
        KeyServiceStandIn service;
        service.setAcceptedToken(token);
        service.setMode(KeyServiceStandIn::Mode(mode));
        const QString here = dir_.filePath(QStringLiteral("d/") + QString::fromLatin1(QTest::currentDataTag()));
        EncryptedDrive drive(here + QStringLiteral("/TeslaCam"), plainClip(), &service);
        QStringList paths;
        for (quint32 i = 0; i < 32; ++i) // two requests, both failing alike
            paths << drive.addClip(here + QStringLiteral("/more"),
                                   QStringLiteral("2026-07-25_10-%1-00").arg(i, 2, 10, QLatin1Char('0')),
                                   QStringLiteral("front"), 400 + i + 100 * quint32(mode));
        const auto outcomes = unlock(service, paths, sentToken, 400ms);
        QCOMPARE(outcomesOf(outcomes), std::vector<Outcome>(32, Outcome(expected)));
        QCOMPARE(service.requests().size(), size_t(2));
        QCOMPARE(Unlocker::sentences(outcomes), QStringList{KeyService::sentence(Outcome(expected))});
        QVERIFY(!KeyRing::keyFor(paths.first()));
    }

    // A header the drive never gives costs its clip after the read limit;
    // keys the app's store can't take still open their clips until the app
    // quits, and the user is told they will be asked for again.
    void aHangingHeaderAndAFullStoreCostOnlyWhatTheyMust()
    {
        if (!FaultyFs::available())
            QSKIP("needs root and /dev/fuse");
        KeyServiceStandIn service;
        service.setAcceptedToken(token);
        EncryptedDrive drive(dir_.filePath(QStringLiteral("h/TeslaCam")), plainClip(), &service);
        const QString readable = drive.addClip(dir_.filePath(QStringLiteral("h/fresh")),
                                               QStringLiteral("2026-07-27_10-00-00"), QStringLiteral("front"), 700);
        QDir().mkpath(dir_.filePath(QStringLiteral("h/fuse")));
        FaultyFs fuse(dir_.filePath(QStringLiteral("h/fuse")));
        QVERIFY(fuse.isMounted());
        service.addKey(EcryptfsWriter::keyBlock(701).wrappedKey, EcryptfsWriter::fileKey(701));
        const QString held = fuse.addHeldFile(
            QStringLiteral("2026-07-27_10-01-00-front.mp4"),
            EcryptfsWriter::encrypt(drive.plain(), EcryptfsWriter::fileKey(701), EcryptfsWriter::keyBlock(701)));

        KeyStore full(QStringLiteral("/dev/null/keys.json")); // its folder is a file: nothing can be written
        Unlocker unlocker(network_, urlOf(service), KeyService::answerLimit, 300ms, full);
        const auto outcomes = QCoro::waitFor(unlocker.unlock({held, readable}, token));
        fuse.release();
        QCOMPARE(outcomesOf(outcomes), (std::vector<Outcome>{Outcome::unreadable, Outcome::key}));
        QCOMPARE(std::pair(outcomes[1].fetched, outcomes[1].saved), std::pair(true, false));
        QCOMPARE(service.requests().size(), size_t(1));
        QCOMPARE(service.requests()[0].items, 1);
        QCOMPARE(KeyRing::keyFor(readable, Ecryptfs::read(readable), full), EcryptfsWriter::fileKey(700));
        const QStringList sentences = Unlocker::sentences(outcomes);
        QCOMPARE(sentences.size(), 2);
        QCOMPARE(sentences.first(), KeyService::sentence(Outcome::unreadable));
        QVERIFY2(sentences.last().contains(QLatin1String("couldn't be saved")), qPrintable(sentences.last()));
    }

    void nothingIsSentWithoutATokenOrToAPlainRemoteAddress()
    {
        KeyServiceStandIn service;
        EncryptedDrive drive(dir_.filePath(QStringLiteral("e/TeslaCam")), plainClip(), &service);
        // A clip no test has unlocked before.
        const QStringList one{drive.addClip(dir_.filePath(QStringLiteral("e/fresh")), QStringLiteral("2026-07-26_10-00-00"),
                                            QStringLiteral("front"), 600)};
        QCOMPARE(outcomesOf(unlock(service, one, QByteArray())), std::vector<Outcome>{Outcome::notSignedIn});
        QVERIFY(service.requests().empty());

        // Plain HTTP only to this machine.
        for (const char *allowed :
             {"https://dashcam.tesla.com/api/1/decrypt/batch", "http://127.0.0.1:8765/x", "http://[::1]:8765/x"})
            QVERIFY2(KeyService::isAllowed(QUrl(allowed)), allowed);
        for (const char *refused : {"http://dashcam.tesla.com/x", "http://192.168.1.5/x", "ftp://127.0.0.1/x"})
            QVERIFY2(!KeyService::isAllowed(QUrl(refused)), refused);
        Unlocker remote(network_, QUrl("http://example.com/api/1/decrypt/batch"));
        const auto refused = QCoro::waitFor(remote.unlock({one.first()}, token));
        QCOMPARE(refused[0].outcome, Outcome::refused);

        // A port nobody listens on.
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const quint16 port = closed.serverPort();
        closed.close();
        Unlocker nobody(network_, QUrl(QStringLiteral("http://127.0.0.1:%1/api/1/decrypt/batch").arg(port)));
        QCOMPARE(QCoro::waitFor(nobody.unlock({one.first()}, token))[0].outcome, Outcome::unreachable);
    }

    // The browser's way, up to the address it lands on: the stand-in's sign-in
    // page sends it straight back with a code, as Tesla's does after a sign-in.
    void browserSignInUpToThePastedAddress()
    {
        KeyServiceStandIn service;
        service.setAcceptedToken(token);
        QSettings settings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold"));
        settings.setValue(SignInLink::settingsKey, service.baseURL() + QStringLiteral("/oauth2/v3"));
        settings.sync();
        const SignInLink::Attempt attempt = SignInLink::begin();
        // The stand-in checks the challenge against the verifier at the exchange.
        const QUrlQuery query(attempt.address);
        QVERIFY(query.queryItemValue("scope", QUrl::FullyDecoded).split(' ').contains("offline_access"));
        QCOMPARE(query.queryItemValue("code_challenge_method"), QStringLiteral("S256"));

        QNetworkRequest request(attempt.address);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        // Where the page sends the browser; empty when it doesn't answer.
        const auto landing = [&] {
            const std::unique_ptr<QNetworkReply> reply(network_.get(request));
            const bool answered = QSignalSpy(reply.get(), &QNetworkReply::finished).wait(10000);
            return answered ? QString::fromLatin1(reply->rawHeader("Location")) : QString();
        };
        const QString landed = landing();
        QVERIFY(landed.startsWith(QStringLiteral("https://dashcam.tesla.com/callback?")));

        QString error;
        QVERIFY(!SignInLink::codeFrom(QStringLiteral("https://example.com/?code=x"), attempt, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!SignInLink::codeFrom(landed, SignInLink::begin(), &error)); // another attempt's state
        const std::optional<QByteArray> code = SignInLink::codeFrom(landed, attempt, &error);
        QVERIFY(code);

        // A code comes once; its verifier must match the challenge.
        SignInLink::Attempt forged = attempt;
        forged.verifier = "not-the-verifier";
        QVERIFY(QCoro::waitFor(SignInLink::exchange(network_, forged, *code)).access.isEmpty());
        const QByteArray secondCode = *SignInLink::codeFrom(landed, attempt, &error);
        QVERIFY(QCoro::waitFor(SignInLink::exchange(network_, attempt, secondCode)).access.isEmpty()); // spent above

        // A fresh code, exchanged properly, then renewed: each refresh token once.
        const std::optional<QByteArray> freshCode = SignInLink::codeFrom(landing(), attempt, &error);
        QVERIFY(freshCode);
        const SignInLink::Tokens tokens = QCoro::waitFor(SignInLink::exchange(network_, attempt, *freshCode));
        QVERIFY(!tokens.refresh.isEmpty());
        const SignInLink::Tokens renewed = QCoro::waitFor(SignInLink::refresh(network_, tokens.refresh));
        QCOMPARE(std::pair(tokens.access, renewed.access), std::pair(token, token));
        QVERIFY(renewed.refresh != tokens.refresh);
        QVERIFY(!QCoro::waitFor(SignInLink::refresh(network_, tokens.refresh)).error.isEmpty());
        KeyServiceClient client(network_, urlOf(service));
        QCOMPARE(QCoro::waitFor(client.check(renewed.access)), Outcome::key);
        settings.remove(SignInLink::settingsKey);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestKeyService)

#include "tst_keyservice.moc"
