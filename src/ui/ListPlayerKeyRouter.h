#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "state/AppState.h"

// Player keys while an event list has the focus. Up and Down stay with the
// list, which moves the selection; the player screen then loads and starts
// the newly selected event by itself.
class ListPlayerKeyRouter : public QObject {
    Q_OBJECT
    Q_PROPERTY(AppState *appState READ appState WRITE setAppState NOTIFY appStateChanged)
    Q_PROPERTY(bool handlesTriage READ handlesTriage WRITE setHandlesTriage NOTIFY handlesTriageChanged)

public:
    explicit ListPlayerKeyRouter(QObject *parent = nullptr);

    AppState *appState() const { return appState_; }
    void setAppState(AppState *state);
    bool handlesTriage() const { return handlesTriage_; }
    void setHandlesTriage(bool value);

    // One key press (Qt::Key, Qt::KeyboardModifiers, the typed text).
    // Answers true when handled, false when it passes on.
    Q_INVOKABLE bool keyPressed(int key, int modifiers, const QString &text);

Q_SIGNALS:
    void appStateChanged();
    void handlesTriageChanged();

private:
    QPointer<AppState> appState_;
    bool handlesTriage_ = true;
};
