#include "engine/TriageStore.h"

#include "engine/StoreFile.h"
#include "model/JsonCoding.h"

TriageStore::TriageStore(std::optional<QString> filePath)
    : filePath_(filePath ? *filePath : StoreFile::defaultPath(QLatin1String(fileName)))
{
}

TriageStore::~TriageStore() { executor_.waitForDone(); }

TriageStore &TriageStore::shared()
{
    static TriageStore instance;
    return instance;
}

QFuture<TriageState> TriageStore::state(const QString &eventID)
{
    return executor_.submit([this, eventID] {
        loadOnce();
        return states_.value(eventID, TriageState::new_);
    });
}

QFuture<void> TriageStore::set(TriageState state, const QString &eventID)
{
    return executor_.submit([this, state, eventID] {
        loadOnce();
        states_.insert(eventID, state);
        QJsonObject root;
        for (auto it = states_.constBegin(); it != states_.constEnd(); ++it)
            root.insert(it.key(), it.value().toJson());
        StoreFile::writeAtomically(filePath_, JsonCoding::toCompactJson(root));
    });
}

QFuture<TriageStore::States> TriageStore::allStates()
{
    return executor_.submit([this] {
        loadOnce();
        return states_;
    });
}

void TriageStore::loadOnce()
{
    if (loaded_)
        return;
    loaded_ = true;
    const std::optional<QByteArray> data = StoreFile::read(filePath_);
    if (!data)
        return;
    try {
        const QJsonObject root = JsonCoding::parseObject(*data);
        States states;
        for (auto it = root.constBegin(); it != root.constEnd(); ++it)
            states.insert(it.key(), TriageState::fromJson(it.value()));
        states_ = std::move(states);
    } catch (const std::exception &) {
        // One unknown value spoils the whole file: every event reads as new,
        // and the next set replaces the file.
    }
}
