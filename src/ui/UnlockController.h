#pragma once

#include "unlock/SignInLink.h"
#include "unlock/TokenHolder.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>
#include <chrono>
#include <optional>
#include <qcoro/qcorotask.h>

class AppState;

// "Unlock Encrypted Footage…": the sheet that says what happens, takes the
// sign-in token, fetches the keys of the chosen encrypted events and says
// in one sentence each what stood in the way. The token lives in the
// TokenHolder (memory, and the secret store when the user ticks
// "Remember"); it passes through here and is never kept anywhere else.
class UnlockController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showSheet READ showSheet WRITE setShowSheet NOTIFY showSheetChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    Q_PROPERTY(QStringList messages READ messages NOTIFY resultChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY resultChanged)
    Q_PROPERTY(bool offersSignInAgain READ offersSignInAgain NOTIFY resultChanged)
    Q_PROPERTY(bool hasToken READ hasToken NOTIFY signInChanged)
    Q_PROPERTY(bool isRemembered READ isRemembered NOTIFY signInChanged)
    Q_PROPERTY(QString rememberNote READ rememberNote NOTIFY signInChanged)
    Q_PROPERTY(int pendingEventCount READ pendingEventCount NOTIFY showSheetChanged)
    // A browser sign-in was opened: the sheet asks for the address it lands on.
    Q_PROPERTY(bool browserSignInStarted READ browserSignInStarted NOTIFY signInChanged)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(QVariantList tokenSteps READ tokenSteps CONSTANT)
    // The notice above the inbox's list.
    Q_PROPERTY(bool showsNotice READ showsNotice NOTIFY noticeChanged)
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY noticeChanged)
public:
    explicit UnlockController(AppState *state, QObject *parent = nullptr);

    // The service's batch address and the time an answer may take; the
    // settings' address and 20 s unless a test says otherwise.
    void setService(QUrl batchURL, std::chrono::milliseconds answerLimit);
    TokenHolder &tokenHolder() { return token_; }

    bool showSheet() const { return showSheet_; }
    void setShowSheet(bool v);
    bool busy() const { return busy_; }
    const QStringList &messages() const { return messages_; }
    const QString &summary() const { return summary_; }
    bool offersSignInAgain() const { return offersSignInAgain_; }
    bool hasToken() const { return token_.hasToken(); }
    bool isRemembered() const { return token_.isRemembered(); }
    const QString &rememberNote() const { return rememberNote_; }
    int pendingEventCount() const { return int(pending_.size()); }
    bool browserSignInStarted() const { return attempt_.has_value(); }
    QVariantMap texts() const;
    QVariantList tokenSteps() const;
    bool showsNotice() const;
    QString noticeText() const;

    // Opens the sheet for these events (drive or Vault ids); none: every
    // locked event of the drive.
    Q_INVOKABLE void openFor(const QStringList &eventIDs);
    // With a token pasted in the sheet: checked with the service first, kept
    // (remembered when asked), then used. Empty: the token held already.
    Q_INVOKABLE void unlock(const QString &pastedToken, bool remember);
    // The friendlier way: the sign-in page in the user's browser, then the
    // address it landed on pasted back.
    Q_INVOKABLE void beginBrowserSignIn();
    Q_INVOKABLE void finishBrowserSignIn(const QString &landedAddress, bool remember);
    // The address beginBrowserSignIn() opened (tests follow it themselves).
    QUrl browserSignInAddress() const { return attempt_ ? attempt_->address : QUrl(); }
    Q_INVOKABLE void forgetSignIn();
    // The held token has lapsed: the sheet asks for a new one (a remembered one stays until replaced).
    Q_INVOKABLE void signInAgain();
    Q_INVOKABLE void openViewer() const;
    // The remembered sign-in, when there is one and none is held.
    void loadRemembered();
    // The secret store has answered the question loadRemembered() asked.
    bool storeAnswered() const { return storeAnswered_; }

Q_SIGNALS:
    void showSheetChanged();
    void busyChanged();
    void resultChanged();
    void signInChanged();
    void noticeChanged();

private:
    static QCoro::Task<void> unlockTask(QPointer<UnlockController> self, QByteArray pasted, QString landed,
                                        bool remember);
    // Asks for the pending events' keys; answers whether a renewed sign-in could help.
    static QCoro::Task<bool> fetchKeys(QPointer<UnlockController> self);
    static QCoro::Task<void> forgetTask(QPointer<UnlockController> self);
    static QCoro::Task<void> loadTask(QPointer<UnlockController> self);
    void setBusy(bool v);
    void setResult(QStringList messages, QString summary, bool signInAgain);

    QPointer<AppState> state_;
    TokenHolder token_;
    QNetworkAccessManager network_;
    QUrl batchURL_;
    std::chrono::milliseconds answerLimit_;
    bool showSheet_ = false;
    bool busy_ = false;
    QStringList pending_;
    QStringList messages_;
    QString summary_;
    bool offersSignInAgain_ = false;
    QString rememberNote_;
    bool askedStore_ = false;
    std::optional<SignInLink::Attempt> attempt_;
    bool storeAnswered_ = false;
};
