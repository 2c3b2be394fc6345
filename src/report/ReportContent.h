#pragma once

#include "model/Camera.h"
#include "model/Date.h"
#include "model/EventTelemetry.h"
#include "model/TeslaEvent.h"
#include "model/TelemetryRecord.h"
#include "report/ReportMap.h"
#include "timeline/HardMoments.h"

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QString>
#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

// Everything an incident report says about one event, gathered from the
// footage, its driving data, the Vault's records and the files themselves.
// Drawing it is ReportDocument's; nothing here is worded for the page
// except the facts' own plain names.
struct ReportContent {
    Q_DECLARE_TR_FUNCTIONS(ReportContent)

public:
    struct Still {
        Camera camera = Camera::front;
        std::optional<QImage> picture; // at the camera's full size
        QString missingReason;         // why there is none, in the user's words
    };

    // One reading of the car's record, at a time from the moment.
    struct Reading {
        double time = 0; // seconds from the moment
        TelemetryRecord record;
    };

    struct File {
        QString name;
        Camera camera = Camera::front;
        Date start;
        std::optional<double> duration;
        qint64 size = 0;
        QString condition;
        bool damaged = false;
        QString path;
        std::optional<QString> sha256;     // none when the file couldn't be read now
        std::optional<QString> keptSha256; // the Vault's record of it
        QString readProblem;               // why sha256 is missing
        bool matchesRecord() const { return !keptSha256 || (sha256 && *sha256 == *keptSha256); }
    };

    TeslaEvent event;
    bool fromVault = false;
    std::optional<Date> lastVerified; // of the kept event, when the Vault re-read it
    Date madeAt;

    // The moment on the event's axis: the car's trigger, or the start of
    // a stretch of driving that has none.
    double momentOffset = 0;
    bool hasTrigger = false;
    Date carClock;             // at the moment, by the car's own clock
    std::optional<Date> gpsClock; // the same by the GPS clock of the clips' headers

    std::optional<double> latitude;
    std::optional<double> longitude;
    std::vector<EventTelemetry::RoutePoint> route; // positions over the whole event
    std::optional<double> routeMoment;             // the route point's time at the moment

    QHash<QString, QImage> mapTiles; // under the route and the spot, by ReportMap::keyOf

    std::vector<Still> stills;      // one per camera of the event, grid order
    std::vector<Reading> readings;  // the chart's 20 s: around the moment, or from the start
    std::optional<TelemetryRecord> atMoment;
    // The drive's hard moments, each with the car's clock then.
    struct Moment {
        HardMoment what;
        Date carClock;
    };
    std::vector<Moment> hardMoments;

    std::vector<File> files;        // every original, in clip order

    // The GPS and the car's clocks differ by more than a minute from a whole
    // number of quarter hours (the car's zone is unknown).
    bool clocksDisagree() const;
    bool hasDrivingData() const { return !readings.empty(); }

    struct Options {
        std::optional<QString> vaultURL; // the Vault that may hold the event
        std::chrono::milliseconds readLimit{10000};
        std::stop_token stop;
        std::function<void(double)> progress; // 0 to 1
        // Off when the files are hashed as they are packed, and filled in after.
        bool hashFiles = true;
        ReportMap::Tiles tiles; // none: the map is drawn plain
    };
    static constexpr double chartSeconds = 20;
    // Where the chart begins, in seconds from the moment: a stretch of
    // driving with no trigger is shown from its start.
    double chartFrom() const { return hasTrigger ? -chartSeconds / 2 : 0; }

    // Blocking; run it off the window's thread. A file or camera that can't
    // be read costs its own part only. Throws CancellationError when stopped.
    static ReportContent gather(const TeslaEvent &event, const Options &options);
    // The condition of a clip in the user's words.
    static QString conditionText(ClipHealth health);
};
