#include "base/CancellationError.h"
#include "drive/SeiMetadata.pb.h"
#include "drive/TeslaCamParser.h"
#include "report/IncidentReport.h"
#include "report/ReportContent.h"
#include "support/CliRun.h"
#include "crypt/KeyStore.h"
#include "support/DriveBuilder.h"
#include "support/EncryptedDrive.h"
#include "support/IsolatedHome.h"
#include "support/LocalTileServer.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"
#include "support/TelemetryClipWriter.h"
#include "support/TestClips.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <stop_token>

namespace {

const QString savedId = QStringLiteral("saved|2026-07-21_14-30-00");
const QString roughId = QStringLiteral("sentry|2026-07-20_10-00-00");

// Each camera's colour while the moment shows; grey before and after, so a still from the wrong time shows grey.
const std::vector<std::pair<QString, QColor>> cameraColours{
    {QStringLiteral("front"), QColor(220, 30, 30)},
    {QStringLiteral("back"), QColor(30, 200, 40)},
    {QStringLiteral("left_repeater"), QColor(30, 60, 230)},
    {QStringLiteral("right_repeater"), QColor(240, 220, 20)},
};

// 20 s at 10 frames a second; coloured from 8 s to 16 s. The event's moment is at 12 s.
QString colourClip(const QColor &colour)
{
    return TestClips::clip(
        {.seconds = 20, .width = 320, .height = 240, .fps = 10, .gop = 10, .pattern = QStringLiteral("color"),
         .filter = QStringLiteral("drawbox=c=gray:t=fill,drawbox=c=%1:t=fill:enable='between(t,8,16)'").arg(colour.name())});
}

// 10 m/s until the moment, 20 m/s after: the chart's line must step to twice its height there.
std::optional<TelemetryClipWriter::FrameRecord> steppedSpeed(int frame, double time)
{
    TelemetryClipWriter::FrameRecord r;
    r.message.set_version(1);
    r.message.set_gear_state(keelhold::telemetry::SeiMetadata::GEAR_DRIVE);
    r.message.set_frame_seq_no(quint64(frame));
    r.message.set_vehicle_speed_mps(time < 12.0 ? 10.0f : 20.0f);
    r.message.set_brake_applied(time >= 11 && time < 12);
    r.message.set_latitude_deg(30.6075 + 1e-5 * frame);
    r.message.set_longitude_deg(-97.4812);
    return r;
}

QString run(const QString &program, const QStringList &arguments, int *exitCode = nullptr,
            const QString &in = QStringLiteral("."))
{
    const ProgramRun::Result r =
        ProgramRun::run(QStringLiteral("env"), QStringList{QStringLiteral("--chdir=") + in, program} + arguments);
    if (exitCode)
        *exitCode = r.exitCode;
    return QString::fromUtf8(r.out);
}

QString pdfText(const QString &pdf, int page = 0)
{
    QStringList args{QStringLiteral("-layout")};
    if (page > 0)
        args << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l") << QString::number(page);
    return run(QStringLiteral("pdftotext"), args << pdf << QStringLiteral("-"));
}

int pageCount(const QString &pdf)
{
    const auto match = QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(run(QStringLiteral("pdfinfo"), {pdf}));
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

// The first page whose text holds needle, drawn at dpi.
QImage pageWith(const QString &pdf, const QString &needle, int dpi, const QString &scratch)
{
    for (int page = 1; page <= pageCount(pdf); ++page)
        if (pdfText(pdf, page).contains(needle)) {
            const QString prefix = QDir(scratch).filePath(QStringLiteral("page"));
            run(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-f"),
                                             QString::number(page), QStringLiteral("-l"), QString::number(page),
                                             QStringLiteral("-singlefile"), QStringLiteral("-png"), pdf, prefix});
            return QImage(prefix + QStringLiteral(".png"));
        }
    return {};
}

bool near(const QColor &a, const QColor &b, int tolerance = 40)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
        && std::abs(a.blue() - b.blue()) <= tolerance;
}

int countNear(const QImage &image, const QColor &colour, int tolerance = 40)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += near(image.pixelColor(x, y), colour, tolerance);
    return n;
}

// The needles the text lacks.
QStringList missingFrom(const QString &text, const QStringList &needles)
{
    QStringList missing;
    for (const QString &needle : needles)
        if (!text.contains(needle))
            missing << needle;
    return missing;
}

} // namespace

