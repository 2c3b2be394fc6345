#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <qcoro/qcorotask.h>
#include <optional>

// The sign-in token of the car maker's service: held in memory for the
// session, and in the desktop's secret store only when the user asks to be
// remembered. Never written to a plain file, a log or a command line.
class TokenHolder : public QObject {
    Q_OBJECT
public:
    // The secret store's entry.
    static inline const QString service = QStringLiteral("Keelhold");
    static inline const QString entry = QStringLiteral("tesla-dashcam-sign-in");

    explicit TokenHolder(QObject *parent = nullptr);

    bool hasToken() const { return !token_.isEmpty(); }
    const QByteArray &token() const { return token_; }
    bool isRemembered() const { return remembered_; }
    // For this session only; a token remembered before stays remembered.
    void setToken(QByteArray token);
    // A browser sign-in: the access token and the refresh token that renews it.
    void setTokens(QByteArray access, QByteArray refresh);
    const QByteArray &refreshToken() const { return refresh_; }
    // What the secret store keeps for this sign-in: the refresh token where
    // there is one (it outlives the access token by months), else the token.
    QByteArray secretToStore() const;

    void setRemembered(bool v);
    // Out of memory; the secret store is left to forgetStored().
    void clear();

    struct StoreResult {
        bool ok = false;
        QString sentence; // why not, when not
    };
    // The secret store's side, touching no holder, so that a holder that
    // goes away while the store answers is never reached afterwards.
    static QCoro::Task<StoreResult> store(QByteArray token);
    static QCoro::Task<std::optional<QByteArray>> stored();
    static QCoro::Task<StoreResult> forgetStored();

    // The sentence for a desktop with no secret store.
    static QString noSecretStoreSentence();
    // A token as the user pasted it: surrounding blanks and a "Bearer " prefix dropped.
    static QByteArray cleaned(QByteArray pasted);

Q_SIGNALS:
    void changed();

private:
    QByteArray token_;
    QByteArray refresh_;
    bool remembered_ = false;
};
