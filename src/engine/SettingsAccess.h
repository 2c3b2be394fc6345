#pragma once

#include <QStringList>

#include <QString>

// The engine's part that remembers the user's choices between runs.
// Main thread only; a choice never set reads as its fallback.
class SettingsAccess {
public:
    virtual ~SettingsAccess() = default;

    virtual bool flag(const QString &key, bool fallback) = 0;
    virtual void setFlag(const QString &key, bool value) = 0;
    virtual QStringList list(const QString &key) = 0;
    virtual void setList(const QString &key, const QStringList &value) = 0;
};
