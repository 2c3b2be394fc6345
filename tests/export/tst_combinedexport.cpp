#include "export/CombinedExport.h"
#include "export/CombinedLayout.h"
#include "export/DrivingDataPanel.h"
#include "export/ExportError.h"
#include "export/OverlayText.h"
#include "export/TimeMarker.h"
#include "drive/DriveBoundary.h"
#include "base/CancellationError.h"
#include "support/DamagedHeaders.h"
#include "support/EventFootage.h"
#include "support/FaultyFs.h"
#include "support/FrameGrab.h"
#include "support/HeldClip.h"
#include "support/MovieFacts.h"
#include "support/ProgramRun.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TmpfsMount.h"
#include "support/TreeSnapshot.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QDateTime>
#include <QDir>
#include <QScopeGuard>
#include <QTest>
#include <algorithm>
#include <ctime>
#include <set>
#include <tuple>

using Exporter::ExportError;
using Layout = CombinedExportOptions::Layout;
using Size = CombinedExportOptions::Size;

namespace {

constexpr int fps = 10;

// Each camera films one flat colour, so a cell shows whose picture it holds.
QColor colourOf(Camera camera)
{
    static const QColor colours[]{{220, 30, 30},  {30, 30, 220},  {30, 200, 30},   {220, 220, 30},
                                  {220, 30, 220}, {30, 220, 220}, {240, 240, 240}}; // in Camera's order
    return colours[camera.value()];
}

// Pictures in the shape of a newer car's: the front twice the others' size.
QString colourClip(Camera camera, double seconds, double rate = fps)
{
    const bool front = camera == Camera::front;
    return TestClips::clip({.seconds = seconds, .width = front ? 320 : 160, .height = front ? 208 : 104,
                            .fps = int(rate), .gop = int(rate), .pattern = QStringLiteral("color"),
                            .filter = QStringLiteral("drawbox=c=%1:t=fill").arg(colourOf(camera).name())});
}

bool near(const QColor &a, const QColor &b, int tolerance = 45)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
        && std::abs(a.blue() - b.blue()) <= tolerance;
}

CombinedExportOptions optionsFor(Layout layout, bool timeMarker = true)
{
    CombinedExportOptions o;
    o.layout = layout;
    o.size = Size::p720;
    o.timeMarker = timeMarker;
    o.encoder = CombinedExportOptions::Encoder::software;
    return o;
}

// The shown time's milliseconds past the event's start, read off the picture.
std::optional<quint32> markerOf(const FrameGrab &grab, const CombinedLayout &layout)
{
    return TimeMarker::read(grab.luma.constBits(), int(grab.luma.bytesPerLine()), layout.margin(), layout.margin(),
                            layout.markerBlock());
}

// Files in a folder, hidden ones too: what an export left behind.
QStringList everythingIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// Words drawn by ffmpeg's drawtext (its options after the text) on a black canvas, to compare a picture with.
QImage rendering(const QString &folder, QSize canvas, const QString &words, const QString &drawtext)
{
    const QString textFile = folder + QStringLiteral("/text.txt");
    TeslaCamFixture::writeFile(textFile, words.toUtf8());
    const QString png = folder + QStringLiteral("/expected.png");
    const ProgramRun::Result ffmpeg = ProgramRun::run(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-nostdin"), QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-y"),
         QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
         QStringLiteral("color=c=black:s=%1x%2").arg(canvas.width()).arg(canvas.height()), QStringLiteral("-vf"),
         QStringLiteral("drawtext=textfile=%1:fontcolor=white:%2").arg(textFile, drawtext), QStringLiteral("-frames:v"),
         QStringLiteral("1"), png});
    if (ffmpeg.exitCode != 0)
        qFatal("ffmpeg could not render the expected text");
    return QImage(png);
}

