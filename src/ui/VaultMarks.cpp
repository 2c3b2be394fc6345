#include "VaultMarks.h"

#include "InboxPresenter.h"

#include <QVariantList>
#include <algorithm>

namespace {

QString faithfulTitle() { return VaultMarks::tr("Faithful Copy"); }

QString faithfulText()
{
    return VaultMarks::tr("Every file below was copied and its checksum (SHA-256) was compared to the original on "
                          "your drive at the time — a faithful, unaltered copy. This is a technical integrity check, "
                          "not a legal certification.");
}

QString day(const Date &date) { return date.formatLocal(QStringLiteral("d MMM yyyy")); }

int incompleteEvents(const ArchiveReport &r)
{
    return int(std::count_if(r.archivedEvents.begin(), r.archivedEvents.end(),
                             [](const ArchivedEvent &e) { return e.isIncomplete(); }));
}

bool stoppedByDrive(const ArchiveReport &r)
{
    return r.stoppedBecause == ArchiveReport::StopReason::driveDisconnected;
}

} // namespace

const EventCheck *VaultMarks::currentCheck(const ArchivedEvent &newest, const EventCheck *check)
{
    return check && !(check->checkedAt < newest.archivedAt) ? check : nullptr;
}

bool VaultMarks::vouchesFor(const ArchivedEvent &newest, const EventCheck *check)
{
    const EventCheck *current = currentCheck(newest, check);
    return !newest.isIncomplete()
        && (!current || (current->missing.isEmpty() && current->changed.isEmpty() && current->unreadable.isEmpty()));
}

QVariantMap VaultMarks::mark(const ArchivedEvent &newest, const EventCheck *check)
{
    const EventCheck *current = currentCheck(newest, check);
    QVariantMap m{{QStringLiteral("present"), true},
                  {QStringLiteral("archivedLine"), tr("Archived %1 from %2")
                       .arg(newest.archivedAt.formatLocal(QStringLiteral("MMM d, yyyy 'at' h:mm AP")),
                            newest.sourceVolume)}};

    QVariantList files;
    for (const ArchivedFile &f : newest.files) {
        QString problem;
        if (current && current->missing.contains(f.name))
            problem = tr("Missing");
        else if (current && current->changed.contains(f.name))
            problem = tr("Changed since it was kept");
        else if (current && current->unreadable.contains(f.name))
            problem = tr("Couldn't be read");
        files.append(QVariantMap{{QStringLiteral("name"), f.name},
                                 {QStringLiteral("sha256"), f.sha256},
                                 {QStringLiteral("problem"), problem}});
    }
    m.insert(QStringLiteral("files"), files);

    const auto set = [&m](const QString &badge, const char *symbol, const char *tone, const QString &tip,
                          const QString &title, const QString &text) {
        m.insert(QStringLiteral("badge"), badge);
        m.insert(QStringLiteral("badgeSymbol"), QString::fromLatin1(symbol));
        m.insert(QStringLiteral("tone"), QString::fromLatin1(tone));
        m.insert(QStringLiteral("badgeTip"), tip);
        m.insert(QStringLiteral("title"), title);
        m.insert(QStringLiteral("text"), text);
    };
    const QString checkedOn = current ? day(current->checkedAt) : QString();
    const QString checkedLine = current ? tr("Last re-read %1.").arg(current->checkedAt.formatLocal(
                                              QStringLiteral("d MMM yyyy 'at' h:mm AP")))
                                        : tr("Not re-read since it was kept.");
    m.insert(QStringLiteral("checkedLine"), checkedLine);

    const QStringList gone = current ? current->missing : QStringList();
    const QStringList altered = current ? current->changed + current->unreadable : QStringList();
    if (!gone.isEmpty() || !altered.isEmpty()) {
        const bool missing = !gone.isEmpty();
        const QStringList named = gone + altered;
        const QString list = named.join(QStringLiteral(", "));
        set(missing ? tr("Missing") : tr("Changed since it was kept"), "exclamationmark.triangle", "bad",
            missing ? tr("Missing from your Vault since it was kept: %1").arg(list)
                    : tr("Changed since it was kept: %1").arg(list),
            missing ? tr("Files Missing") : tr("Changed Since It Was Kept"),
            tr("When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below "
               "was changed or removed after it was kept; if the event is still on your drive, keep it again.")
                .arg(checkedOn, named.size() == 1 ? tr("one file") : tr("%1 files").arg(named.size())));
    } else if (newest.isIncomplete()) {
        const QString counts = tr("%1 of %2 files").arg(newest.files.size()).arg(*newest.expectedFileCount);
        set(tr("Incomplete — %1").arg(counts), "exclamationmark.triangle", "warning",
            tr("Only part of this event reached your Vault. Keep it again from the drive to finish it."),
            tr("Incomplete Copy"),
            tr("The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked "
               "as it was copied, but the event is not complete. Keep it again from your drive to finish it.")
                .arg(counts));
    } else if (current) {
        set(tr("Verified %1").arg(checkedOn), "checkmark.seal", "good",
            tr("Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the "
               "technical detail.")
                .arg(checkedOn),
            faithfulTitle(), faithfulText());
    } else {
        set(tr("Verified copy"), "checkmark.seal", "good",
            tr("This copy was checked byte-for-byte against your drive when it was archived. Tap for the "
               "technical detail."),
            faithfulTitle(), faithfulText());
    }
    return m;
}

