#include "HealthPresenter.h"

#include "SymbolIcons.h"
#include "model/TeslaViewer.h"

#include <QVariantList>
#include <cmath>

namespace HealthPresenter {
namespace {

bool nearlyFullWithUnkept(double fraction, int unarchived) { return fraction > 0.85 && unarchived >= 1; }

} // namespace

QString fullnessConsequenceText(double fraction, int unarchivedEventCount)
{
    // Full is normal for a car drive, so the first sentence stands at every level.
    QString text = QString::number(static_cast<long long>(std::llround(fraction * 100)))
                   + QStringLiteral("% full — normal for a Tesla drive. The car reuses space by overwriting its oldest "
                                    "footage.");
    if (nearlyFullWithUnkept(fraction, unarchivedEventCount))
        text += QStringLiteral(" You have ") + QString::number(unarchivedEventCount) + QStringLiteral(" event")
                + (unarchivedEventCount == 1 ? QString() : QStringLiteral("s"))
                + QStringLiteral(" not backed up yet — see the recommendation below.");
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
    m[QStringLiteral("freeSpaceHeading")] = QStringLiteral("Free Space");
    m[QStringLiteral("hasFullness")] = report.fullnessFraction.has_value();
    if (report.fullnessFraction) {
        const double f = *report.fullnessFraction;
        m[QStringLiteral("fullnessFraction")] = f;
        m[QStringLiteral("fullnessText")] = fullnessConsequenceText(f, report.unarchivedEventCount);
        m[QStringLiteral("barIsOrange")] = fullnessBarIsOrange(f, report.unarchivedEventCount);
    } else {
        m[QStringLiteral("fullnessFraction")] = 0.0;
        m[QStringLiteral("fullnessText")] = QStringLiteral("We couldn't read this drive's capacity.");
        m[QStringLiteral("barIsOrange")] = false;
    }

    m[QStringLiteral("formatHeading")] = QStringLiteral("Format");
    m[QStringLiteral("formatVerdict")] = report.formatVerdict;

    m[QStringLiteral("conditionHeading")] = QStringLiteral("Footage Condition");
    QString symbol, text, subtext;
    if (report.probedClipCount == 0) {
        text = QStringLiteral("Still checking your footage for damage — check back shortly.");
    } else if (report.corruptClipCount == 0) {
        symbol = QStringLiteral("checkmark.circle");
        text = QStringLiteral("All ") + QString::number(report.probedClipCount)
               + QStringLiteral(" checked clips are in good shape.");
    } else {
        symbol = QStringLiteral("exclamationmark.triangle");
        text = QString::number(report.corruptClipCount) + QStringLiteral(" of ") + QString::number(report.probedClipCount)
               + QStringLiteral(" checked clips didn't record properly.");
        subtext = QStringLiteral("This is a known issue with some Tesla USB drives and isn't something you did.");
    }
    m[QStringLiteral("conditionSymbol")] = symbol;
    m[QStringLiteral("conditionIcon")] = symbol.isEmpty() ? QString() : SymbolIcons::iconUrl(symbol);
    m[QStringLiteral("conditionText")] = text;
    m[QStringLiteral("conditionSubtext")] = subtext;

    m[QStringLiteral("showEncryption")] = report.encryptedClipsPresent;
    m[QStringLiteral("encryptionHeading")] = QStringLiteral("Encryption");
    m[QStringLiteral("encryptionIcon")] = SymbolIcons::iconUrl(QStringLiteral("lock.doc"));
    m[QStringLiteral("encryptionText")] = QStringLiteral("Some clips on this drive are encrypted by your car.");
    m[QStringLiteral("encryptionDetail")] = QStringLiteral("Keelhold can still back these up as-is. Encrypted clips play at ")
                                            + TeslaViewer::host() + QStringLiteral(".");
    m[QStringLiteral("encryptionButton")] = QStringLiteral("Turn encryption off for future recordings…");
    m[QStringLiteral("encryptionButtonTip")] =
        QStringLiteral("A 30-second setting in your car. Everything already recorded is unaffected.");

    m[QStringLiteral("recommendationsHeading")] = QStringLiteral("Recommendations");
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
            {QStringLiteral("title"), QStringLiteral("No drive health yet")},
            {QStringLiteral("message"), QStringLiteral("Scan a Tesla drive from the Drive tab to see its fullness, "
                                                       "corruption rate, and format at a glance.")}};
}

} // namespace HealthPresenter
