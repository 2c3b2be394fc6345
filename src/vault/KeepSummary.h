#pragma once

#include "model/ArchiveReport.h"

#include <QCoreApplication>
#include <QString>

// A keep told in one sentence, for a notification or one line of a log:
// what was kept from which drive and whether all of it was verified, or the
// one thing that went wrong. Only whole events are called kept.
class KeepSummary {
    Q_DECLARE_TR_FUNCTIONS(KeepSummary)
public:
    struct Told {
        QString title;
        QString sentence;
        // Something went wrong, or the keep was cut short.
        bool failed = false;
        // Something was kept or went wrong: worth a notification.
        bool news = true;
    };

    static Told of(const ArchiveReport &report, const QString &driveName);
};
