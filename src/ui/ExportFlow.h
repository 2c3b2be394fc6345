#pragma once

#include "engine/ExportAccess.h"
#include "export/CombinedExportOptions.h"
#include "export/CombinedExportProgress.h"
#include "model/Camera.h"
#include "model/TeslaEvent.h"

#include <QFuture>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <memory>
#include <optional>

// The export dialog's flow: choose one camera copied as it is, or a new movie
// of the event (every camera in a grid, the front over the sides, or one
// camera) with the chosen overlay, size and part; export it into a fresh
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
    // "original" (the stream copy) or a combined layout's word: "grid",
    // "front-sides", "single".
    Q_PROPERTY(QString layout READ layoutWord WRITE setLayoutWord NOTIFY changed)
    Q_PROPERTY(QVariantList layouts READ layoutsForQml CONSTANT)
    Q_PROPERTY(bool isCombined READ isCombined NOTIFY changed)
    // The incident report or the evidence package is chosen: no camera,
    // overlay, size or part to choose.
    Q_PROPERTY(bool isReport READ isReport NOTIFY changed)
    // The package of an encrypted event may carry its unlock keys.
    Q_PROPERTY(bool keysOffered READ keysOffered NOTIFY changed)
    Q_PROPERTY(bool includeKeys READ includeKeys WRITE setIncludeKeys NOTIFY changed)
    // The sheet's opening words, for a movie or for the report and package.
    Q_PROPERTY(QString explanationText READ explanationText NOTIFY changed)
    Q_PROPERTY(bool needsCamera READ needsCamera NOTIFY changed)
    Q_PROPERTY(bool showTime READ showTime WRITE setShowTime NOTIFY changed)
    Q_PROPERTY(bool showNames READ showNames WRITE setShowNames NOTIFY changed)
    Q_PROPERTY(bool showReason READ showReason WRITE setShowReason NOTIFY changed)
    Q_PROPERTY(bool showDrivingData READ showDrivingData WRITE setShowDrivingData NOTIFY changed)
    Q_PROPERTY(bool drivingDataOffered READ drivingDataOffered NOTIFY changed)
    // "720", "1080", "full".
    Q_PROPERTY(QString size READ sizeWord WRITE setSizeWord NOTIFY changed)
    // "whole", "moment", "custom".
    Q_PROPERTY(QString range READ rangeWord WRITE setRangeWord NOTIFY changed)
    Q_PROPERTY(bool momentOffered READ momentOffered NOTIFY changed)
    Q_PROPERTY(bool customOffered READ customOffered NOTIFY changed)
    Q_PROPERTY(double customStart READ customStart WRITE setCustomStart NOTIFY changed)
    Q_PROPERTY(double customEnd READ customEnd WRITE setCustomEnd NOTIFY changed)
    Q_PROPERTY(double timelineLength READ timelineLengthForQml NOTIFY changed)
    Q_PROPERTY(QString rangeProblem READ rangeProblem NOTIFY changed)
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)

