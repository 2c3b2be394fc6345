#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>

class AppState;

// What the QML asks of C++: texts, icons and the rules of the screens. The
// QML only shows what comes back.
class UiBridge : public QObject {
    Q_OBJECT
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(QVariantList helpArticles READ helpArticles CONSTANT)
    Q_PROPERTY(QVariantList sidebarSections READ sidebarSections CONSTANT)
    Q_PROPERTY(QVariantList guideSteps READ guideSteps CONSTANT)
    Q_PROPERTY(QVariantList guideNotes READ guideNotes CONSTANT)
    Q_PROPERTY(double storedListWidth READ storedListWidth WRITE setStoredListWidth NOTIFY storedListWidthChanged)
public:
    explicit UiBridge(AppState *state, QObject *parent = nullptr);

    QVariantMap texts() const;
    QVariantList helpArticles() const;
    QVariantList sidebarSections() const;
    QVariantList guideSteps() const;
    QVariantList guideNotes() const;
    double storedListWidth() const;
    void setStoredListWidth(double w);

    Q_INVOKABLE QString icon(const QString &symbolName) const;
    Q_INVOKABLE double listColumnWidth(double total, double stored) const;
    Q_INVOKABLE double dragWidth(double atStart, double translation) const;
    Q_INVOKABLE QString scanCountsText(int eventsFound, int clipsFound) const;
    Q_INVOKABLE QString rootForChosenFolder(const QString &chosen) const;
    Q_INVOKABLE QString candidateHeading(const QVariantMap &candidate) const;
    Q_INVOKABLE QString candidateCapacity(const QVariantMap &candidate) const;
    // The failure now in the state, as a screen; empty when there is none.
    Q_INVOKABLE QVariantMap failureScreen() const;
    // The health screen's content; `present` false when there is no report.
    Q_INVOKABLE QVariantMap healthContent() const;
    // The picker's pick: saves the bookmark, begins the scan; returns the root.
    Q_INVOKABLE QString pickFolder(const QString &chosen);

Q_SIGNALS:
    void storedListWidthChanged();

private:
    QPointer<AppState> state_;
};
