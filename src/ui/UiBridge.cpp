#include "UiBridge.h"
#include "DiagnosticInfo.h"

#include "FailureScreens.h"
#include "HealthPresenter.h"
#include "HelpArticle.h"
#include "ListPaneWidth.h"
#include "OnboardingTexts.h"
#include "SymbolIcons.h"
#include "state/AppState.h"
#include "state/SidebarSection.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QPalette>
#include <QSettings>
#include "playback/MediaSource.h"
#include <QUrl>

namespace {
const char *const listWidthKey = "KHEventListWidth";
const char *const hardwareDecodingKey = "KHHardwareDecoding";

// The raw value is also the section's id; only the label is translated.
QString sectionLabel(SidebarSection section)
{
    switch (section.value()) {
    //: Sidebar section: the car's drive and its events
    case SidebarSection::drive: return QCoreApplication::translate("UiBridge", "Drive");
    //: Sidebar section: the kept copies
    case SidebarSection::vault: return QCoreApplication::translate("UiBridge", "Vault");
    //: Sidebar section: the events on a map
    case SidebarSection::map: return QCoreApplication::translate("UiBridge", "Map");
    //: Sidebar section: the health of the car's drive
    case SidebarSection::health: return QCoreApplication::translate("UiBridge", "Drive Health");
    }
    return section.rawValue();
}
}

UiBridge::UiBridge(AppState *state, QObject *parent) : QObject(parent), state_(state) {}

QVariantMap UiBridge::texts() const
{
    QVariantMap t = OnboardingTexts::texts();
    t.insert(QStringLiteral("helpTip"), tr("Open Help — Sentry Mode, clip length, corruption, and encryption explained."));
    t.insert(QStringLiteral("resizeTip"), tr("Drag to resize the event list."));
    t.insert(QStringLiteral("sampleBanner"), tr("You're exploring sample footage · Connect your Tesla drive anytime"));
    //: Button that leaves the sample footage
    t.insert(QStringLiteral("ejectSample"), tr("Eject Sample"));
    t.insert(QStringLiteral("licenceTitle"), tr("A Keelhold licence is needed"));
    t.insert(QStringLiteral("licenceText"),
             tr("Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one."));
    //: Menu item that opens the help window
    t.insert(QStringLiteral("helpMenu"), tr("Keelhold Help"));
    t.insert(QStringLiteral("sampleMenu"), tr("Explore Sample Footage"));
    //: Menu title; & marks the letter for the Alt shortcut
    t.insert(QStringLiteral("playbackMenu"), tr("&Playback"));
    t.insert(QStringLiteral("hardwareDecodingMenu"), tr("Use Graphics Hardware for Video"));
    t.insert(QStringLiteral("promiseTitle"), tr("Nothing on your drive is ever changed or deleted."));
    t.insert(QStringLiteral("promiseText"),
             //: "Keep" is the app's own button; translate it as there
             tr("Keelhold only reads from your Tesla drive. Every \"Keep\" makes a verified copy elsewhere — your "
                "original footage is never touched."));
    return t;
}

QString UiBridge::copyDiagnosticInformation() const
{
    const QString text = DiagnosticInfo::text();
    if (QClipboard *clipboard = QGuiApplication::clipboard())
        clipboard->setText(text);
    return text;
}

QVariantList UiBridge::helpArticles() const
{
    QVariantList out;
    for (HelpArticle a : HelpArticle::allCases())
        out.append(QVariantMap{{QStringLiteral("id"), a.rawValue()},
                               {QStringLiteral("title"), a.title()},
                               {QStringLiteral("icon"), SymbolIcons::iconUrl(a.symbolName())},
                               {QStringLiteral("paragraphs"), a.paragraphs()},
                               {QStringLiteral("listLines"), a.listLines()},
                               {QStringLiteral("offersUnlock"), a == HelpArticle::encryptionExplained}});
    return out;
}

QVariantList UiBridge::sidebarSections() const
{
    static const char *const symbols[] = {"externaldrive.connected.to.line.below", "lock.shield", "map",
                                          "waveform.path.ecg"};
    QVariantList out;
    for (SidebarSection s : SidebarSection::allCases())
        out.append(QVariantMap{{QStringLiteral("value"), int(s.value())},
                               {QStringLiteral("id"), s.rawValue()},
                               {QStringLiteral("label"), sectionLabel(s)},
                               {QStringLiteral("icon"), SymbolIcons::iconUrl(QString::fromLatin1(symbols[s.value()]))}});
    return out;
}

QVariantMap UiBridge::sections() const
{
    QVariantMap out;
    const QMetaEnum e = QMetaEnum::fromType<SidebarSection::Value>();
    for (int i = 0; i < e.keyCount(); ++i)
        out.insert(QString::fromLatin1(e.key(i)), e.value(i));
    return out;
}

QVariantMap UiBridge::columns() const
{
    QVariantMap out;
    const QMetaEnum e = QMetaEnum::fromType<AppState::ColumnVisibility>();
    for (int i = 0; i < e.keyCount(); ++i)
        out.insert(QString::fromLatin1(e.key(i)), e.value(i));
    return out;
}

