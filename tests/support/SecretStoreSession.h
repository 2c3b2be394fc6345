#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

// A desktop's secret store of the test's own: a D-Bus session bus and a
// gnome-keyring daemon on it with an unlocked login keyring, both ended
// with the object. Skips cleanly (ok() false) where the programs are missing.
class SecretStoreSession {
public:
    SecretStoreSession();
    ~SecretStoreSession();
    SecretStoreSession(const SecretStoreSession &) = delete;
    SecretStoreSession &operator=(const SecretStoreSession &) = delete;

    bool ok() const { return ok_; }
    // What went wrong, for a skip's message.
    const QString &why() const { return why_; }
    // The system's environment with this bus as the session bus.
    QProcessEnvironment environment() const;
    // Points this process at the bus too (before anything here talks to one).
    void enterHere() const;

private:
    QProcess bus_;
    QProcess keyring_;
    QString address_;
    bool ok_ = false;
    QString why_;
};
