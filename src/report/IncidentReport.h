#pragma once

#include "model/TeslaEvent.h"
#include "report/ReportMap.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

// Makes the incident report of one event, alone as a PDF or inside an
// evidence package with every original: the one way both the window and
// the command line make them. Blocking; run it off the window's thread.
class IncidentReport {
    Q_DECLARE_TR_FUNCTIONS(IncidentReport)

public:
    struct Options {
        std::optional<QString> vaultURL; // the Vault that holds the event, or may
        bool package = false;
        bool includeKeys = false;         // an encrypted event's keys go into the package
        bool miles = false;
        QLocale locale;
        QString version;
        ReportMap::Tiles tiles;
        std::chrono::milliseconds readLimit{10000};
        std::stop_token stop;
        std::function<void(double)> progress; // 0 to 1
    };

    // "Keelhold Report — Tesla Sentry 2024-06-01 3.05 PM.pdf"
    static QString suggestedFileName(const TeslaEvent &event);
    // "Keelhold Evidence — Tesla Sentry 2024-06-01 3.05 PM.zip"
    static QString suggestedPackageName(const TeslaEvent &event);

    // Writes the report (or package) at destination, a new file in an
    // existing folder that is not on the car's drive. Made under a hidden
    // name and renamed when whole. Throws ReportError, or CancellationError
    // when stopped; either way nothing is left behind.
    static void make(const TeslaEvent &event, const QString &destination, const Options &options);
};
