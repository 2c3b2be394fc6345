#include "unlock/TokenHolder.h"

#include "unlock/SignInLink.h"

#include <QCoreApplication>
#include <qcoro/qcorosignal.h>
#include <qt6keychain/keychain.h>

namespace {

// Waits for a keychain job of any kind; the job is owned here.
template <typename Job> QCoro::Task<QKeychain::Error> run(Job &job)
{
    job.setAutoDelete(false);
    // A plain file in place of a missing secret store is exactly what must never happen.
    job.setInsecureFallback(false);
    job.setKey(TokenHolder::entry);
    // A job that fails at once (no store at all) may finish inside start().
    bool finished = false;
    QObject::connect(&job, &QKeychain::Job::finished, &job, [&finished] { finished = true; });
    job.start();
    if (!finished) {
        auto done = qCoro(&job, &QKeychain::Job::finished);
        co_await done;
    }
    co_return job.error();
}

} // namespace

TokenHolder::TokenHolder(QObject *parent) : QObject(parent) {}

QString TokenHolder::noSecretStoreSentence()
{
    return QCoreApplication::translate("TokenHolder",
                                       "This computer has no secret store to remember your sign-in in, so it is kept "
                                       "only until Keelhold quits.");
}

QByteArray TokenHolder::cleaned(QByteArray pasted)
{
    pasted = pasted.trimmed();
    if (pasted.startsWith("Bearer ") || pasted.startsWith("bearer "))
        pasted = pasted.mid(7).trimmed();
    return pasted;
}

void TokenHolder::setToken(QByteArray token)
{
    token_ = std::move(token);
    refresh_.clear();
    Q_EMIT changed();
}

void TokenHolder::setTokens(QByteArray access, QByteArray refresh)
{
    token_ = std::move(access);
    refresh_ = std::move(refresh);
    Q_EMIT changed();
}

QByteArray TokenHolder::secretToStore() const
{
    return refresh_.isEmpty() ? token_ : SignInLink::storedForm(refresh_);
}

void TokenHolder::setRemembered(bool v)
{
    remembered_ = v;
    Q_EMIT changed();
}

void TokenHolder::clear()
{
    token_.clear();
    refresh_.clear();
    Q_EMIT changed();
}

QCoro::Task<TokenHolder::StoreResult> TokenHolder::store(QByteArray token)
{
    QKeychain::WritePasswordJob job(service);
    job.setBinaryData(token);
    QCoro::Task<QKeychain::Error> running = run(job);
    const QKeychain::Error error = co_await running;
    if (error != QKeychain::NoError)
        co_return StoreResult{false, noSecretStoreSentence()};
    co_return StoreResult{true, {}};
}

QCoro::Task<std::optional<QByteArray>> TokenHolder::stored()
{
    QKeychain::ReadPasswordJob job(service);
    QCoro::Task<QKeychain::Error> running = run(job);
    const QKeychain::Error error = co_await running;
    if (error != QKeychain::NoError || job.binaryData().isEmpty())
        co_return std::nullopt;
    co_return job.binaryData();
}

QCoro::Task<TokenHolder::StoreResult> TokenHolder::forgetStored()
{
    QKeychain::DeletePasswordJob job(service);
    QCoro::Task<QKeychain::Error> running = run(job);
    const QKeychain::Error error = co_await running;
    // Nothing stored is as good as removed.
    if (error == QKeychain::NoError || error == QKeychain::EntryNotFound)
        co_return StoreResult{true, {}};
    co_return StoreResult{false, noSecretStoreSentence()};
}
