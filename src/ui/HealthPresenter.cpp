#include "HealthPresenter.h"

#include "SymbolIcons.h"
#include "model/TeslaViewer.h"

#include <QCoreApplication>
#include <QVariantList>
#include <cmath>

namespace HealthPresenter {
namespace {

bool nearlyFullWithUnkept(double fraction, int unarchived) { return fraction > 0.85 && unarchived >= 1; }

} // namespace

QString fullnessConsequenceText(double fraction, int unarchivedEventCount)
{
    // Full is normal for a car drive, so the first sentence stands at every level.
    //: %1 is a whole percentage; "%1% full" reads "90% full"
    QString text = QCoreApplication::translate("HealthPresenter",
                                               "%1% full — normal for a Tesla drive. The car reuses space by "
                                               "overwriting its oldest footage.")
                       .arg(static_cast<long long>(std::llround(fraction * 100)));
    if (nearlyFullWithUnkept(fraction, unarchivedEventCount))
        text += QLatin1Char(' ')
                + QCoreApplication::translate("HealthPresenter",
                                              "You have %n events not backed up yet — see the recommendation below.",
                                              nullptr, unarchivedEventCount);
    return text;
}

bool fullnessBarIsOrange(double fraction, int unarchivedEventCount)
{
    return nearlyFullWithUnkept(fraction, unarchivedEventCount);
}

QString severityColour(Recommendation::Severity severity)
{
    switch (severity) {
    case Recommendation::Severity::info: return QStringLiteral("#3b82f6");
    case Recommendation::Severity::advice: return QStringLiteral("#14b8a6");
    case Recommendation::Severity::warning: return QStringLiteral("#f59e0b");
    case Recommendation::Severity::urgent: return QStringLiteral("#ef4444");
    }
    return QStringLiteral("#3b82f6");
}

QVariantMap content(const HealthReport &report)
{
    QVariantMap m;
    m[QStringLiteral("freeSpaceHeading")] = QCoreApplication::translate("HealthPresenter", "Free Space");
    m[QStringLiteral("hasFullness")] = report.fullnessFraction.has_value();
    if (report.fullnessFraction) {
        const double f = *report.fullnessFraction;
        m[QStringLiteral("fullnessFraction")] = f;
        m[QStringLiteral("fullnessText")] = fullnessConsequenceText(f, report.unarchivedEventCount);
        m[QStringLiteral("barIsOrange")] = fullnessBarIsOrange(f, report.unarchivedEventCount);
    } else {
        m[QStringLiteral("fullnessFraction")] = 0.0;
        m[QStringLiteral("fullnessText")] = QCoreApplication::translate("HealthPresenter", "We couldn't read this drive's capacity.");
        m[QStringLiteral("barIsOrange")] = false;
    }

    //: Heading: the drive's file system format (exFAT, FAT32, …)
    m[QStringLiteral("formatHeading")] = QCoreApplication::translate("HealthPresenter", "Format");
    m[QStringLiteral("formatVerdict")] = report.formatVerdict;

    m[QStringLiteral("conditionHeading")] = QCoreApplication::translate("HealthPresenter", "Footage Condition");
    QString symbol, text, subtext;
    if (report.probedClipCount == 0) {
        text = QCoreApplication::translate("HealthPresenter", "Still checking your footage for damage — check back shortly.");
    } else if (report.corruptClipCount == 0) {
        symbol = QStringLiteral("checkmark.circle");
        text = QCoreApplication::translate("HealthPresenter", "All %n checked clips are in good shape.", nullptr,
                                           report.probedClipCount);
    } else {
        symbol = QStringLiteral("exclamationmark.triangle");
        //: %1 damaged clips of %n checked
        text = QCoreApplication::translate("HealthPresenter", "%1 of %n checked clips didn't record properly.", nullptr,
                                           report.probedClipCount)
                   .arg(report.corruptClipCount);
        subtext = QCoreApplication::translate("HealthPresenter",
                                              "This is a known issue with some Tesla USB drives and isn't something "
                                              "you did.");
    }
    m[QStringLiteral("conditionSymbol")] = symbol;
    m[QStringLiteral("conditionIcon")] = symbol.isEmpty() ? QString() : SymbolIcons::iconUrl(symbol);
    m[QStringLiteral("conditionText")] = text;
    m[QStringLiteral("conditionSubtext")] = subtext;

    m[QStringLiteral("showEncryption")] = report.encryptedClipsPresent;
    m[QStringLiteral("encryptionHeading")] = QCoreApplication::translate("HealthPresenter", "Encryption");
    m[QStringLiteral("encryptionIcon")] = SymbolIcons::iconUrl(QStringLiteral("lock.doc"));
    m[QStringLiteral("encryptionText")] =
        QCoreApplication::translate("HealthPresenter", "Some clips on this drive are encrypted by your car.");
    //: %1 is the web viewer's host name, dashcam.tesla.com
    m[QStringLiteral("encryptionDetail")] =
        QCoreApplication::translate("HealthPresenter",
                                    "Keelhold can still back these up as-is. Encrypted clips play at %1.")
            .arg(TeslaViewer::host());
    m[QStringLiteral("encryptionButton")] =
        QCoreApplication::translate("HealthPresenter", "Turn encryption off for future recordings…");
    m[QStringLiteral("encryptionButtonTip")] = QCoreApplication::translate(
        "HealthPresenter", "A 30-second setting in your car. Everything already recorded is unaffected.");

    m[QStringLiteral("recommendationsHeading")] = QCoreApplication::translate("HealthPresenter", "Recommendations");
    QVariantList recs;
    for (const Recommendation &r : report.recommendations)
        recs.append(QVariantMap{{QStringLiteral("id"), r.id},
                                {QStringLiteral("title"), r.title},
                                {QStringLiteral("detail"), r.detail},
                                {QStringLiteral("symbolName"), r.symbolName},
                                {QStringLiteral("icon"), SymbolIcons::iconUrl(r.symbolName)},
                                {QStringLiteral("colour"), severityColour(r.severity)}});
    m[QStringLiteral("recommendations")] = recs;
    return m;
}

QVariantMap emptyState()
{
    return {{QStringLiteral("symbolName"), QStringLiteral("waveform.path.ecg")},
            {QStringLiteral("title"), QCoreApplication::translate("HealthPresenter", "No drive health yet")},
            {QStringLiteral("message"),
             //: "Drive" is the app's own tab; translate it as there
             QCoreApplication::translate("HealthPresenter",
                                         "Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, "
                                         "and format at a glance.")}};
}

} // namespace HealthPresenter