// How far two pictures differ in a region, in summed grey levels.
qint64 distance(const QImage &seen, const QImage &expected, const QRect &region)
{
    qint64 sum = 0;
    for (int y = region.top(); y <= region.bottom(); ++y)
        for (int x = region.left(); x <= region.right(); ++x)
            sum += std::abs(qGray(seen.pixel(x, y)) - qGray(expected.pixel(x, y)));
    return sum;
}

// A clip of black pictures, so drawn words stand on what a reference draws on.
QString blackClip(double seconds)
{
    return TestClips::clip({.seconds = seconds, .width = 320, .height = 208, .fps = fps, .gop = fps,
                            .pattern = QStringLiteral("color"), .filter = QStringLiteral("drawbox=c=black:t=fill")});
}

// The sentence of the export error f throws; empty when it throws none.
template <typename F>
QString messageOf(F &&f)
{
    try {
        f();
    } catch (const ExportError &e) {
        return e.message();
    }
    return {};
}

const std::vector<Camera> sixCameras{Camera::front,      Camera::leftPillar,    Camera::rightPillar,
                                     Camera::leftRepeater, Camera::rightRepeater, Camera::back};

} // namespace

class TestCombinedExport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        qputenv("TZ", "UTC");
        tzset();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        av_log_set_level(AV_LOG_QUIET);
    }

    // Each camera in its grid cell, the right time on each frame, and a clean movie of the asked size and length.
    void gridShowsEveryCameraInItsCell()
    {
        EventFootage footage;
        for (const Camera camera : sixCameras)
            footage.add(camera, colourClip(camera, 3.0), 0);
        std::vector<CombinedExportProgress> reports;
        CombinedExport::exportMovie(footage.event, optionsFor(Layout::grid), footage.output(),
                                    [&](const CombinedExportProgress &p) { reports.push_back(p); });

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QCOMPARE(std::tuple(video->codec, video->width, video->height, video->decodedFrames, video->decodeErrors),
                 std::tuple(QStringLiteral("h264"), 1280, 720, 3 * fps, 0));
        QVERIFY2(std::abs(facts.duration - 3.0) < 0.05, qPrintable(QString::number(facts.duration)));
        QVERIFY(facts.indexBeforeData());

        std::vector<CombinedLayout::Source> sources;
        for (const Camera camera : sixCameras)
            sources.push_back({camera, camera == Camera::front ? 320 : 160, camera == Camera::front ? 208 : 104});
        const CombinedLayout layout = CombinedLayout::make(Layout::grid, sources, Size::p720);
        for (const double t : {0.0, 1.5, 2.9}) {
            const auto grab = FrameGrab::at(footage.output(), t);
            QVERIFY(grab);
            // Three columns and two rows, in the grid's order of cameras.
            for (size_t i = 0; i < sixCameras.size(); ++i) {
                const int x = int((i % 3) * 1280 / 3 + 1280 / 6);
                const int y = int((i / 3) * 360 + 180);
                const QColor seen = grab->meanColour(x, y);
                QVERIFY2(near(seen, colourOf(sixCameras[i])),
                         qPrintable(QStringLiteral("%1 at %2 s: %3").arg(sixCameras[i].displayName()).arg(t).arg(seen.name())));
            }
            QCOMPARE(qint64(markerOf(*grab, layout).value_or(~0u)), qint64(std::llround(t * 10) * 100)); // ~0u: none read
        }

        // The counts in words: the command line's exportsAllCamerasAsOneMovie.
        QVERIFY(reports.size() >= 2);
        QVERIFY(reports.back().complete);
        QVERIFY(std::ranges::is_sorted(reports, {}, &CombinedExportProgress::fraction));
        QVERIFY(everythingIn(footage.outputs()) == QStringList{QStringLiteral("movie.mp4")});
    }

    // The front large on top, the others in a row below; the front keeps its shape, with black beside it.
    void frontAndSidesPutsTheFrontOnTop()
    {
        EventFootage footage;
        for (const Camera camera : {Camera::back, Camera::front, Camera::leftRepeater, Camera::rightRepeater})
            footage.add(camera, colourClip(camera, 1.0), 0);
        CombinedExportOptions options = optionsFor(Layout::frontAndSides);
        options.overlay = {false, false, false, false};
        CombinedExport::exportMovie(footage.event, options, footage.output(), {});
        const auto grab = FrameGrab::at(footage.output(), 0.5);
        QVERIFY(grab);
        QCOMPARE(grab->rgb.size(), QSize(1280, 720));
        // Top 1280x480: the 320x208 front scaled to 738x480 in its middle; below: left side, right side, rear.
        const QColor front = colourOf(Camera::front), black(Qt::black);
        const std::vector<std::tuple<int, int, QColor>> spots{
            {640, 240, front}, {640 - 360, 240, front}, {640 - 380, 240, black}, {640 + 380, 240, black},
            {213, 600, colourOf(Camera::leftRepeater)}, {640, 600, colourOf(Camera::rightRepeater)},
            {1066, 600, colourOf(Camera::back)}};
        for (const auto &[x, y, colour] : spots)
            QVERIFY2(near(grab->meanColour(x, y), colour), qPrintable(QStringLiteral("at %1, %2").arg(x).arg(y)));
    }

    // A gap is black with the camera's name; the time runs on from the other camera, then from the clip's own date.
    void missingFootageIsBlackWithTheName()
    {
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 2.0), 0);
        footage.add(Camera::front, colourClip(Camera::front, 2.0), 4);
        footage.add(Camera::back, colourClip(Camera::back, 6.0), 0);
        CombinedExport::exportMovie(footage.event, optionsFor(Layout::grid), footage.output(), {});
        QCOMPARE(MovieFacts::read(footage.output()).firstOf(QStringLiteral("video"))->decodedFrames, 6 * fps);

        const CombinedLayout layout = CombinedLayout::make(
            Layout::grid, {{Camera::front, 320, 208}, {Camera::back, 160, 104}}, Size::p720);
        const CombinedLayout::Rect front = layout.cells().at(0).area;
        for (const double t : {1.0, 3.0, 5.0}) {
            const auto grab = FrameGrab::at(footage.output(), t);
            QVERIFY(grab);
            const QColor centre = grab->meanColour(front.x + front.width / 2, front.y + front.height / 4);
            QVERIFY2(near(centre, t == 3.0 ? QColor(Qt::black) : colourOf(Camera::front)), qPrintable(centre.name()));
            QVERIFY(near(grab->meanColour(960, 360), colourOf(Camera::back)));
            QCOMPARE(qint64(markerOf(*grab, layout).value_or(0)), qint64(t * 1000));
        }
        // The name stands in the middle of the empty cell, and nowhere else.
        const auto gap = FrameGrab::at(footage.output(), 3.0);
        const auto shown = FrameGrab::at(footage.output(), 1.0);
        const int band = layout.labelTextSize() * 2;
        const int top = front.y + front.height / 2 - band / 2;
        QVERIFY(gap->meanLuma(front.x + front.width / 4, top, front.width / 2, band) > 12);
        QVERIFY(gap->meanLuma(front.x + front.width / 4, front.y + front.height * 3 / 4, front.width / 2, band) < 20);
        QVERIFY(shown->meanLuma(front.x + front.width / 4, top, front.width / 2, band) > 50); // red, no words
    }

    // A non-movie or self-contradicting clip costs only its own stretch, shown black; the rest decodes cleanly.
    void damagedHeadersCostTheirOwnStretch_data()
    {
        DamagedHeaders::addRows();
        QTest::newRow("not a movie at all") << -1;
    }
    void damagedHeadersCostTheirOwnStretch()
    {
        QFETCH(int, damage);
        EventFootage footage;
        const QString good = colourClip(Camera::front, 2.0);
        footage.add(Camera::front, good, 0);
        footage.addBytes(Camera::front, damage < 0 ? QByteArray(50000, 'x') : DamagedHeaders::damaged(damage, good), 2);
        footage.add(Camera::front, good, 4);
        CombinedExport::exportMovie(footage.event, optionsFor(Layout::single, false), footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QCOMPARE(std::pair(video->decodedFrames, video->decodeErrors), std::pair(6 * fps, 0));
        QVERIFY2(std::abs(facts.duration - 6.0) < 0.05, qPrintable(QString::number(facts.duration)));
        for (const double t : {1.0, 3.0, 5.0}) {
            const auto grab = FrameGrab::at(footage.output(), t);
            QVERIFY(grab);
            const QColor seen = grab->meanColour(video->width / 2, video->height / 4);
            QVERIFY2(near(seen, t == 3.0 ? QColor(Qt::black) : colourOf(Camera::front)),
                     qPrintable(QStringLiteral("%1 s: %2").arg(t).arg(seen.name())));
        }
    }

    // Full size keeps the pixels, and where no graphics hardware answers, x264 makes the same movie.
    void singleCameraSizesAndStretch()
    {
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 2.0), 0);
        footage.add(Camera::front, colourClip(Camera::front, 2.0), 2);
        footage.add(Camera::back, colourClip(Camera::back, 4.0), 0);

        CombinedExportOptions options = optionsFor(Layout::single);
        options.camera = Camera::front;
        options.range = std::make_pair(1.0, 3.5);
        CombinedExport::exportMovie(footage.event, options, footage.output(QStringLiteral("720.mp4")), {});
        MovieFacts facts = MovieFacts::read(footage.output(QStringLiteral("720.mp4")));
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        // 320x208 grown to 720 high.
        QCOMPARE(std::tuple(video->width, video->height, video->decodedFrames), std::tuple(1106, 720, 25));
        QVERIFY(std::abs(facts.duration - 2.5) < 0.05);
        const auto grab = FrameGrab::at(footage.output(QStringLiteral("720.mp4")), 2.0);
        QVERIFY(near(grab->meanColour(553, 360), colourOf(Camera::front)));
        // The shown time is the event's: the stretch began a second in.
        const CombinedLayout layout = CombinedLayout::make(Layout::single, {{Camera::front, 320, 208}}, Size::p720);
        QCOMPARE(qint64(markerOf(*grab, layout).value_or(0)), qint64(3000));

        options.size = Size::full;
        options.camera = Camera::back;
        options.range.reset();
        options.timeMarker = false;
        options.encoder = CombinedExportOptions::Encoder::automatic;
        options.hardwareDevice = footage.outputs() + QStringLiteral("/no-such-render-node");
        CombinedExport::exportMovie(footage.event, options, footage.output(QStringLiteral("full.mp4")), {});
        facts = MovieFacts::read(footage.output(QStringLiteral("full.mp4")));
        video = facts.firstOf(QStringLiteral("video"));
        QCOMPARE(std::tuple(video->width, video->height, video->decodedFrames, video->decodeErrors),
                 std::tuple(160, 104, 4 * fps, 0));
    }

    // The movie runs at the fastest camera's rate; slower clips are taken at their own times.
    void camerasOfDifferentRatesStayInStep()
    {
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 2.0, 20), 0);
        footage.add(Camera::back, colourClip(Camera::back, 2.0, 10), 0);
        CombinedExport::exportMovie(footage.event, optionsFor(Layout::grid), footage.output(), {});
        QCOMPARE(MovieFacts::read(footage.output()).firstOf(QStringLiteral("video"))->decodedFrames, 40);
        const CombinedLayout layout = CombinedLayout::make(
            Layout::grid, {{Camera::front, 320, 208}, {Camera::back, 160, 104}}, Size::p720);
        const auto grab = FrameGrab::at(footage.output(), 1.05);
        QCOMPARE(qint64(markerOf(*grab, layout).value_or(0)), qint64(1050));
    }

    // Frames without a record get no panel, not the last one seen.
    void timeAndDrivingDataShowEachFramesOwn()
    {
        EventFootage footage;
        const QString withRecords = footage.outputs() + QStringLiteral("/records.mp4");
        TelemetryClipWriter::remux(blackClip(4.0), withRecords, [](int, double time) {
            std::optional<TelemetryClipWriter::FrameRecord> record;
            if (time >= 3.0 - 1e-6)
                return record; // the car stopped writing them
            record.emplace();
            record->message.set_gear_state(TelemetryClipWriter::Message::GEAR_DRIVE);
            record->message.set_vehicle_speed_mps(time < 2.0 - 1e-6 ? 10.0f : 25.0f); // 36, then 90 km/h
            record->message.set_brake_applied(time >= 2.0 - 1e-6);
            record->message.set_autopilot_state(TelemetryClipWriter::Message::AUTOSTEER);
            return record;
        });
        footage.add(Camera::front, withRecords, 0);
        footage.add(Camera::back, colourClip(Camera::back, 4.0), 0);
        CombinedExportOptions options = optionsFor(Layout::single, false);
        options.camera = Camera::front;
        options.overlay = {true, true, true, true};
        options.speedInMiles = false;
        CombinedExport::exportMovie(footage.event, options, footage.output(), {});

        const CombinedLayout layout = CombinedLayout::make(Layout::single, {{Camera::front, 320, 208}}, Size::p720);
        const DrivingDataPanel panel(layout);
        const auto speed = std::find_if(panel.words().begin(), panel.words().end(),
                                        [](const DrivingDataPanel::Words &w) { return w.key == QLatin1String("speed"); });
        QVERIFY(speed != panel.words().end());
        // Right-aligned: "<right edge>-text_w".
        const int rightEdge = speed->x.section(QLatin1Char('-'), 0, 0).toInt();
        const QRect column(rightEdge - speed->size * 2, speed->y.toInt(), speed->size * 2 + 2, speed->size * 5 / 4);
        const auto expected = [&](const QString &words) {
            return rendering(footage.outputs(), QSize(layout.width(), layout.height()), words,
                             QStringLiteral("font=DejaVu Sans\\\\:bold:fontsize=%1:x=%2:y=%3")
                                 .arg(speed->size)
                                 .arg(speed->x, speed->y));
        };
        const QImage at36 = expected(QStringLiteral("36"));
        const QImage at90 = expected(QStringLiteral("90"));
        for (const auto &[time, right, wrong] : {std::tuple{1.0, &at36, &at90}, std::tuple{2.5, &at90, &at36}}) {
            const auto grab = FrameGrab::at(footage.output(), time);
            QVERIFY(grab);
            const qint64 near = distance(grab->rgb, *right, column);
            const qint64 far = distance(grab->rgb, *wrong, column);
            QVERIFY2(near * 3 < far, qPrintable(QStringLiteral("at %1 s: right %2, wrong %3").arg(time).arg(near).arg(far)));
        }
        const DrivingDataPanel::Area area = panel.area();
        const auto panelLuma = [&](double time) {
            return FrameGrab::at(footage.output(), time)->meanLuma(area.x, area.y, area.width, area.height);
        };
        QVERIFY2(panelLuma(1.0) > 24, qPrintable(QString::number(panelLuma(1.0))));
        QVERIFY2(panelLuma(3.5) < 18, qPrintable(QString::number(panelLuma(3.5))));
        // The panel stays clear of the time, top left.
        const QRect band(0, 0, layout.width() / 2, layout.margin() + layout.timeTextSize() * 2);
        QVERIFY(area.y > band.height());

        // The clip's start date plus the frame's media time: closer to that rendering than to the next second's.
        const auto timeText = [&](double seconds) {
            return rendering(footage.outputs(), QSize(layout.width(), layout.height()),
                             OverlayText::frameTime(footage.base().addingTimeInterval(seconds)),
                             QStringLiteral("font=DejaVu Sans:fontsize=%1:box=1:boxcolor=black@0.6:boxborderw=%2:x=%3:y=%3")
                                 .arg(layout.timeTextSize())
                                 .arg(std::max(2, layout.timeTextSize() / 5))
                                 .arg(layout.margin()));
        };
        const auto grab = FrameGrab::at(footage.output(), 1.5);
        QVERIFY(grab);
        // 1.5 s in, the frame shown began 1.5 s after the clip did.
        const qint64 right = distance(grab->rgb, timeText(1.5), band);
        const qint64 wrong = distance(grab->rgb, timeText(2.5), band);
        QImage blank(layout.width(), layout.height(), QImage::Format_RGB32);
        blank.fill(Qt::black);
        const qint64 nothing = distance(grab->rgb, blank, band);
        const QString figures = QStringLiteral("right %1, wrong %2, nothing %3").arg(right).arg(wrong).arg(nothing);
        QVERIFY2(right * 3 < wrong && right * 10 < nothing, qPrintable(figures));
    }

    void frameTimeFollowsTheLocaleAndNamesNoZone()
    {
        const Date moment = Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 5, 7), Qt::UTC));
        qputenv("TZ", "America/Chicago");
        tzset();
        const QString us = OverlayText::frameTime(moment, QLocale(QLocale::English, QLocale::UnitedStates));
        const QString german = OverlayText::frameTime(moment, QLocale(QLocale::German, QLocale::Germany));
        qputenv("TZ", "UTC");
        tzset();
        QVERIFY2(us.contains(QStringLiteral("10:05:07")) && us.contains(QStringLiteral("AM")), qPrintable(us));
        QVERIFY2(us.contains(QStringLiteral("6/1/24")), qPrintable(us));
        QVERIFY2(german.contains(QStringLiteral("10:05:07")) && german.contains(QStringLiteral("01.06.24")),
                 qPrintable(german));
        QVERIFY(!german.contains(QStringLiteral("AM")));
        // The car's clock keeps no zone and the computer's is not the car's, so no zone is named.
        for (const QString &zone : {QStringLiteral("CDT"), QStringLiteral("CST"), QStringLiteral("UTC"),
                                    QStringLiteral("GMT"), QStringLiteral("Central")})
            QVERIFY2(!us.contains(zone) && !german.contains(zone), qPrintable(us + QLatin1Char('|') + german));
    }

    void overlayPartsSwitchOnAndOff()
    {
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 1.0), 0);
        footage.add(Camera::back, colourClip(Camera::back, 1.0), 0);
        CombinedExportOptions options = optionsFor(Layout::grid, false);
        options.overlay = {false, false, false, false};
        CombinedExport::exportMovie(footage.event, options, footage.output(QStringLiteral("bare.mp4")), {});
        options.overlay = {true, true, true, false};
        CombinedExport::exportMovie(footage.event, options, footage.output(QStringLiteral("drawn.mp4")), {});
        const auto bare = FrameGrab::at(footage.output(QStringLiteral("bare.mp4")), 0.5);
        const auto drawn = FrameGrab::at(footage.output(QStringLiteral("drawn.mp4")), 0.5);
        const CombinedLayout layout = CombinedLayout::make(
            Layout::grid, {{Camera::front, 320, 208}, {Camera::back, 160, 104}}, Size::p720);
        const int m = layout.margin();
        const int text = layout.timeTextSize();
        // Time: top left; reason: top right; names: each cell's bottom left.
        const QRect timeArea(m, m, text * 8, text);
        const QRect reasonArea(1280 - m - text * 6, m, text * 6, layout.labelTextSize());
        const QRect nameArea(m, 720 - m - layout.labelTextSize(), layout.labelTextSize() * 3, layout.labelTextSize());
        for (const QRect &area : {timeArea, reasonArea, nameArea}) {
            const double withText = drawn->meanLuma(area.x(), area.y(), area.width(), area.height());
            const double without = bare->meanLuma(area.x(), area.y(), area.width(), area.height());
            QVERIFY2(std::abs(withText - without) > 15, qPrintable(QStringLiteral("%1 vs %2").arg(withText).arg(without)));
        }
        // Away from the words the pictures are the same.
        QVERIFY(std::abs(drawn->meanLuma(320, 300, 40, 40) - bare->meanLuma(320, 300, 40, 40)) < 3);
    }

    void layoutsKeepShapesAndTileTheCanvas_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("cameras");
        for (const Layout layout : {Layout::grid, Layout::frontAndSides})
            for (const Size size : {Size::p1080, Size::full})
                for (const int cameras : {2, 5, 6})
                    QTest::addRow("%s %d %d", qPrintable(CombinedExportOptions::word(layout)), int(size), cameras)
                        << int(layout) << int(size) << cameras;
    }
    void layoutsKeepShapesAndTileTheCanvas()
    {
        QFETCH(int, layout);
        QFETCH(int, size);
        QFETCH(int, cameras);
        std::vector<CombinedLayout::Source> sources;
        for (int i = 0; i < cameras; ++i)
            sources.push_back(i == 0 ? CombinedLayout::Source{Camera::front, 2896, 1876}
                                     : CombinedLayout::Source{sixCameras[size_t(i)], 1448, 938});
        const CombinedLayout l = CombinedLayout::make(Layout(layout), sources, Size(size));
        QVERIFY(l.width() <= CombinedLayout::largestWidth && l.height() <= CombinedLayout::largestHeight);
        QVERIFY(l.width() % 2 == 0 && l.height() % 2 == 0);
        if (Size(size) == Size::p1080)
            QCOMPARE(QSize(l.width(), l.height()), QSize(1920, 1080));
        QCOMPARE(int(l.cells().size()), cameras);
        QImage covered(l.width(), l.height(), QImage::Format_Grayscale8);
        covered.fill(0);
        for (const CombinedLayout::Cell &cell : l.cells()) {
            const CombinedLayout::Rect a = cell.area;
            const CombinedLayout::Rect p = cell.picture;
            QVERIFY(a.x >= 0 && a.y >= 0 && a.x + a.width <= l.width() && a.y + a.height <= l.height());
            QVERIFY(p.x >= 0 && p.y >= 0 && p.x + p.width <= a.width && p.y + p.height <= a.height);
            QVERIFY(p.width == a.width || p.height == a.height); // as large as fits
            const double shape = 1448.0 / 938.0;
            QVERIFY2(std::abs(double(p.width) / p.height - shape) < 0.02, qPrintable(QString::number(double(p.width) / p.height)));
            for (int y = a.y; y < a.y + a.height; y += 2)
                for (int x = a.x; x < a.x + a.width; x += 2) {
                    QCOMPARE(qGray(covered.pixel(x, y)), 0);
                    covered.setPixel(x, y, 1);
                }
        }
        if (Layout(layout) == Layout::frontAndSides) {
            QCOMPARE(l.cells().front().area.y, 0);
            QCOMPARE(l.cells().front().area.width, l.width());
            for (size_t i = 1; i < l.cells().size(); ++i)
                QVERIFY(l.cells()[i].area.y >= l.cells().front().area.height);
        } else {
            // As many columns as the player's grid has.
            std::set<int> columns;
            for (const CombinedLayout::Cell &cell : l.cells())
                columns.insert(cell.area.x);
            QCOMPARE(int(columns.size()), cameras < 5 ? 2 : 3);
        }
    }

    // Other failures: the command line's failuresSayWhyInOneSentence and interruptStopsAndLeavesNothing; the sheet's
    // exportFailureAndStop.
    void failuresSayWhyAndLeaveNothing()
    {
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 1.0), 0);
        const CombinedExportOptions options = optionsFor(Layout::grid);
        TeslaCamFixture::writeFile(footage.output(QStringLiteral("taken.mp4")), "mine");
        QVERIFY(messageOf([&] {
            CombinedExport::exportMovie(footage.event, options, footage.output(QStringLiteral("taken.mp4")), {});
        }).startsWith(QStringLiteral("There is already a file at")));
        const TreeSnapshot before = TreeSnapshot::take(footage.root());
        QCOMPARE(messageOf([&] {
            CombinedExport::exportMovie(footage.event, options, footage.folder() + QStringLiteral("/movie.mp4"), {});
        }), DriveBoundary::exportRefusal);
        QCOMPARE(before.differences(TreeSnapshot::take(footage.root())), QString());
        std::stop_source early;
        early.request_stop();
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 CombinedExport::exportMovie(footage.event, options, footage.output(), {}, early.get_token()));
        QCOMPARE(everythingIn(footage.outputs()), QStringList{QStringLiteral("taken.mp4")});
    }

    void fullDiskLeavesNothing()
    {
        EventFootage footage;
        // Pictures that take room, unlike flat colours.
        const QString busy = TestClips::clip({.seconds = 3.0, .fps = fps, .gop = fps});
        for (const Camera camera : sixCameras)
            footage.add(camera, busy, 0);
        TmpfsMount small(footage.outputs(), QStringLiteral("small-XXXXXX"), QStringLiteral("size=64k"));
        if (!small.ok())
            QSKIP("needs root to mount a tmpfs");
        const QString message = messageOf([&] {
            CombinedExport::exportMovie(footage.event, optionsFor(Layout::grid), small.path() + QStringLiteral("/movie.mp4"), {});
        });
        QVERIFY2(message.contains(QStringLiteral("space")) || message.contains(QStringLiteral("written")),
                 qPrintable(message));
        QCOMPARE(everythingIn(small.path()), QStringList());
    }

    // The drive stops answering mid-clip: that cell is black till the clip ends, then plays on; the movie is whole.
    void aReadThatNeverAnswersCostsOnlyItsClip()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const auto releaseAtEnd = qScopeGuard([&] { fs.release(); });
        EventFootage footage;
        footage.add(Camera::front, colourClip(Camera::front, 8.0, 30), 0);
        // 6 s of pictures whose reads stop answering past 70 % of the file.
        const QByteArray bytes = HeldClip::indexFirst(6.0, 30);
        footage.place(Camera::back, HeldClip::add(fs, QStringLiteral("back.mp4"), bytes, bytes.size() * 7 / 10), 0);
        const QString after = footage.outputs() + QStringLiteral("/after.mp4");
        TeslaCamFixture::writeFile(after, bytes);
        footage.add(Camera::back, after, 6);

        CombinedExport::exportMovie(footage.event, optionsFor(Layout::grid, false), footage.output(), {}, {},
                                    std::chrono::milliseconds(2000));
        QCOMPARE(fs.heldRequests(), 1); // never answered: the export went on without it

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        // To the end of the back camera's second clip.
        QCOMPARE(std::pair(video->decodedFrames, video->decodeErrors), std::pair(12 * 30, 0));
        const CombinedLayout layout = CombinedLayout::make(
            Layout::grid, {{Camera::front, 320, 208}, {Camera::back, 640, 480}}, Size::p720);
        const CombinedLayout::Rect front = layout.cells().at(0).area;
        const CombinedLayout::Rect back = layout.cells().at(1).area;
        for (const double t : {0.5, 5.7, 7.0}) {
            const auto grab = FrameGrab::at(footage.output(), t);
            QVERIFY(grab);
            QVERIFY(near(grab->meanColour(front.x + front.width / 2, front.y + front.height / 2), colourOf(Camera::front)));
            // The upper quarter of the cell, clear of the name a black cell shows.
            const double backLuma = grab->meanLuma(back.x + back.width / 4, back.y + back.height / 8, back.width / 2,
                                                   back.height / 8);
            const bool held = t == 5.7;
            QVERIFY2(held ? backLuma < 20 : backLuma > 40, qPrintable(QStringLiteral("%1 s: %2").arg(t).arg(backLuma)));
        }
    }
};

QTEST_GUILESS_MAIN(TestCombinedExport)
#include "tst_combinedexport.moc"