QVariantMap VaultMarks::notice(const std::vector<TeslaEvent> &shown, const VaultIndex &index, const VerificationLog &log)
{
    QStringList problems;
    int events = 0;
    for (const TeslaEvent &e : shown) {
        const ArchivedEvent *newest = index.newestRecord(e.id());
        const EventCheck *check = newest ? currentCheck(*newest, log.find(e.id())) : nullptr;
        if (!check || (check->missing.isEmpty() && check->changed.isEmpty() && check->unreadable.isEmpty()))
            continue;
        ++events;
        if (problems.size() >= 3)
            continue;
        QStringList files;
        for (const QString &name : check->missing)
            files << tr("%1 is missing").arg(name);
        for (const QString &name : check->changed)
            files << tr("%1 has changed").arg(name);
        for (const QString &name : check->unreadable)
            files << tr("%1 can't be read").arg(name);
        problems << tr("%1: %2").arg(InboxPresenter::longTimestamp(e), files.join(QStringLiteral(", ")));
    }
    if (events == 0)
        return {{QStringLiteral("present"), false}};
    QString message = problems.join(QStringLiteral("; ")) + QLatin1Char('.');
    if (events > problems.size())
        message += QLatin1Char(' ') + tr("%1 more kept events have problems too.").arg(events - problems.size());
    message += QLatin1Char(' ')
        + tr("Something changed these copies after they were kept. If the events are still on your drive, keep them "
             "again.");
    return {{QStringLiteral("present"), true},
            {QStringLiteral("title"), events == 1 ? tr("A kept event no longer matches what was kept")
                                                  : tr("%1 kept events no longer match what was kept").arg(events)},
            {QStringLiteral("message"), message}};
}

QString VaultMarks::reportHeading(const ArchiveReport &r)
{
    const int complete = r.completeEvents();
    const int planned = r.plannedEvents;
    if (stoppedByDrive(r))
        return planned == 1 ? tr("Drive disconnected — %1 of 1 event kept completely").arg(complete)
                            : tr("Drive disconnected — %1 of %2 events kept completely").arg(complete).arg(planned);
    if (r.cancelled)
        return tr("Backup Stopped");
    if (complete < planned)
        return planned == 1 ? tr("Backup Incomplete — %1 of 1 event kept completely").arg(complete)
                            : tr("Backup Incomplete — %1 of %2 events kept completely").arg(complete).arg(planned);
    return tr("Backup Complete");
}

QString VaultMarks::reportHeadingSymbol(const ArchiveReport &r)
{
    if (stoppedByDrive(r))
        return QStringLiteral("eject.circle");
    if (r.cancelled)
        return QStringLiteral("pause.circle");
    if (r.completeEvents() < r.plannedEvents)
        return QStringLiteral("exclamationmark.triangle");
    return QStringLiteral("checkmark.seal.fill");
}

QVariantList VaultMarks::reportLines(const ArchiveReport &r)
{
    const auto line = [](const char *symbol, const QString &text) {
        return QVariantMap{{QStringLiteral("symbol"), QString::fromLatin1(symbol)}, {QStringLiteral("text"), text}};
    };
    QVariantList lines;
    // Only whole events are called verified.
    const int complete = r.completeEvents();
    if (complete > 0)
        lines.append(line(r.cancelled && !stoppedByDrive(r) ? "pause.circle" : "checkmark.seal.fill",
                          complete == 1 ? tr("1 event copied and verified, byte-for-byte. The original on your "
                                             "drive is untouched.")
                                        : tr("%1 events copied and verified, byte-for-byte. The original on your "
                                             "drive is untouched.")
                                              .arg(complete)));
    const int partial = incompleteEvents(r);
    if (partial > 0) {
        int arrived = 0;
        int expected = 0;
        for (const ArchivedEvent &e : r.archivedEvents)
            if (e.isIncomplete()) {
                arrived += int(e.files.size());
                expected += *e.expectedFileCount;
            }
        lines.append(line("exclamationmark.triangle",
                          partial == 1
                              ? tr("1 event reached your Vault only in part (%1 of %2 files), so it isn't a verified "
                                   "copy. Keep it again to finish it.")
                                    .arg(arrived)
                                    .arg(expected)
                              : tr("%1 events reached your Vault only in part (%2 of %3 files), so they aren't "
                                   "verified copies. Keep them again to finish them.")
                                    .arg(partial)
                                    .arg(arrived)
                                    .arg(expected)));
    }
    if (r.skippedDuplicates > 0)
        lines.append(line("doc.on.doc", tr("%1 were already in your Vault, so we skipped them.")
                                            .arg(r.skippedDuplicates)));
    const int failed = int(r.failedFiles.size());
    if (failed > 0)
        lines.append(line("exclamationmark.triangle",
                          stoppedByDrive(r)
                              ? (failed == 1 ? tr("1 file couldn't be read as the drive went away.")
                                             : tr("%1 files couldn't be read as the drive went away.").arg(failed))
                              : (failed == 1 ? tr("1 file couldn't be read — your drive may be failing. Nothing "
                                                  "was deleted or changed; you can try again.")
                                             : tr("%1 files couldn't be read — your drive may be failing. Nothing "
                                                  "was deleted or changed; you can try again.")
                                                   .arg(failed))));
    return lines;
}
