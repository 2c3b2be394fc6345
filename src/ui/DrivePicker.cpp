#include "DrivePicker.h"

#include "LicenceGate.h"
#include "OnboardingTexts.h"
#include "state/AppState.h"

#include <QUrl>

DrivePicker::DrivePicker(AppState *state, const LicenceGate *gate, QObject *parent)
    : QObject(parent), state_(state), gate_(gate)
{
}

void DrivePicker::presentOpenPanel(const QString &startingAt)
{
    if (gate_ && gate_->status() == LicenceGate::Status::locked) {
        Q_EMIT licenceWindowRequested();
        return;
    }
    if (qEnvironmentVariableIsSet(answerEnv)) {
        const QString answer = qEnvironmentVariable(answerEnv);
        panelFinished(answer != QLatin1String("-"), answer);
        return;
    }
    Q_EMIT openPanelRequested(startingAt);
}

void DrivePicker::panelFinished(bool accepted, const QString &chosen)
{
    if (!accepted || chosen.isEmpty())
        return;
    const QUrl url(chosen);
    const QString path = url.isLocalFile() ? url.toLocalFile() : chosen;
    const QString root = OnboardingTexts::rootForChosenFolder(path);
    if (state_) {
        // A failed save is dropped by the store; the scan goes on regardless.
        try {
            state_->engine().saveBookmark(root, BookmarkKey::teslaDrive);
        } catch (...) {
        }
    }
    Q_EMIT picked(root);
}