public:
    enum class State { choosing, exporting, ready };
    // What is made: a movie (as the layout says), the report, or the package.
    enum class Product { movie, report, package };
    enum class Range { whole, moment, custom };
    // Whether the event's clips carry the car's driving data.
    enum class DrivingData { unknown, present, absent };

    // Marked here, translated where shown: a static string is made before
    // any translator is installed.
    static inline const char *const title = QT_TR_NOOP("Export & Share");
    static inline const char *const explanation =
        QT_TR_NOOP("Save this event as its own video file, ready to send to an insurer, police, or anyone else who "
                   "needs it: one camera exactly as recorded, or every camera in one movie.");
    static inline const char *const failureMessage =
        QT_TR_NOOP("This couldn't be exported right now. Your original footage on the drive is untouched — you can "
                   "try again.");
    static inline const char *const saveFailureMessage = QT_TR_NOOP("Couldn't save there — try a different folder.");
    static inline const char *const stopTooltip =
        QT_TR_NOOP("Stops the export. Your original footage is untouched either way.");

    ExportFlow(ExportAccess &engine, const TeslaEvent &event, QObject *parent = nullptr);
    ~ExportFlow() override;

    State state() const;
    QString stateName() const;
    std::vector<Camera> availableCameras() const { return cameras_; }
    std::optional<Camera> selectedCamera() const { return selectedCamera_; }
    void setSelectedCamera(std::optional<Camera> camera);
    bool canExport() const;
    bool isExporting() const { return isExporting_; }
    double progress() const { return progress_; }
    const std::optional<QString> &errorMessage() const { return errorMessage_; }
    const std::optional<QString> &exportedPath() const { return exportedPath_; }
    // How long the last export ran, start to end.
    double lastRunSeconds() const { return double(runClock_.elapsed()) / 1000.0; }
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
    // The Vault the report compares the files with.
    void setVaultURL(const std::optional<QString> &url) { vaultURL_ = url; }
    // The player's timeline in seconds; without it only the whole event
    // can be chosen.
    void setTimelineLength(std::optional<double> seconds);
    // Still unknown, driving data is offered; the movie then shows it
    // where there is some.
    void setDrivingData(DrivingData data);

    // The combined layout; nothing for the camera copied as it is.
    std::optional<CombinedExportOptions::Layout> layout() const { return layout_; }
    void setLayout(std::optional<CombinedExportOptions::Layout> layout);
    bool isCombined() const { return product_ == Product::movie && layout_.has_value(); }
    bool needsCamera() const
    {
        return product_ == Product::movie && (!layout_ || *layout_ == CombinedExportOptions::Layout::single);
    }
    Product product() const { return product_; }
    void setProduct(Product product);
    bool isReport() const { return product_ != Product::movie; }
    bool keysOffered() const { return product_ == Product::package && event_.encrypted; }
    bool includeKeys() const { return includeKeys_ && keysOffered(); }
    void setIncludeKeys(bool on);
    QString explanationText() const;
    bool showTime() const { return overlay_.time; }
    void setShowTime(bool on) { setOverlayPart(&CombinedExportOptions::Overlay::time, on); }
    bool showNames() const { return overlay_.names; }
    void setShowNames(bool on) { setOverlayPart(&CombinedExportOptions::Overlay::names, on); }
    bool showReason() const { return overlay_.reason; }
    void setShowReason(bool on) { setOverlayPart(&CombinedExportOptions::Overlay::reason, on); }
    bool showDrivingData() const { return overlay_.telemetry && drivingDataOffered(); }
    void setShowDrivingData(bool on) { setOverlayPart(&CombinedExportOptions::Overlay::telemetry, on); }
    bool drivingDataOffered() const { return drivingData_ != DrivingData::absent; }
    CombinedExportOptions::Size size() const { return size_; }
    void setSize(CombinedExportOptions::Size size);
    Range range() const { return range_; }
    void setRange(Range range);
    bool momentOffered() const { return momentRange().has_value(); }
    bool customOffered() const { return timelineLength_.has_value(); }
    double customStart() const { return customStart_; }
    void setCustomStart(double seconds);
    double customEnd() const { return customEnd_; }
    void setCustomEnd(double seconds);
    // Why the custom part can't be exported; empty when it can.
    QString rangeProblem() const;
    // The new movie as chosen; meaningful while isCombined().
    CombinedExportOptions combinedOptions() const;
    // "1,240 of 3,600 frames · 1.8× real time · about 2 minutes left" while
    // a combined movie is made; empty otherwise.
    QString progressText() const;
    // "about 2 minutes left" and the like.
    static QString timeLeftText(double seconds);

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
    void startCombined(const QString &folder);
    void startReport(const QString &folder);
    QString layoutWord() const;
    void setLayoutWord(const QString &word);
    QVariantList layoutsForQml() const;
    QString sizeWord() const;
    void setSizeWord(const QString &word);
    QString rangeWord() const;
    void setRangeWord(const QString &word);
    double timelineLengthForQml() const { return timelineLength_.value_or(0.0); }
    void setOverlayPart(bool CombinedExportOptions::Overlay::*part, bool on);
    std::optional<std::pair<double, double>> momentRange() const;
    std::optional<std::pair<double, double>> chosenRange() const;

    ExportAccess &engine_;
    TeslaEvent event_;
    std::vector<Camera> cameras_;
    std::optional<Camera> selectedCamera_;
    bool isExporting_ = false;
    double progress_ = 0;
    bool sessionBegan_ = false;
    std::optional<QString> errorMessage_;
    std::optional<QString> exportedPath_;
    QElapsedTimer runClock_;
    std::optional<QString> savedFileName_;
    std::optional<QString> saveErrorMessage_;
    bool isSaving_ = false;
    std::optional<QString> driveRoot_;
    std::optional<QString> vaultURL_;
    Product product_ = Product::movie;
    bool includeKeys_ = false;
    std::optional<CombinedExportOptions::Layout> layout_;
    CombinedExportOptions::Overlay overlay_;
    CombinedExportOptions::Size size_ = CombinedExportOptions::Size::p1080;
    Range range_ = Range::whole;
    std::optional<double> timelineLength_;
    double customStart_ = 0;
    double customEnd_ = 0;
    DrivingData drivingData_ = DrivingData::unknown;
    std::optional<CombinedExportProgress> combinedProgress_;
    std::optional<std::pair<double, double>> exportingRange_; // the combined movie's part being made
    bool stopRequested_ = false;
    QString scratchFolder_;
    QFuture<void> running_;
};
