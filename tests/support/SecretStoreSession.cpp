#include "support/SecretStoreSession.h"

#include <QStandardPaths>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {
// The daemons end with the test, even a crashed one, and hold none of its open files (a build lock among them).
void childSetUp()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::close_range(3, ~0U, 0);
}
} // namespace

SecretStoreSession::SecretStoreSession()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    const QString keyring = QStandardPaths::findExecutable(QStringLiteral("gnome-keyring-daemon"));
    const QString gdbus = QStandardPaths::findExecutable(QStringLiteral("gdbus"));
    if (daemon.isEmpty() || keyring.isEmpty() || gdbus.isEmpty()) {
        why_ = QStringLiteral("dbus-daemon, gnome-keyring-daemon or gdbus is missing");
        return;
    }
    bus_.setChildProcessModifier(childSetUp);
    keyring_.setChildProcessModifier(childSetUp);
    bus_.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    if (!bus_.waitForStarted())
        return;
    // The address is the daemon's first line, written once it listens.
    while (!bus_.canReadLine() && bus_.waitForReadyRead(10000)) {
    }
    address_ = QString::fromLocal8Bit(bus_.readLine()).trimmed();
    if (address_.isEmpty()) {
        why_ = QStringLiteral("the session bus gave no address: ") + QString::fromLocal8Bit(bus_.readAllStandardError());
        return;
    }

    keyring_.setProcessEnvironment(environment());
    keyring_.start(keyring, {QStringLiteral("--foreground"), QStringLiteral("--unlock"), QStringLiteral("--components=secrets")});
    if (!keyring_.waitForStarted())
        return;
    // The login keyring's password, on standard input, unlocks (or makes) it.
    keyring_.write("keelhold-test-keyring");
    // Written now: the blocking wait below runs no event loop to flush it.
    keyring_.waitForBytesWritten();
    keyring_.closeWriteChannel();

    QProcess wait;
    wait.setProcessEnvironment(environment());
    wait.start(gdbus, {QStringLiteral("wait"), QStringLiteral("--session"), QStringLiteral("--timeout"),
                       QStringLiteral("20"), QStringLiteral("org.freedesktop.secrets")});
    ok_ = wait.waitForFinished(30000) && wait.exitStatus() == QProcess::NormalExit && wait.exitCode() == 0;
    if (!ok_)
        why_ = QStringLiteral("the keyring never came on the bus: ") + QString::fromLocal8Bit(wait.readAllStandardError())
            + QString::fromLocal8Bit(keyring_.readAllStandardError());
}

SecretStoreSession::~SecretStoreSession()
{
    for (QProcess *p : {&keyring_, &bus_}) {
        if (p->state() == QProcess::NotRunning)
            continue;
        p->terminate();
        if (!p->waitForFinished(5000)) {
            p->kill();
            p->waitForFinished();
        }
    }
}

QProcessEnvironment SecretStoreSession::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
    return env;
}

void SecretStoreSession::enterHere() const
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toLocal8Bit());
}
