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

    struct StoreResult {
        bool ok = false;
        QString sentence; // why not, when not
    };
    // Puts the held token into the secret store.
    QCoro::Task<StoreResult> remember();
    // The remembered token, if there is one, becomes the held one.
    QCoro::Task<bool> loadRemembered();
    // Out of memory and out of the secret store.
    QCoro::Task<StoreResult> forget();

    // The sentence for a desktop with no secret store.
    static QString noSecretStoreSentence();
    // A token as the user pasted it: surrounding blanks and a "Bearer " prefix dropped.
    static QByteArray cleaned(QByteArray pasted);

Q_SIGNALS:
    void changed();

private:
    QByteArray token_;
    bool remembered_ = false;
};
