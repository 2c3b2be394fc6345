#pragma once

#include "model/TeslaEvent.h"

#include <QDateTime>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

// One event as QML sees it: a read-only gadget over a TeslaEvent. Every
// event list of the application state reaches QML as a QVariantList of
// these, in the list's own order.
class EventItem {
    Q_GADGET
    Q_PROPERTY(QString id READ id CONSTANT)
    Q_PROPERTY(QString kind READ kind CONSTANT)
    Q_PROPERTY(QString kindName READ kindName CONSTANT)
    Q_PROPERTY(QString folderName READ folderName CONSTANT)
    Q_PROPERTY(QString folderURL READ folderURL CONSTANT)
    Q_PROPERTY(QDateTime timestamp READ timestamp CONSTANT)
    Q_PROPERTY(double timestampSeconds READ timestampSeconds CONSTANT)
    Q_PROPERTY(QString city READ city CONSTANT)
    Q_PROPERTY(bool hasLocation READ hasLocation CONSTANT)
    Q_PROPERTY(double latitude READ latitude CONSTANT)
    Q_PROPERTY(double longitude READ longitude CONSTANT)
    Q_PROPERTY(QString reasonCategory READ reasonCategory CONSTANT)
    Q_PROPERTY(QString reasonLabel READ reasonLabel CONSTANT)
    Q_PROPERTY(QString reasonShortLabel READ reasonShortLabel CONSTANT)
    Q_PROPERTY(QString reasonSymbolName READ reasonSymbolName CONSTANT)
    Q_PROPERTY(QString reasonBlurb READ reasonBlurb CONSTANT)
    Q_PROPERTY(bool isUrgentForProtection READ isUrgentForProtection CONSTANT)
    Q_PROPERTY(QString thumbURL READ thumbURL CONSTANT)
    Q_PROPERTY(bool missingEventJSON READ missingEventJSON CONSTANT)
    Q_PROPERTY(int clipCount READ clipCount CONSTANT)
    Q_PROPERTY(int corruptClipCount READ corruptClipCount CONSTANT)
    Q_PROPERTY(double totalBytes READ totalBytes CONSTANT)
    Q_PROPERTY(double approximateDuration READ approximateDuration CONSTANT)
    Q_PROPERTY(QStringList cameras READ cameras CONSTANT)
    // The whole event in its JSON form, for anything not listed above.
    Q_PROPERTY(QVariantMap json READ json CONSTANT)

public:
    EventItem() = default;
    explicit EventItem(TeslaEvent event) : event_(std::move(event)) {}

    const TeslaEvent &event() const { return event_; }

    QString id() const { return event_.id(); }
    QString kind() const { return event_.kind.rawValue(); }
    QString kindName() const { return event_.kind.displayName(); }
    QString folderName() const { return event_.folderName; }
    QString folderURL() const { return event_.folderURL; }
    QDateTime timestamp() const;
    double timestampSeconds() const { return event_.timestamp.timeIntervalSinceReferenceDate(); }
    QString city() const { return event_.city.value_or(QString()); }
    bool hasLocation() const { return event_.latitude && event_.longitude; }
    double latitude() const { return event_.latitude.value_or(0); }
    double longitude() const { return event_.longitude.value_or(0); }
    QString reasonCategory() const { return event_.reason.category.rawValue(); }
    QString reasonLabel() const { return event_.reason.label(); }
    QString reasonShortLabel() const { return event_.reason.shortLabel(); }
    QString reasonSymbolName() const { return event_.reason.symbolName(); }
    QString reasonBlurb() const { return event_.reason.blurb(); }
    bool isUrgentForProtection() const { return event_.reason.isUrgentForProtection(); }
    QString thumbURL() const { return event_.thumbURL.value_or(QString()); }
    bool missingEventJSON() const { return event_.missingEventJSON; }
    int clipCount() const { return int(event_.clips.size()); }
    int corruptClipCount() const { return event_.corruptClipCount(); }
    double totalBytes() const { return double(event_.totalBytes()); }
    double approximateDuration() const { return event_.approximateDuration(); }
    QStringList cameras() const;
    QVariantMap json() const { return event_.toJson().toVariantMap(); }

    static QVariantList listFor(const std::vector<TeslaEvent> &events);

private:
    TeslaEvent event_;
};

Q_DECLARE_METATYPE(EventItem)
