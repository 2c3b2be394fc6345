#pragma once

#include "model/TriageState.h"

#include <QFuture>
#include <QHash>
#include <QString>

// The engine's part that keeps the user's mark on each event.
class TriageAccess {
public:
    using TriageStates = QHash<QString, TriageState>;

    virtual ~TriageAccess() = default;

    virtual TriageState triageState(const QString &eventID) = 0;
    virtual void setTriageState(TriageState state, const QString &eventID) = 0;
    virtual QFuture<TriageStates> loadAllTriageStates() = 0;
};
