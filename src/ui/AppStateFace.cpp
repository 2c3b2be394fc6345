#include "AppStateFace.h"

#include <QJsonObject>

namespace {

template <typename T>
QVariant optionalJson(const std::optional<T> &v)
{
    return v ? QVariant(v->toJson().toVariantMap()) : QVariant();
}

std::optional<QString> idOrNone(const QString &id)
{
    return id.isEmpty() ? std::nullopt : std::optional<QString>(id);
}

template <typename Raw>
QString rawOrEmpty(const std::optional<Raw> &v)
{
    return v ? v->rawValue() : QString();
}

} // namespace

AppStateFace::AppStateFace(AppState &state, QObject *parent) : QObject(parent), state_(state)
{
    connect(&state, &AppState::hasCompletedOnboardingChanged, this, &AppStateFace::hasCompletedOnboardingChanged);
    connect(&state, &AppState::showOnboardingChanged, this, &AppStateFace::showOnboardingChanged);
    connect(&state, &AppState::selectedSectionChanged, this, &AppStateFace::selectedSectionChanged);
    connect(&state, &AppState::selectedEventIDChanged, this, &AppStateFace::selectedEventIDChanged);
    connect(&state, &AppState::selectedVaultEventIDChanged, this, &AppStateFace::selectedVaultEventIDChanged);
    connect(&state, &AppState::columnVisibilityChanged, this, &AppStateFace::columnVisibilityChanged);
    connect(&state, &AppState::isFocusModeChanged, this, &AppStateFace::isFocusModeChanged);
    connect(&state, &AppState::driveScanChanged, this, &AppStateFace::driveScanChanged);
    connect(&state, &AppState::scanProgressChanged, this, &AppStateFace::scanProgressChanged);
    connect(&state, &AppState::isScanningChanged, this, &AppStateFace::isScanningChanged);
    connect(&state, &AppState::isRevalidatingScanChanged, this, &AppStateFace::isRevalidatingScanChanged);
    connect(&state, &AppState::driveVolumeCandidatesChanged, this, &AppStateFace::driveVolumeCandidatesChanged);
    connect(&state, &AppState::currentFailureChanged, this, &AppStateFace::currentFailureChanged);
    connect(&state, &AppState::driveRootURLChanged, this, &AppStateFace::driveRootURLChanged);
    connect(&state, &AppState::isSampleModeChanged, this, &AppStateFace::isSampleModeChanged);
    connect(&state, &AppState::showEncryptionGuideChanged, this, &AppStateFace::showEncryptionGuideChanged);
    connect(&state, &AppState::isArchivingChanged, this, &AppStateFace::isArchivingChanged);
    connect(&state, &AppState::lastArchiveReportChanged, this, &AppStateFace::lastArchiveReportChanged);
    connect(&state, &AppState::showArchiveReportChanged, this, &AppStateFace::showArchiveReportChanged);
    connect(&state, &AppState::healthReportChanged, this, &AppStateFace::healthReportChanged);
    connect(&state, &AppState::filterStateChanged, this, &AppStateFace::filterStateChanged);
    connect(&state, &AppState::filterReasonChanged, this, &AppStateFace::filterReasonChanged);
    connect(&state, &AppState::filterKindChanged, this, &AppStateFace::filterKindChanged);
    connect(&state, &AppState::keyCoverageChanged, this, &AppStateFace::keyCoverageChanged);
}

void AppStateFace::setSelectedEventID(const QString &id) { state_.setSelectedEventID(idOrNone(id)); }
void AppStateFace::setSelectedVaultEventID(const QString &id) { state_.setSelectedVaultEventID(idOrNone(id)); }

QVariant AppStateFace::driveScan() const { return optionalJson(state_.driveScan()); }
QVariant AppStateFace::lastArchiveReport() const { return optionalJson(state_.lastArchiveReport()); }
QVariant AppStateFace::healthReport() const { return optionalJson(state_.healthReport()); }

QVariant AppStateFace::scanProgress() const
{
    const std::optional<ScanProgress> &p = state_.scanProgress();
    if (!p)
        return {};
    return QVariantMap{{QStringLiteral("phase"), p->phase},
                       {QStringLiteral("foldersScanned"), p->foldersScanned},
                       {QStringLiteral("eventsFound"), p->eventsFound},
                       {QStringLiteral("clipsFound"), p->clipsFound}};
}

QVariantList AppStateFace::driveVolumeCandidates() const
{
    QVariantList out;
    for (const VolumeCandidate &c : state_.driveVolumeCandidates()) {
        QVariantMap m{{QStringLiteral("id"), c.id()},
                      {QStringLiteral("volumeURL"), c.volumeURL},
                      {QStringLiteral("name"), c.name},
                      {QStringLiteral("hasTeslaCamFolder"), c.hasTeslaCamFolder}};
        m.insert(QStringLiteral("capacityBytes"), c.capacityBytes ? QVariant(double(*c.capacityBytes)) : QVariant());
        m.insert(QStringLiteral("freeBytes"), c.freeBytes ? QVariant(double(*c.freeBytes)) : QVariant());
        out.append(m);
    }
    return out;
}

QVariant AppStateFace::currentFailure() const
{
    const std::optional<DriveFailure> &f = state_.currentFailure();
    return f ? QVariant::fromValue(*f) : QVariant();
}

QString AppStateFace::filterState() const { return rawOrEmpty(state_.filterState()); }
QString AppStateFace::filterReason() const { return rawOrEmpty(state_.filterReason()); }
QString AppStateFace::filterKind() const { return rawOrEmpty(state_.filterKind()); }
// "" is no filter.
void AppStateFace::setFilterState(const QString &raw) { state_.setFilterState(TriageState::fromRawValue(raw)); }
void AppStateFace::setFilterReason(const QString &raw) { state_.setFilterReason(ReasonCategory::fromRawValue(raw)); }
void AppStateFace::setFilterKind(const QString &raw) { state_.setFilterKind(EventKind::fromRawValue(raw)); }

QVariantMap AppStateFace::lockStates() const
{
    QVariantMap out;
    const QHash<QString, QString> states = state_.lockStates();
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        out.insert(it.key(), it.value());
    return out;
}
