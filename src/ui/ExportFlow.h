#pragma once

#include "engine/EngineFacade.h"
#include "model/Camera.h"
#include "model/TeslaEvent.h"

#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <memory>
#include <optional>

// The export dialog's flow: choose one camera, export it into a fresh
// scratch folder, then hand the file on or save a copy. The look is QML's;
// every decision and every text is here.
class ExportFlow : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString state READ stateName NOTIFY changed)
    Q_PROPERTY(QVariantList cameras READ camerasForQml CONSTANT)
    Q_PROPERTY(QString selectedCamera READ selectedCameraRaw WRITE setSelectedCameraRaw NOTIFY changed)
    Q_PROPERTY(bool canExport READ canExport NOTIFY changed)
    Q_PROPERTY(bool isExporting READ isExporting NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString errorMessage READ errorMessageForQml NOTIFY changed)
    Q_PROPERTY(QString exportedPath READ exportedPathForQml NOTIFY changed)
    Q_PROPERTY(QString readyText READ readyText NOTIFY changed)
    Q_PROPERTY(QString savedText READ savedText NOTIFY changed)
    Q_PROPERTY(QString saveErrorMessage READ saveErrorMessageForQml NOTIFY changed)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY changed)
    Q_PROPERTY(QString suggestedSaveFolder READ suggestedSaveFolder CONSTANT)
    Q_PROPERTY(QString exportedFileName READ exportedFileName NOTIFY changed)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)

public:
    enum class State { choosing, exporting, ready };

    static inline const QString title = QStringLiteral("Export & Share");
    static inline const QString explanation =
        QStringLiteral("Save one camera's video from this moment as its own file, ready to send to an insurer, "
                       "police, or anyone else who needs it.");
    static inline const QString combinedNote =
        QStringLiteral("Exporting all cameras together as one combined video is coming in a future update.");
    static inline const QString failureMessage =
        QStringLiteral("This couldn't be exported right now. Your original footage on the drive is untouched — "
                       "you can try again.");
    static inline const QString saveFailureMessage = QStringLiteral("Couldn't save there — try a different folder.");
    static inline const QString stopTooltip =
        QStringLiteral("Stops the export. Your original footage is untouched either way.");

    ExportFlow(EngineFacade &engine, const TeslaEvent &event, QObject *parent = nullptr);
    ~ExportFlow() override;

    State state() const;
    QString stateName() const;
    std::vector<Camera> availableCameras() const { return cameras_; }
    std::optional<Camera> selectedCamera() const { return selectedCamera_; }
    void setSelectedCamera(std::optional<Camera> camera);
    bool canExport() const { return selectedCamera_.has_value() && !isExporting_; }
    bool isExporting() const { return isExporting_; }
    double progress() const { return progress_; }
    const std::optional<QString> &errorMessage() const { return errorMessage_; }
    const std::optional<QString> &exportedPath() const { return exportedPath_; }
    const std::optional<QString> &savedFileName() const { return savedFileName_; }
    const std::optional<QString> &saveErrorMessage() const { return saveErrorMessage_; }
    bool isSaving() const { return isSaving_; }
    QString readyText() const;
    QString savedText() const;
    // The user's Videos folder, else home.
    static QString suggestedSaveFolder();
    QString exportedFileName() const;
    // The dialog's fixed words: title, explanation, buttons, tooltips.
    static QVariantMap texts();

    // The car's drive, where no copy may be saved.
    void setDriveRoot(const std::optional<QString> &root) { driveRoot_ = root; }

    Q_INVOKABLE void startExport();
    Q_INVOKABLE void stop();
    // Copies the finished file to destination (a path or file:// URL),
    // replacing a file already there; the exported file stays. The copy
    // runs off the window's thread; saveFinished() tells the outcome.
    // Returns whether a copy started (one at a time).
    Q_INVOKABLE bool saveTo(const QString &destination);
    // "Save to…": the save dialog at the Videos folder with the file's
    // name; its answer goes to saveTo.
    Q_INVOKABLE void presentSavePanel();
    // The copy itself: whole into a hidden file beside the destination,
    // then renamed over it, so a failed copy (a full disk, a pulled stick)
    // leaves what was there before and no partial file.
    static bool copyReplacing(const QString &source, const QString &destination);

Q_SIGNALS:
    void changed();
    void exportFinished();
    void saveFinished(bool succeeded);

private:
    QString selectedCameraRaw() const { return selectedCamera_ ? selectedCamera_->rawValue() : QString(); }
    void setSelectedCameraRaw(const QString &raw);
    QVariantList camerasForQml() const;
    QString errorMessageForQml() const { return errorMessage_.value_or(QString()); }
    QString exportedPathForQml() const { return exportedPath_.value_or(QString()); }
    QString saveErrorMessageForQml() const { return saveErrorMessage_.value_or(QString()); }
    void finish(const QFuture<void> &future, const QString &output);

    EngineFacade &engine_;
    TeslaEvent event_;
    std::vector<Camera> cameras_;
    std::optional<Camera> selectedCamera_;
    bool isExporting_ = false;
    double progress_ = 0;
    bool sessionBegan_ = false;
    std::optional<QString> errorMessage_;
    std::optional<QString> exportedPath_;
    std::optional<QString> savedFileName_;
    std::optional<QString> saveErrorMessage_;
    bool isSaving_ = false;
    std::optional<QString> driveRoot_;
    std::unique_ptr<QFutureWatcher<void>> watcher_;
};
