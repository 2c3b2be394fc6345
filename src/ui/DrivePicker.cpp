#include "DrivePicker.h"

#include "FileChooser.h"
#include "LicenceGate.h"
#include "OnboardingTexts.h"
#include "base/LogCategories.h"
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
    Q_EMIT openPanelRequested(startingAt);
    if (qEnvironmentVariableIsSet(answerEnv)) {
        const QString answer = qEnvironmentVariable(answerEnv);
        panelFinished(answer != QLatin1String("-"), answer);
        return;
    }
    const QVariantMap texts = OnboardingTexts::texts();
    FileChooser::Request request;
    request.mode = FileChooser::Mode::folder;
    request.title = texts.value(QStringLiteral("panelTitle")).toString();
    request.message = texts.value(QStringLiteral("panelMessage")).toString();
    request.acceptLabel = texts.value(QStringLiteral("panelPrompt")).toString();
    request.startFolder = startingAt;
    setPanelOpen(true);
    QPointer<DrivePicker> self(this);
    FileChooser::open(request, [self](std::optional<QString> chosen) {
        if (!self)
            return;
        self->setPanelOpen(false);
        self->panelFinished(chosen.has_value(), chosen.value_or(QString()));
    });
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
            KEELHOLD_LOG_CAUGHT(lcUi);
        }
    }
    Q_EMIT picked(root);
}

void DrivePicker::setPanelOpen(bool open)
{
    if (panelOpen_ == open)
        return;
    panelOpen_ = open;
    Q_EMIT isPanelOpenChanged();
}
