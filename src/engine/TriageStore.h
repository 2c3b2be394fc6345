#pragma once

#include "base/SerialExecutor.h"
#include "model/TriageState.h"

#include <QFuture>
#include <QHash>
#include <QString>
#include <optional>

// The user's mark on each event, by event id, kept on this computer and
// tied to no drive. An event is new until told otherwise.
//
// All state lives on the store's own serial executor; callers get futures.
// The file is read once, lazily, and rewritten whole on every set. Nothing
// here ever reports a failure: a bad file means every event is new.
class TriageStore {
public:
    static constexpr const char *fileName = "triage.json";
    using States = QHash<QString, TriageState>;

    // No path: "triage.json" in the per-user data folder.
    explicit TriageStore(std::optional<QString> filePath = std::nullopt);
    ~TriageStore();
    TriageStore(const TriageStore &) = delete;
    TriageStore &operator=(const TriageStore &) = delete;

    // The one instance the program uses, on the default file.
    static TriageStore &shared();

    const QString &filePath() const { return filePath_; }

    QFuture<TriageState> state(const QString &eventID);
    // `new` is stored like any other state.
    QFuture<void> set(TriageState state, const QString &eventID);
    // A snapshot: later changes don't show in it.
    QFuture<States> allStates();

private:
    // Executor-only.
    void loadOnce();

    const QString filePath_;
    States states_;
    bool loaded_ = false;
    SerialExecutor executor_; // last: drained before the state above goes
};