QVariantMap UiBridge::colors() const
{
    const QPalette p = QGuiApplication::palette();
    static const std::pair<const char *, QPalette::ColorRole> roles[] = {
        {"window", QPalette::Window},         {"windowText", QPalette::WindowText},
        {"base", QPalette::Base},             {"alternateBase", QPalette::AlternateBase},
        {"text", QPalette::Text},             {"button", QPalette::Button},
        {"buttonText", QPalette::ButtonText}, {"mid", QPalette::Mid},
        {"midlight", QPalette::Midlight},     {"dark", QPalette::Dark},
        {"light", QPalette::Light},           {"highlight", QPalette::Highlight},
        {"highlightedText", QPalette::HighlightedText}, {"toolTipBase", QPalette::ToolTipBase},
        {"toolTipText", QPalette::ToolTipText},         {"placeholderText", QPalette::PlaceholderText},
    };
    QVariantMap out;
    for (const auto &[name, role] : roles)
        out.insert(QString::fromLatin1(name), p.color(QPalette::Active, role));
    return out;
}

QVariantList UiBridge::guideSteps() const { return OnboardingTexts::encryptionSteps(); }
QVariantList UiBridge::guideNotes() const { return OnboardingTexts::encryptionNotes(); }

double UiBridge::storedListWidth() const
{
    return QSettings().value(QLatin1String(listWidthKey), ListPaneWidth::defaultWidth).toDouble();
}

void UiBridge::setStoredListWidth(double w)
{
    if (w == storedListWidth())
        return;
    QSettings().setValue(QLatin1String(listWidthKey), w);
    Q_EMIT storedListWidthChanged();
}

bool UiBridge::hardwareDecoding() const
{
    return QSettings().value(QLatin1String(hardwareDecodingKey), true).toBool();
}

void UiBridge::setHardwareDecoding(bool on)
{
    if (on == hardwareDecoding())
        return;
    QSettings().setValue(QLatin1String(hardwareDecodingKey), on);
    MediaSource::setHardwareDecoding(on);
    Q_EMIT hardwareDecodingChanged();
}

void UiBridge::applyStoredHardwareDecoding()
{
    MediaSource::setHardwareDecoding(QSettings().value(QLatin1String(hardwareDecodingKey), true).toBool());
}

QString UiBridge::icon(const QString &symbolName) const { return SymbolIcons::iconUrl(symbolName); }
double UiBridge::listColumnWidth(double total, double stored) const { return ListPaneWidth::columnWidth(total, stored); }
double UiBridge::dragWidth(double atStart, double translation) const
{
    return ListPaneWidth::dragWidth(atStart, translation);
}
QString UiBridge::scanCountsText(int e, int c) const { return OnboardingTexts::scanCountsText(e, c); }

QString UiBridge::rootForChosenFolder(const QString &chosen) const
{
    const QUrl url(chosen);
    return OnboardingTexts::rootForChosenFolder(url.isLocalFile() ? url.toLocalFile() : chosen);
}

QString UiBridge::candidateHeading(const QVariantMap &c) const
{
    VolumeCandidate v;
    v.name = c.value(QStringLiteral("name")).toString();
    return OnboardingTexts::candidateHeading(v);
}

QString UiBridge::candidateCapacity(const QVariantMap &c) const
{
    VolumeCandidate v;
    const QVariant cap = c.value(QStringLiteral("capacityBytes"));
    if (cap.isValid() && !cap.isNull())
        v.capacityBytes = qint64(cap.toDouble());
    return OnboardingTexts::candidateCapacity(v);
}

QVariantMap UiBridge::failureScreen() const
{
    if (!state_ || !state_->currentFailure())
        return {};
    const DriveFailure &f = *state_->currentFailure();
    switch (f.kind()) {
    case DriveFailure::NoTeslaCamFolder: return FailureScreens::noTeslaCamFolder(f.volumeName()).toVariantMap();
    case DriveFailure::UnreadableFormat:
        return FailureScreens::unreadableFormat(f.format().value_or(VolumeFormat())).toVariantMap();
    case DriveFailure::StaleBookmark:
        return FailureScreens::staleBookmark(f.bookmarkKeyValue().value_or(BookmarkKey::teslaDrive)).toVariantMap();
    case DriveFailure::EmptyDrive: return FailureScreens::emptyDrive().toVariantMap();
    case DriveFailure::EncryptedClipsOnly: return FailureScreens::encryptedClipsOnly().toVariantMap();
    case DriveFailure::DriveDisconnected: return FailureScreens::driveDisconnected().toVariantMap();
    }
    return {};
}

QVariantMap UiBridge::healthContent() const
{
    if (!state_ || !state_->healthReport()) {
        QVariantMap m = HealthPresenter::emptyState();
        m.insert(QStringLiteral("present"), false);
        m.insert(QStringLiteral("icon"), SymbolIcons::iconUrl(m.value(QStringLiteral("symbolName")).toString()));
        return m;
    }
    QVariantMap m = HealthPresenter::content(*state_->healthReport());
    m.insert(QStringLiteral("present"), true);
    return m;
}
