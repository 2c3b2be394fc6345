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

QString day(const Date &date) { return date.formatForPeople(QStringLiteral("d MMM yyyy"), Date::Shown::date); }

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
                  //: %1 is when the event was kept, %2 the name of the drive it came from
                  {QStringLiteral("archivedLine"), tr("Archived %1 from %2")
                       .arg(newest.archivedAt.formatForPeople(QStringLiteral("MMM d, yyyy 'at' h:mm AP"), Date::Shown::dateAndTime),
                            newest.sourceVolumeText())}};

    QVariantList files;
    for (const ArchivedFile &f : newest.files) {
        QString problem;
        if (current && current->missing.contains(f.name))
            //: A kept file that is no longer in the Vault
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
    //: %1 is the date and time of the last re-reading
    const QString checkedLine = current ? tr("Last re-read %1.").arg(current->checkedAt.formatForPeople(
                                              QStringLiteral("d MMM yyyy 'at' h:mm AP"), Date::Shown::dateAndTime))
                                        : tr("Not re-read since it was kept.");
    m.insert(QStringLiteral("checkedLine"), checkedLine);

    const QStringList gone = current ? current->missing : QStringList();
    const QStringList altered = current ? current->changed + current->unreadable : QStringList();
    if (!gone.isEmpty() || !altered.isEmpty()) {
        const bool missing = !gone.isEmpty();
        const QStringList named = gone + altered;
        //: Between file names
        const QString list = named.join(tr(", "));
        set(missing ? tr("Missing") : tr("Changed since it was kept"), "exclamationmark.triangle", "bad",
            missing ? tr("Missing from your Vault since it was kept: %1").arg(list)
                    : tr("Changed since it was kept: %1").arg(list),
            missing ? tr("Files Missing") : tr("Changed Since It Was Kept"),
            //: %1 is the day of the re-reading, %2 how many files ("one file", "3 files")
            tr("When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below "
               "was changed or removed after it was kept; if the event is still on your drive, keep it again.")
                .arg(checkedOn, tr("%n files", nullptr, int(named.size()))));
    } else if (newest.isIncomplete()) {
        //: Files that reached the Vault, of all the event has
        const QString counts = tr("%1 of %n files", nullptr, *newest.expectedFileCount).arg(newest.files.size());
        set(tr("Incomplete — %1").arg(counts), "exclamationmark.triangle", "warning",
            tr("Only part of this event reached your Vault. Keep it again from the drive to finish it."),
            tr("Incomplete Copy"),
            tr("The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked "
               "as it was copied, but the event is not complete. Keep it again from your drive to finish it.")
                .arg(counts));
    } else if (current) {
        //: The badge of a kept event; %1 is the day it was last re-read
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
        //: Between file names
        const QString fileSeparator = tr(", ");
        //: An event's problems in the Vault's notice: its date and time, then the files
        problems << tr("%1: %2").arg(InboxPresenter::longTimestamp(e), files.join(fileSeparator));
    }
    if (events == 0)
        return {{QStringLiteral("present"), false}};
    //: Between the events in the Vault's notice
    const QString eventSeparator = tr("; ");
    //: The Vault notice's list of events with problems, ended as a sentence
    QString message = tr("%1.").arg(problems.join(eventSeparator));
    if (events > problems.size())
        message += QLatin1Char(' ') + tr("%n more kept events have problems too.", nullptr, int(events - problems.size()));
    message += QLatin1Char(' ')
        + tr("Something changed these copies after they were kept. If the events are still on your drive, keep them "
             "again.");
    return {{QStringLiteral("present"), true},
            {QStringLiteral("title"), tr("%n kept events no longer match what was kept", nullptr, events)},
            {QStringLiteral("message"), message}};
}

QString VaultMarks::reportHeading(const ArchiveReport &r)
{
    const int complete = r.completeEvents();
    const int planned = r.plannedEvents;
    if (stoppedByDrive(r))
        return tr("Drive disconnected — %1 of %n events kept completely", nullptr, planned).arg(complete);
    if (r.cancelled)
        return tr("Backup Stopped");
    if (complete < planned)
        return tr("Backup Incomplete — %1 of %n events kept completely", nullptr, planned).arg(complete);
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
                          tr("%n events copied and verified, byte-for-byte. The original on your drive is untouched.",
                             nullptr, complete)));
    const int partial = incompleteEvents(r);
    if (partial > 0) {
        int arrived = 0;
        int expected = 0;
        for (const ArchivedEvent &e : r.archivedEvents)
            if (e.isIncomplete()) {
                arrived += int(e.files.size());
                expected += *e.expectedFileCount;
            }
        //: %1 of %2 are the files that arrived, of all the events have
        lines.append(line("exclamationmark.triangle",
                          tr("%n events reached your Vault only in part (%1 of %2 files), so they aren't verified "
                             "copies. Keep them again to finish them.",
                             nullptr, partial)
                              .arg(arrived)
                              .arg(expected)));
    }
    if (r.skippedDuplicates > 0)
        //: %n is a number of events
        lines.append(line("doc.on.doc", tr("%n were already in your Vault, so we skipped them.", nullptr,
                                           r.skippedDuplicates)));
    const int failed = int(r.failedFiles.size());
    if (failed > 0)
        lines.append(line("exclamationmark.triangle",
                          stoppedByDrive(r)
                              ? tr("%n files couldn't be read as the drive went away.", nullptr, failed)
                              : tr("%n files couldn't be read — your drive may be failing. Nothing was deleted or "
                                   "changed; you can try again.",
                                   nullptr, failed)));
    return lines;
}
