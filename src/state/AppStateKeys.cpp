// The application state's side of encrypted footage: what the keys held now
// unlock, kept beside the events it describes.
#include "state/AppState.h"
#include "base/LogCategories.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>

namespace {

QString lockWord(const QHash<QString, KeyCoverage> &coverage, const QString &eventID)
{
    const auto it = coverage.constFind(eventID);
    return it != coverage.cend() && it->isUnlocked() ? QStringLiteral("unlocked") : QStringLiteral("locked");
}

} // namespace

void AppState::refreshKeyCoverage()
{
    std::vector<TeslaEvent> events;
    const auto addEncrypted = [&](const std::vector<TeslaEvent> &from) {
        std::copy_if(from.begin(), from.end(), std::back_inserter(events), [](const TeslaEvent &e) { return e.encrypted; });
    };
    if (driveScan())
        addEncrypted(driveScan()->events);
    addEncrypted(vaultEvents());
    const quint64 run = ++keyCoverageRun_;
    // The events themselves changed: their marks may have, before any answer.
    Q_EMIT keyCoverageChanged();
    if (events.empty()) {
        keyCoverage_.clear();
        return;
    }
    keyCoverageTask(QPointer<AppState>(this), std::move(events), run);
}

QCoro::Task<void> AppState::keyCoverageTask(QPointer<AppState> self, std::vector<TeslaEvent> events, quint64 run)
{
    QHash<QString, KeyCoverage> coverage;
    try {
        QFuture<QHash<QString, KeyCoverage>> asking = self->engine_.keyCoverage(events);
        coverage = co_await asking;
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    // Only the latest question's answer lands: events may have changed meanwhile.
    if (!self || self->keyCoverageRun_ != run || self->keyCoverage_ == coverage)
        co_return;
    self->keyCoverage_ = std::move(coverage);
    Q_EMIT self->keyCoverageChanged();
}

QString AppState::lockState(const QString &eventID) const
{
    std::optional<TeslaEvent> event = findEvent(eventID);
    if (!event)
        event = findVaultEvent(eventID);
    if (!event || !event->encrypted)
        return {};
    return lockWord(keyCoverage_, eventID);
}

int AppState::encryptedEventCount() const
{
    if (!driveScan())
        return 0;
    const std::vector<TeslaEvent> &events = driveScan()->events;
    return int(std::count_if(events.begin(), events.end(), [](const TeslaEvent &e) { return e.encrypted; }));
}

int AppState::lockedEventCount() const
{
    if (!driveScan())
        return 0;
    const std::vector<TeslaEvent> &events = driveScan()->events;
    return int(std::count_if(events.begin(), events.end(), [this](const TeslaEvent &e) {
        return e.encrypted && lockWord(keyCoverage_, e.id()) == QLatin1String("locked");
    }));
}

QHash<QString, QString> AppState::lockStates() const
{
    QHash<QString, QString> states;
    const auto add = [&](const std::vector<TeslaEvent> &events) {
        for (const TeslaEvent &e : events)
            if (e.encrypted)
                states.insert(e.id(), lockWord(keyCoverage_, e.id()));
    };
    if (driveScan())
        add(driveScan()->events);
    add(vaultEvents());
    return states;
}
