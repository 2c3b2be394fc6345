#pragma once

#include "model/ArchiveReport.h"
#include "model/TeslaEvent.h"
#include "model/ArchivedEvent.h"
#include "vault/VaultIndex.h"
#include "vault/VerificationLog.h"

#include <QCoreApplication>
#include <QString>
#include <QVariantMap>
#include <vector>

// What the Vault says about each kept event, and what a keep's report says
// it did: the words that must never claim more than was checked. An event
// is as good as its newest record and the last re-reading of it.
class VaultMarks {
    Q_DECLARE_TR_FUNCTIONS(VaultMarks)
public:
    // The check that still speaks for the newest record: none when the event
    // was kept again after it.
    static const EventCheck *currentCheck(const ArchivedEvent &newest, const EventCheck *check);

    // Whether the Vault holds the event whole and, as far as the last check
    // saw, as it was kept: what lets a row call it safely kept.
    static bool vouchesFor(const ArchivedEvent &newest, const EventCheck *check);

    // The badge and its detail: badge, badgeIcon, tone ("good", "warning",
    // "bad"), badgeTip, title, text, archivedLine, checkedLine, and files
    // [{name, sha256, problem}].
    static QVariantMap mark(const ArchivedEvent &newest, const EventCheck *check);

    // The notice over the Vault list when the last re-reading found a kept
    // event changed or gone: {present, title, message}.
    static QVariantMap notice(const std::vector<TeslaEvent> &shown, const VaultIndex &index, const VerificationLog &log);

    // The keep report's heading (and its symbol) and lines [{symbol, text}].
    static QString reportHeading(const ArchiveReport &report);
    static QString reportHeadingSymbol(const ArchiveReport &report);
    static QVariantList reportLines(const ArchiveReport &report);
};