class TestIncidentReport : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;
    QString root_;
    QString savedFolder_;
    LocalTileServer tiles_;

    // The tool, while this thread's event loop serves the map's tiles.
    QString runReport(const QStringList &arguments, int *exitCode = nullptr, QString *err = nullptr)
    {
        QProcess tool;
        tool.start(QStringLiteral(KEELHOLD_CLI_PATH), QStringList{QStringLiteral("report")} + arguments);
        [&] { QVERIFY(QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }, 120000)); }();
        if (exitCode)
            *exitCode = tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
        if (err)
            *err = QString::fromUtf8(tool.readAllStandardError());
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }

    QString report(const QString &id, const QStringList &extra = {}, int *exitCode = nullptr)
    {
        const QString out = tmp_.filePath(QStringLiteral("out-%1").arg(QString(id).replace(QLatin1Char('|'), QLatin1Char('-'))));
        QDir().mkpath(out);
        return runReport(QStringList{root_, QStringLiteral("--event"), id, QStringLiteral("-o"), out,
                                     QStringLiteral("--speed-unit"), QStringLiteral("km/h")}
                             + extra,
                         exitCode);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        QVERIFY(tmp_.isValid());
        tmp_.setAutoRemove(qEnvironmentVariableIsEmpty("KEEP_TMP"));
        // The tool reads the app's settings: its map tiles come from here.
        QVERIFY(tiles_.start());
        QSettings().setValue(QStringLiteral("KHMapTileURLTemplate"), tiles_.urlTemplate());
        root_ = tmp_.filePath(QStringLiteral("TeslaCam"));
        TeslaCamFixture fixture(root_);
        // Saved event: street, place, driving data on front, a GPS clock seven hours off the car's (a zone, no note).
        savedFolder_ = fixture.addEvent(
            QStringLiteral("SavedClips"), QStringLiteral("2026-07-21_14-30-00"),
            QByteArrayLiteral("{\"timestamp\":\"2026-07-21T14:30:12\",\"city\":\"Taylor\",\"street\":\"Main Street\","
                              "\"est_lat\":\"30.6075\",\"est_lon\":\"-97.4812\",\"reason\":\"user_interaction_honk\",\"camera\":\"0\"}"));
        for (const auto &[camera, colour] : cameraColours) {
            const QString path = QDir(savedFolder_).filePath(QStringLiteral("2026-07-21_14-30-00-%1.mp4").arg(camera));
            if (camera == QLatin1String("front"))
                TelemetryClipWriter::remux(colourClip(colour), path, steppedSpeed, false,
                                           QStringLiteral("2026-07-21T21:30:00Z"));
            else
                QVERIFY(QFile::copy(colourClip(colour), path));
            TestClips::padTo(path);
        }
        // A Sentry event without event.json or driving data: one camera empty, one cut off, the rear without footage.
        const QString rough = fixture.addEventFolder(QStringLiteral("SentryClips"), QStringLiteral("2026-07-20_10-00-00"));
        const QString front = QDir(rough).filePath(QStringLiteral("2026-07-20_10-00-00-front.mp4"));
        QVERIFY(QFile::copy(colourClip(Qt::red), front));
        TestClips::padTo(front);
        TeslaCamFixture::writeFile(QDir(rough).filePath(QStringLiteral("2026-07-20_10-00-00-left_repeater.mp4")), {});
        TeslaCamFixture::writeFile(QDir(rough).filePath(QStringLiteral("2026-07-20_10-00-00-right_repeater.mp4")),
                                   DriveBuilder::randomBytes(200 * 1024, 7));
    }

    // What a reader checks first: words, place, times, and every file with the digest of its bytes.
    void reportSaysWhatWhenWhereAndWhichFiles()
    {
        int code = -1;
        const QString pdf = report(savedId, {}, &code);
        QCOMPARE(code, 0);
        QVERIFY2(pdf.endsWith(QStringLiteral("Keelhold Report — Tesla Saved 2026-07-21 2.30 PM.pdf")), qPrintable(pdf));
        const QString text = pdfText(pdf);
        QStringList needles{QStringLiteral("Incident report: Saved — You honked"), QStringLiteral("Main Street, Taylor"),
                            QStringLiteral("30.60750, -97.48120"), QStringLiteral("sha256sum -c SHA256SUMS"),
                            QStringLiteral("Page 1 of %1").arg(pageCount(pdf)),
                            QStringLiteral("Page %1 of %1").arg(pageCount(pdf))};
        for (const auto &[camera, colour] : cameraColours) {
            const QString file = QDir(savedFolder_).filePath(QStringLiteral("2026-07-21_14-30-00-%1.mp4").arg(camera));
            needles << QFileInfo(file).fileName() << DriveBuilder::sha256Hex(file);
        }
        QCOMPARE(missingFrom(text, needles), QStringList());
        QVERIFY2(text.contains(QRegularExpression(QStringLiteral("\\b(14|2):30:12\\b"))), "the moment by the car's clock");
        QVERIFY2(text.contains(QStringLiteral("2026-07-21 21:30:12 UTC")), "the moment by the GPS clock");
        QVERIFY2(!text.contains(QStringLiteral("set wrong")), "seven hours apart is a time zone, not a wrong clock");
        QCOMPARE(text.count(QStringLiteral("Driving data")), 1); // no hidden copy at a page's foot

        // The map lies on the tile server's tiles, asked for by name.
        const QImage first = pageWith(pdf, QStringLiteral("Where"), 40, tmp_.path());
        QVERIFY(countNear(first, LocalTileServer::colour, 6) > 2000);
        QVERIFY(tiles_.userAgents.value(0).startsWith(QStringLiteral("Keelhold/")));

        // Each camera's still is its frame at the moment, in its colour.
        const QImage stills = pageWith(pdf, QStringLiteral("Each camera at the moment"), 40, tmp_.path());
        for (const auto &[camera, colour] : cameraColours)
            QVERIFY2(countNear(stills, colour) > 500, qPrintable(camera));

        // The speed line doubles its height at the moment, on the panel's 80 km/h scale (72 km/h the fastest reading).
        const QImage chart = pageWith(pdf, QStringLiteral("Driving data"), 150, tmp_.path());
        const QColor speed(0x15, 0x65, 0xC0), frame(0x9E, 0x9E, 0x9E), moment(0xE6, 0x51, 0x00);
        // The topmost pixel of a colour in column x.
        const auto firstY = [&](int x, const QColor &colour, int tolerance) {
            for (int y = 0; y < chart.height(); ++y)
                if (near(chart.pixelColor(x, y), colour, tolerance))
                    return y;
            return -1;
        };
        int momentX = 0;
        while (momentX < chart.width() && firstY(momentX, moment, 20) < 0)
            ++momentX;
        QVERIFY2(momentX > 0 && momentX < chart.width(),
                 qPrintable(QStringLiteral("%1x%2").arg(chart.width()).arg(chart.height())));
        const auto frameFrom = [&](int x, int y, int step) {
            for (y += step * 3; y > 0 && y < chart.height(); y += step)
                if (near(chart.pixelColor(x, y), frame, 12))
                    return y;
            return -1;
        };
        const int before = momentX - 60, after = momentX + 60;
        const int yBefore = firstY(before, speed, 30), yAfter = firstY(after, speed, 30);
        QVERIFY(yBefore > 0 && yAfter > 0);
        const int bottom = frameFrom(before, yBefore, 1), top = frameFrom(after, yAfter, -1);
        QVERIFY(bottom > 0 && top > 0);
        const double full = bottom - top;
        QVERIFY2(std::abs((bottom - yBefore) / full - 36.0 / 80) < 0.04, qPrintable(QString::number((bottom - yBefore) / full)));
        QVERIFY2(std::abs((bottom - yAfter) / full - 72.0 / 80) < 0.04, qPrintable(QString::number((bottom - yAfter) / full)));
    }

    // Damage, a camera without pictures, no place and no driving data each cost their own part only.
    void roughEventStillGivesAWholeReport()
    {
        int code = -1;
        const QString pdf = report(roughId, {}, &code);
        QCOMPARE(code, 0);
        QVERIFY(pageCount(pdf) >= 3);
        const QString text = pdfText(pdf);
        QCOMPARE(missingFrom(text, {QStringLiteral("The car didn't name the place."), QStringLiteral("carry no driving data"),
                                    QStringLiteral("didn't record where this happened"), QStringLiteral("Empty"),
                                    QStringLiteral("2026-07-20_10-00-00-left_repeater.mp4"),
                                    QStringLiteral("2026-07-20_10-00-00-right_repeater.mp4"),
                                    DriveBuilder::sha256Hex(QByteArray()), QStringLiteral("didn't record properly")}),
                 QStringList());
        // Wrapped wherever the date's length puts the line's end.
        QVERIFY(text.simplified().contains(QStringLiteral("nothing on it was changed")));
    }

    // The sample's five minutes of driving: twenty files and a chart over four pages, whole to the last words.
    void longEventIsWholeToItsLastPage()
    {
        const QString sample = QStringLiteral(KEELHOLD_BUILD_DIR "/resources/SampleTeslaCam/TeslaCam");
        if (!QFileInfo(sample).isDir())
            QSKIP("the sample footage is made with the build");
        const QString pdf = tmp_.filePath(QStringLiteral("recent.pdf"));
        int code = -1;
        runReport({sample, QStringLiteral("--event"), QStringLiteral("recent|recent_2024-06-15_07-10-00"),
                   QStringLiteral("-o"), pdf},
                  &code);
        QCOMPARE(code, 0);
        const QString text = pdfText(pdf);
        QVERIFY(text.contains(QStringLiteral("The first 20 seconds of the recording")));
        QCOMPARE(text.count(QRegularExpression(QStringLiteral("SHA-256 [0-9a-f]{64}"))), 20);
        // The drive's hard moments, each at the car's clock and its time in.
        QCOMPARE(missingFrom(text, {QStringLiteral("Hard moments of the drive"), QStringLiteral("Self-Driving off")}),
                 QStringList());
        QVERIFY(text.contains(QRegularExpression(QStringLiteral("\\b0?7:12:15\\b[^(]{0,6}\\(2:15 in\\)\\s+Autosteer off"))));
        QVERIFY2(pdfText(pdf, pageCount(pdf)).simplified().contains(QStringLiteral("nothing on it was changed")), "the last words");
    }

    // A kept event's files are compared with the Vault's records; a changed copy is said in words.
    void keptEventIsComparedWithTheVault()
    {
        const QString vault = tmp_.filePath(QStringLiteral("Vault"));
        const CliRun::Result kept = CliRun::run({QStringLiteral("keep"), root_, QStringLiteral("--vault"), vault,
                                                 QStringLiteral("--event"), savedId});
        QCOMPARE(kept.exitCode, 0);
        int code = -1;
        const QString pdf = report(savedId, {QStringLiteral("--vault"), vault}, &code);
        QCOMPARE(code, 0);
        QVERIFY(pdfText(pdf).contains(QStringLiteral("Every file matches the Vault's record")));

        // The Vault's own copy, one byte changed.
        QDirIterator it(vault, {QStringLiteral("*-back.mp4")}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(it.hasNext());
        QFile f(it.next());
        QVERIFY(f.open(QIODevice::ReadWrite));
        f.seek(5000);
        f.write("!");
        f.close();
        const QString fromVault = tmp_.filePath(QStringLiteral("vault.pdf"));
        runReport({vault, QStringLiteral("--event"), savedId, QStringLiteral("-o"), fromVault}, &code);
        QCOMPARE(code, 0);
        QCOMPARE(missingFrom(pdfText(fromVault), {QStringLiteral("In the Vault"), QStringLiteral("not the one that was kept")}),
                 QStringList());
    }

    // The car's clock keeps no zone: whole quarter hours off GPS are a zone; else over a minute is a wrong clock.
    void clocksDisagreeBeyondAZone_data()
    {
        QTest::addColumn<int>("offsetSeconds");
        QTest::addColumn<bool>("disagree");
        QTest::newRow("same") << 0 << false;
        QTest::newRow("Nepal") << (5 * 3600 + 45 * 60) << false;
        QTest::newRow("half a minute off") << (3600 + 30) << false;
        QTest::newRow("thirteen minutes off") << (-7 * 3600 + 13 * 60) << true;
        QTest::newRow("19 h 53 min off") << (19 * 3600 + 53 * 60) << true;
    }
    void clocksDisagreeBeyondAZone()
    {
        QFETCH(int, offsetSeconds);
        QFETCH(bool, disagree);
        ReportContent content;
        const QDateTime wall(QDate(2026, 7, 21), QTime(14, 30, 12), Qt::LocalTime);
        content.carClock = Date::fromQDateTime(wall);
        content.gpsClock = Date::fromQDateTime(QDateTime(wall.date(), wall.time(), Qt::UTC).addSecs(-offsetSeconds));
        QCOMPARE(content.clocksDisagree(), disagree);
        content.gpsClock.reset();
        QVERIFY(!content.clocksDisagree());
    }

    // Encrypted footage goes in as written: locked cameras say so, keys only if asked; unzip unpacks it, sums check.
    void encryptedEventGoesInAsItIs()
    {
        const QString plain = tmp_.filePath(QStringLiteral("plain.mp4"));
        QVERIFY(QFile::copy(TestClips::clip(), plain));
        TestClips::padTo(plain);
        const EncryptedDrive drive(tmp_.filePath(QStringLiteral("encrypted/TeslaCam")), plain);
        const QString vault = tmp_.filePath(QStringLiteral("EncryptedVault"));
        QCOMPARE(CliRun::run({QStringLiteral("keep"), drive.root(), QStringLiteral("--vault"), vault,
                              QStringLiteral("--event"), EncryptedDrive::sentryID})
                     .exitCode,
                 0);
        QDirIterator kept(vault, {QStringLiteral("2026-07-21_02-11-05")}, QDir::Dirs, QDirIterator::Subdirectories);
        QVERIFY(kept.hasNext());
        const QString keptFolder = kept.next();
        QVERIFY(VaultKeys::write(keptFolder, {KeyEntry{QFileInfo(drive.sentryFront()).fileName(), 7,
                                                       QStringLiteral("5YJ3E1EA7KF000001"), QByteArray(16, 'k'), {}}}));

        for (const bool keys : {false, true}) {
            const QString out = tmp_.filePath(keys ? QStringLiteral("with-keys") : QStringLiteral("without-keys"));
            QDir().mkpath(out);
            int code = -1;
            QString err;
            QStringList arguments{vault, QStringLiteral("--event"), EncryptedDrive::sentryID, QStringLiteral("--package"),
                                  QStringLiteral("-o"), out};
            if (keys)
                arguments << QStringLiteral("--include-keys");
            const QString zip = runReport(arguments, &code, &err);
            QVERIFY2(code == 0, qPrintable(err));
            run(QStringLiteral("unzip"), {QStringLiteral("-q"), zip}, &code, out);
            QCOMPARE(code, 0);
            const QString said = run(QStringLiteral("sha256sum"), {QStringLiteral("-c"), QStringLiteral("SHA256SUMS")}, &code, out);
            QVERIFY2(code == 0, qPrintable(said));
            QVERIFY(said.contains(QStringLiteral("2026-07-21_02-11-05/event.json: OK")));
            QVERIFY(said.contains(QStringLiteral("Keelhold Report")));
            const QString inside = QDir(out).filePath(QStringLiteral("2026-07-21_02-11-05"));
            const QString front = QDir(inside).filePath(QFileInfo(drive.sentryFront()).fileName());
            QCOMPARE(DriveBuilder::sha256Hex(front), DriveBuilder::sha256Hex(drive.sentryFront()));
            QCOMPARE(QFileInfo::exists(QDir(inside).filePath(QStringLiteral("unlock-keys.json"))), keys);
            QDirIterator pdfs(out, {QStringLiteral("*.pdf")}, QDir::Files);
            QVERIFY(pdfs.hasNext());
            const QString text = pdfText(pdfs.next());
            QVERIFY(text.contains(QStringLiteral("Locked — unlock to include this camera")));
            QVERIFY(text.contains(QStringLiteral("Encrypted by your car")));
        }
    }

    // Stopped, or refused on the car's drive: nothing is left anywhere.
    void stoppedOrRefusedLeavesNothing()
    {
        const std::vector<TeslaEvent> events = TeslaCamParser::scan(root_).events;
        const auto event = std::find_if(events.begin(), events.end(), [](const TeslaEvent &e) { return e.id() == savedId; });
        QVERIFY(event != events.end());
        for (const bool package : {false, true}) {
            QTemporaryDir out;
            std::stop_source stop;
            IncidentReport::Options options;
            options.package = package;
            options.stop = stop.get_token();
            options.progress = [&](double f) {
                if (f > (package ? 0.3 : 0.4)) // the package: once its copying began
                    stop.request_stop();
            };
            QVERIFY_THROWS_EXCEPTION(CancellationError,
                                     IncidentReport::make(*event, out.filePath(QStringLiteral("r.out")), options));
            QVERIFY2(QDir(out.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty(),
                     package ? "package" : "report");
        }

        const auto before = QDir(savedFolder_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        int code = -1;
        runReport({root_, QStringLiteral("--event"), savedId, QStringLiteral("-o"), savedFolder_}, &code);
        QCOMPARE(code, 2);
        QCOMPARE(QDir(savedFolder_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), before);
    }
};

KEELHOLD_APP_TEST_MAIN(TestIncidentReport)
#include "tst_incidentreport.moc"
