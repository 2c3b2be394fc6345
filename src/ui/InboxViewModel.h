#pragma once

#include "EventListModel.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>

class AppState;

// What the inbox column shows and does, ready for QML: which content stands,
// the filter menu and its tokens, the bulk buttons, the recent-driving
// banner, and the list's keys. The QML only lays it out.
class InboxViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(EventListModel *rows READ rows CONSTANT)
    Q_PROPERTY(QString content READ content NOTIFY contentChanged)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(QVariantList statusEntries READ statusEntries CONSTANT)
    Q_PROPERTY(QVariantList reasonEntries READ reasonEntries CONSTANT)
    Q_PROPERTY(QVariantList kindEntries READ kindEntries CONSTANT)
    Q_PROPERTY(int activeFilterCount READ activeFilterCount NOTIFY filtersChanged)
    Q_PROPERTY(QString filterMenuIcon READ filterMenuIcon NOTIFY filtersChanged)
    Q_PROPERTY(QVariantList filterTokens READ filterTokens NOTIFY filtersChanged)
    Q_PROPERTY(int bulkCount READ bulkCount NOTIFY bulkChanged)
    Q_PROPERTY(QString bulkKeepTitle READ bulkKeepTitle NOTIFY bulkChanged)
    Q_PROPERTY(QString bulkDismissTitle READ bulkDismissTitle NOTIFY bulkChanged)
    Q_PROPERTY(int recentCount READ recentCount NOTIFY recentChanged)
    // The banner stands while the visible list holds recent driving.
    Q_PROPERTY(bool showsRecentBanner READ showsRecentBanner NOTIFY recentChanged)
    Q_PROPERTY(bool showsTokens READ showsTokens NOTIFY filtersChanged)
    // "Switch Drive" stands with a scan, the sample or a failure.
    Q_PROPERTY(bool showsSwitchDrive READ showsSwitchDrive NOTIFY contentChanged)
    Q_PROPERTY(QString scanCounts READ scanCounts NOTIFY scanCountsChanged)
    Q_PROPERTY(QVariantMap emptyScreen READ emptyScreen NOTIFY contentChanged)
public:
    explicit InboxViewModel(AppState *state, QObject *parent = nullptr);

    EventListModel *rows() const { return rows_; }
    // "failure", "scanning", "noDrive", "emptyDrive" or "inbox".
    QString content() const;
    QVariantMap texts() const;
    QVariantList statusEntries() const;
    QVariantList reasonEntries() const;
    QVariantList kindEntries() const;
    int activeFilterCount() const;
    QString filterMenuIcon() const;
    QVariantList filterTokens() const;
    int bulkCount() const;
    QString bulkKeepTitle() const;
    QString bulkDismissTitle() const;
    int recentCount() const;
    bool showsRecentBanner() const { return recentCount() > 0; }
    bool showsTokens() const { return activeFilterCount() > 0; }
    bool showsSwitchDrive() const;
    QString scanCounts() const;
    // The screen of "noDrive" and "emptyDrive": symbolName, title, message, actionTitle.
    QVariantMap emptyScreen() const;

    // The bulk buttons stand in bulk mode with at least one tick.
    Q_INVOKABLE bool showsBulkActions(bool isBulkSelecting) const;
    Q_INVOKABLE void clearFilter(const QString &which);
    Q_INVOKABLE void clearAllFilters();
    // "Eject Sample": back to the saved drive, or with none to the wizard,
    // rather than to a screen that says no TeslaCam folder was found.
    Q_INVOKABLE void ejectSample();
    Q_INVOKABLE void keepRecentDriving();
    Q_INVOKABLE void previewRecentDriving();
    // Up/Down: one row along the visible list; from nothing, the first row.
    Q_INVOKABLE void moveSelection(int delta);
    // K and D: the selected event, when it is in the list.
    Q_INVOKABLE void keepSelected();
    Q_INVOKABLE void dismissSelected();

Q_SIGNALS:
    void contentChanged();
    void filtersChanged();
    void bulkChanged();
    void recentChanged();
    void scanCountsChanged();

private:
    QPointer<AppState> state_;
    EventListModel *rows_;
};
