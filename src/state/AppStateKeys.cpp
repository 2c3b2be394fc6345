// The application state's side of encrypted footage: what the keys held now
// unlock, kept beside the events it describes.
#include "state/AppState.h"
#include "base/LogCategories.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>

void AppState::refreshKeyCoverage()
{
    std::vector<TeslaEvent> events;
    const auto addEncrypted = [&](const std::vector<TeslaEvent> &from) {
        std::copy_if(from.begin(), from.end(), std::back_inserter(events), [](const TeslaEvent &e) { return e.encrypted; });
    };
    if (driveScan_)
        addEncrypted(driveScan_->events);
    addEncrypted(vaultEvents_);
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
    const auto it = keyCoverage_.constFind(eventID);
    return it != keyCoverage_.cend() && it->isUnlocked() ? QStringLiteral("unlocked") : QStringLiteral("locked");
}

int AppState::encryptedEventCount() const
{
    if (!driveScan_)
        return 0;
    return int(std::count_if(driveScan_->events.begin(), driveScan_->events.end(),
                             [](const TeslaEvent &e) { return e.encrypted; }));
}

int AppState::lockedEventCount() const
{
    if (!driveScan_)
        return 0;
    return int(std::count_if(driveScan_->events.begin(), driveScan_->events.end(), [this](const TeslaEvent &e) {
        if (!e.encrypted)
            return false;
        const auto it = keyCoverage_.constFind(e.id());
        return it == keyCoverage_.cend() || !it->isUnlocked();
    }));
}

QVariantMap AppState::lockStatesForQml() const
{
    QVariantMap states;
    const auto add = [&](const std::vector<TeslaEvent> &events) {
        for (const TeslaEvent &e : events) {
            if (!e.encrypted)
                continue;
            const auto it = keyCoverage_.constFind(e.id());
            states.insert(e.id(), it != keyCoverage_.cend() && it->isUnlocked() ? QStringLiteral("unlocked")
                                                                                   : QStringLiteral("locked"));
        }
    };
    if (driveScan_)
        add(driveScan_->events);
    add(vaultEvents_);
    return states;
}
