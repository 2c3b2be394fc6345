// A bare window with the player tiles of a generated event, to look at real
// pixels (colours, range, layout) under xvfb-run. Not a test: run it by hand.
//   xvfb-run -a -s "-screen 0 1600x1000x24" playback_window --grab out.png

#include "playback/SyncPlayerController.h"
#include "support/TestClips.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

namespace {
const char *qml = R"(
import QtQuick
import QtQuick.Controls
import QtMultimedia

ApplicationWindow {
    width: 1280; height: 760; visible: true; color: "#202020"
    Grid {
        id: grid
        columns: 3; spacing: 6; x: 6; y: 6
        Repeater {
            model: controller.tiles
            delegate: Rectangle {
                width: 416; height: 312; color: "black"
                VideoOutput {
                    id: video
                    anchors.fill: parent
                    visible: modelData.player !== null
                    Component.onCompleted: if (modelData.player) modelData.player.videoSink = video.videoSink
                }
                Text {
                    visible: modelData.player === null
                    anchors.centerIn: parent; width: parent.width - 40
                    wrapMode: Text.WordWrap; horizontalAlignment: Text.AlignHCenter
                    color: "white"; text: modelData.placeholderReason || ""
                }
                Text { x: 8; y: 8; color: "white"; style: Text.Outline; text: modelData.cameraName }
            }
        }
    }
    Text {
        anchors.bottom: parent.bottom; anchors.margins: 10; x: 10
        color: "white"; font.pixelSize: 18
        text: (controller.isLoadingTiles ? "Loading… " : "")
              + controller.timeString(controller.currentTime) + " / " + controller.timeString(controller.duration)
              + (controller.isPlaying ? "  playing" : "  paused")
    }
}
)";

bool limitedRange = false;

QString makeClip(const QString &pattern, const QString &filter, const QString &dir, const QString &name)
{
    TestClips::ClipOptions options;
    if (limitedRange)
        options.pixelFormat = "yuv420p";
    options.seconds = 3;
    options.width = 640;
    options.height = 480;
    options.pattern = pattern;
    options.filter = filter;
    const QString dest = dir + QLatin1Char('/') + name;
    QFile::copy(TestClips::clip(options), dest);
    return dest;
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({"grab", "Save the window to this PNG and quit.", "file"});
    parser.addOption({"after", "Seconds of playing before the grab (default 1.5).", "seconds", "1.5"});
    parser.addOption({"limited", "Make the clips limited-range (yuv420p) instead of full-range."});
    parser.process(app);
    limitedRange = parser.isSet("limited");

    QTemporaryDir dir;
    const Date origin(800000000.0);
    TeslaEvent event;
    event.kind = EventKind::saved;
    event.folderName = "2026-07-21_02-11-05";
    event.timestamp = origin.addingTimeInterval(1);
    event.missingEventJSON = false;
    auto add = [&](Camera camera, const QString &path, int minute, ClipHealth health = ClipHealth::ok) {
        ClipRef c;
        c.url = path;
        c.camera = camera;
        c.startDate = origin.addingTimeInterval(3.0 * minute);
        c.health = health;
        event.clips.push_back(c);
    };
    // Pure red, green and blue, in full-range YUV like the car's clips.
    const QString red = makeClip("color", "format=rgb24,geq=r=255:g=0:b=0", dir.path(), "red.mp4");
    const QString green = makeClip("color", "format=rgb24,geq=r=0:g=255:b=0", dir.path(), "green.mp4");
    const QString blue = makeClip("color", "format=rgb24,geq=r=0:g=0:b=255", dir.path(), "blue.mp4");
    const QString bars = makeClip("smptebars", QString(), dir.path(), "bars.mp4");
    const QString pattern = makeClip("testsrc2", QString(), dir.path(), "pattern.mp4");
    add(Camera::front, red, 0);
    add(Camera::front, pattern, 1);
    add(Camera::leftPillar, green, 0);
    add(Camera::rightPillar, blue, 0);
    add(Camera::leftRepeater, bars, 0);
    add(Camera::rightRepeater, pattern, 1); // starts a clip late
    add(Camera::back, red, 0, ClipHealth::truncated);
    ClipOrder::sort(event.clips);

    SyncPlayerController controller(event);
    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty("controller", &controller);
    engine.loadData(qml);
    if (engine.rootObjects().isEmpty())
        return 1;

    if (parser.isSet("grab")) {
        const QString out = parser.value("grab");
        const int afterMs = int(parser.value("after").toDouble() * 1000);
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().first());
        QObject::connect(&controller, &SyncPlayerController::isPlayingChanged, &app, [&, window, out, afterMs] {
            if (!controller.isPlaying())
                return;
            QTimer::singleShot(afterMs, &app, [&, window, out] {
                controller.pause();
                QTimer::singleShot(300, &app, [window, out] {
                    const bool saved = window->grabWindow().save(out);
                    QCoreApplication::exit(saved ? 0 : 1);
                });
            });
        });
        QTimer::singleShot(30000, &app, [] { QCoreApplication::exit(2); });
    }
    return app.exec();
}
