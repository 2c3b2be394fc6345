#pragma once

#include "EventListModel.h"
#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/ArchivedEvent.h"
#include "vault/VerificationLog.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>
#include <optional>

class AppState;

// The Vault section's screens and the two that belong to a keep: empty
// states, storage summary, verification detail, the Trash confirmation, the
// progress overlay and the report sheet, ready for QML.
class VaultViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(EventListModel *rows READ rows CONSTANT)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY eventsChanged)
    Q_PROPERTY(QVariantMap emptyState READ emptyState NOTIFY emptyStateChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)
    Q_PROPERTY(bool showsProgress READ showsProgress NOTIFY progressChanged)
    Q_PROPERTY(double progressFraction READ progressFraction NOTIFY progressChanged)
    Q_PROPERTY(QString progressLine READ progressLine NOTIFY progressChanged)
    Q_PROPERTY(QVariantMap report READ report NOTIFY reportChanged)
    Q_PROPERTY(QString choiceRefusal READ choiceRefusal NOTIFY choiceRefusalChanged)
    // Raised whenever what the badges say may have changed (index, checks).
    Q_PROPERTY(int marksRevision READ marksRevision NOTIFY marksChanged)
    Q_PROPERTY(QVariantMap notice READ notice NOTIFY marksChanged)
    Q_PROPERTY(bool isVerifying READ isVerifying NOTIFY verificationChanged)
    Q_PROPERTY(double verifyFraction READ verifyFraction NOTIFY verificationChanged)
    Q_PROPERTY(QString verifyLine READ verifyLine NOTIFY verificationChanged)
    // Keeping on arrival, for the drive on screen (the Vault's own row) and
    // as the one-time offer after a first keep (the report sheet):
    // {present, on, recent, offer, label, recentLabel, driveLine}.
    Q_PROPERTY(QVariantMap autoKeep READ autoKeep NOTIFY autoKeepChanged)
public:
    explicit VaultViewModel(AppState *state, QObject *parent = nullptr);

    EventListModel *rows() const { return rows_; }
    QVariantMap texts() const;
    bool isEmpty() const;
    // symbolName, title, message, actionTitle ("" when there is no action).
    QVariantMap emptyState() const;
    QString summary() const;
    bool showsProgress() const;
    double progressFraction() const;
    QString progressLine() const;
    // heading, headingIcon, lines: [{icon, text}]; empty without a report.
    QVariantMap report() const;
    // Why the folder just chosen can't be the Vault; empty when it could.
    QString choiceRefusal() const { return choiceRefusal_; }
    int marksRevision() const { return marksRevision_; }
    // {present, title, message}: what the last re-reading found wrong.
    QVariantMap notice() const;
    QVariantMap autoKeep() const;
    bool isVerifying() const;
    double verifyFraction() const;
    QString verifyLine() const;

    // {present, files: [{name, sha256}], archivedLine, …}; present false with no index entry.
    Q_INVOKABLE QVariantMap verification(const QString &eventID) const;
    Q_INVOKABLE QString removalMessage(const QString &eventID) const;
    // "Choose Folder…", "Change Vault Folder": the folder dialog, whose
    // answer goes to chooseFolder.
    Q_INVOKABLE void presentFolderPicker();
    // The folder picker's answer (a file URL or a path). A folder on the car's
    // drive is refused (choiceRefusal); the check runs off this thread.
    Q_INVOKABLE void chooseFolder(const QVariant &url);
    Q_INVOKABLE void dismissChoiceRefusal();
    // The refusal's Cancel: no other folder, and a keep that waited for one is dropped.
    Q_INVOKABLE void declineChoice();
    Q_INVOKABLE void remove(const QString &eventID);
    Q_INVOKABLE void cancelArchive();
    // "Verify Vault" and an event's "Verify": re-read the kept files.
    Q_INVOKABLE void verifyAll();
    Q_INVOKABLE void verifyEvent(const QString &eventID);
    Q_INVOKABLE void cancelVerification();
    // The drive on screen keeps itself from now on, or stops doing so.
    Q_INVOKABLE void setAutoKeep(bool on, bool recent);
    // The offer's answer; closing the sheet without one passes it over.
    Q_INVOKABLE void answerAutoKeepOffer(bool on, bool recent);

    // The pure rules behind the properties, for tests.
    static QVariantMap emptyStateFor(bool hasVaultFolder);
    static QString summaryFor(const std::vector<TeslaEvent> &events, std::optional<qint64> freeBytes);
    static QString progressLineFor(const ArchiveProgress &progress, bool paused = false, bool otherDriveSeen = false);
    static QVariantMap reportFor(const ArchiveReport &report);
    static QVariantMap verificationFor(const ArchivedEvent &newest, const EventCheck *check = nullptr);
    static QString removalMessageFor(const TeslaEvent &event);
    // Free space on the disk that holds the folder; nothing without an answer.
    static std::optional<qint64> freeBytesAt(const QString &folder);

Q_SIGNALS:
    void eventsChanged();
    void emptyStateChanged();
    void summaryChanged();
    void progressChanged();
    void reportChanged();
    void choiceRefusalChanged();
    void marksChanged();
    void verificationChanged();
    void autoKeepChanged();

private:
    void refreshFreeSpace();
    // forKeep: a keep waits on the answer, and a cancel drops it.
    void askForFolder(bool forKeep);

    QPointer<AppState> state_;
    EventListModel *rows_;
    std::optional<qint64> freeBytes_;
    QString choiceRefusal_;
    int marksRevision_ = 0;
    bool otherDriveSeen_ = false; // while a keep waits: the last drive plugged in wasn't its own
};
