#include "FailureScreens.h"
#include "HealthPresenter.h"
#include "HelpArticle.h"
#include "ListPaneWidth.h"
#include "OnboardingTexts.h"
#include "SymbolIcons.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>
#include <QtTest>

// The rules behind the screens, without a window: widths, texts with counts
// and plurals, failure and help texts, the icon table.
class PresentersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listWidthHonoursTheDetailRoom()
    {
        using namespace ListPaneWidth;
        // At 788 or less the column is the least width, whatever is stored.
        for (double stored : {0.0, 300.0, 340.0, 560.0, 9999.0}) {
            QCOMPARE(columnWidth(788, stored), 300.0);
            QCOMPARE(columnWidth(500, stored), 300.0);
        }
        QCOMPARE(columnWidth(900, 560), 412.0);
        QCOMPARE(columnWidth(1048, 560), 560.0);
        QCOMPARE(columnWidth(2000, 560), 560.0);
        QCOMPARE(columnWidth(2000, 340), 340.0);
        QCOMPARE(columnWidth(2000, 100), 300.0); // a stored value below the least is held up
        QCOMPARE(columnWidth(2000, 900), 560.0);
    }

    void dragIsComputedFromItsStart()
    {
        using namespace ListPaneWidth;
        // Going far past the end and back lands where the pointer is, no drift.
        QCOMPARE(dragWidth(340, 1000), 560.0);
        QCOMPARE(dragWidth(340, -1000), 300.0);
        QCOMPARE(dragWidth(340, 50), 390.0);
        QCOMPARE(dragWidth(340, -40), 300.0);
        QCOMPARE(dragWidth(340, 0), 340.0);
    }

    void fullnessTextAndBar()
    {
        using namespace HealthPresenter;
        const QString first = "% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.";
        QCOMPARE(fullnessConsequenceText(0.9, 2),
                 "90" + first + " You have 2 events not backed up yet — see the recommendation below.");
        QVERIFY(fullnessBarIsOrange(0.9, 2));
        QCOMPARE(fullnessConsequenceText(0.9, 0), "90" + first);
        QVERIFY(!fullnessBarIsOrange(0.9, 0));
        QCOMPARE(fullnessConsequenceText(0.9, 1),
                 "90" + first + " You have 1 event not backed up yet — see the recommendation below.");
        // The calm sentence stands at every level, low ones included.
        QCOMPARE(fullnessConsequenceText(0.05, 3), "5" + first);
        QVERIFY(!fullnessBarIsOrange(0.85, 3)); // the threshold compares the unrounded fraction
        QVERIFY(fullnessBarIsOrange(0.8504, 3));
        QCOMPARE(fullnessConsequenceText(0.125, 0), "13" + first); // halves away from zero
        QCOMPARE(fullnessConsequenceText(0.995, 0), "100" + first);
        QCOMPARE(fullnessConsequenceText(0.0, 0), "0" + first);
    }

    void footageConditionCard()
    {
        HealthReport r;
        r.formatVerdict = "v";
        r.recommendations.push_back({"all-good", Recommendation::Severity::info, "t", "d", "checkmark.seal"});
        QVariantMap m = HealthPresenter::content(r);
        QCOMPARE(m["conditionText"].toString(), "Still checking your footage for damage — check back shortly.");
        QCOMPARE(m["conditionSymbol"].toString(), QString());
        QCOMPARE(m["hasFullness"].toBool(), false);
        QCOMPARE(m["fullnessText"].toString(), "We couldn't read this drive's capacity.");
        QCOMPARE(m["showEncryption"].toBool(), false);

        r.probedClipCount = 120;
        m = HealthPresenter::content(r);
        QCOMPARE(m["conditionText"].toString(), "All 120 checked clips are in good shape.");
        QCOMPARE(m["conditionSymbol"].toString(), "checkmark.circle");

        r.corruptClipCount = 3;
        r.encryptedClipsPresent = true;
        r.fullnessFraction = 0.9;
        r.unarchivedEventCount = 2;
        m = HealthPresenter::content(r);
        QCOMPARE(m["conditionText"].toString(), "3 of 120 checked clips didn't record properly.");
        QCOMPARE(m["conditionSubtext"].toString(),
                 "This is a known issue with some Tesla USB drives and isn't something you did.");
        QCOMPARE(m["conditionSymbol"].toString(), "exclamationmark.triangle");
        QVERIFY(m["barIsOrange"].toBool());
        QVERIFY(m["showEncryption"].toBool());
        QCOMPARE(m["encryptionDetail"].toString(),
                 "Keelhold can still back these up as-is. Encrypted clips play at dashcam.tesla.com.");
        const QVariantList recs = m["recommendations"].toList();
        QCOMPARE(recs.size(), 1);
        QCOMPARE(recs[0].toMap()["colour"].toString(),
                 HealthPresenter::severityColour(Recommendation::Severity::info));
    }

    void severityColoursDiffer()
    {
        using S = Recommendation::Severity;
        QSet<QString> colours;
        for (S s : {S::info, S::advice, S::warning, S::urgent})
            colours.insert(HealthPresenter::severityColour(s));
        QCOMPARE(colours.size(), 4);
        QCOMPARE(HealthPresenter::severityColour(S::warning), HealthPresenter::severityColour(S::warning));
    }

    void noTeslaCamFolderMessage()
    {
        const auto named = FailureScreens::noTeslaCamFolder(QString("UNTITLED"));
        const auto unnamed = FailureScreens::noTeslaCamFolder(std::nullopt);
        QCOMPARE(named.title, "We couldn't find a TeslaCam folder");
        QCOMPARE(named.actionTitle, "Choose a Different Drive");
        QCOMPARE(named.action, FailureScreens::Action::reopenWizard);
        QVERIFY(named.message.startsWith(
            "\"UNTITLED\" doesn't have a TeslaCam folder on it, so it may not be the drive from your car. Tesla"));
        QCOMPARE(unnamed.message,
                 "Tesla dashcam and Sentry footage always lives in a folder named \"TeslaCam\" at the top level of the "
                 "drive. If this is the right drive, make sure Dashcam Recording is turned on in your car's settings.");
        QVERIFY(named.message.endsWith(unnamed.message));
    }

    void failureTextsSpeakThePlatformsWords()
    {
        const auto fat = FailureScreens::unreadableFormat(VolumeFormat::fat32);
        QCOMPARE(fat.message,
                 "Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is FAT32 "
                 "(MS-DOS). Back up anything important from it first, then reformat it using a disk utility such as "
                 "Disks (choose \"ExFAT\") and reinsert it into your car so it can start recording.");
        QVERIFY(FailureScreens::unreadableFormat(VolumeFormat::makeOther("ntfs")).message.contains("this one is ntfs."));
        QVERIFY(fat.actionTitle.isEmpty());

        const auto drive = FailureScreens::staleBookmark(BookmarkKey::teslaDrive);
        const auto vault = FailureScreens::staleBookmark(BookmarkKey::vaultFolder);
        QCOMPARE(drive.title, "We need you to point us back to your Tesla drive");
        QCOMPARE(vault.actionTitle, "Choose Vault folder");
        QCOMPARE(vault.message,
                 "Your system asks apps to re-confirm folder access sometimes — for example after a drive is renamed "
                 "or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again "
                 "and everything will pick up where it left off.");

        const auto enc = FailureScreens::encryptedClipsOnly();
        QCOMPARE(enc.action, FailureScreens::Action::showEncryptionGuide);
        QVERIFY(enc.message.contains("watched anytime at dashcam.tesla.com. Want future"));
        QCOMPARE(FailureScreens::driveDisconnected().title, "Your drive was disconnected");
        QCOMPARE(FailureScreens::emptyDrive().title, "This drive doesn't have any footage yet");

        // No screen may name the other platform.
        const QList<FailureScreens::Screen> all{fat, drive, vault, enc, FailureScreens::emptyDrive(),
                                                FailureScreens::driveDisconnected(),
                                                FailureScreens::noTeslaCamFolder(QString("X"))};
        const QRegularExpression mac(R"(\bMac\b|macOS|Disk Utility|/Volumes)");
        for (const auto &s : all) {
            QVERIFY2(!mac.match(s.title + s.message + s.actionTitle).hasMatch(), qPrintable(s.message));
            QVERIFY(!s.symbolName.isEmpty());
        }
        const QVariantMap texts = OnboardingTexts::texts();
        for (auto it = texts.begin(); it != texts.end(); ++it)
            QVERIFY2(!mac.match(it.value().toString()).hasMatch(), qPrintable(it.key()));
        QVERIFY(texts["introText"].toString().endsWith("verified copy on your computer so you never lose footage "
                                                       "that matters."));
    }

    void scanCountsAndPickedRoot()
    {
        QCOMPARE(OnboardingTexts::scanCountsText(1, 4), "Found 1 event so far, across 4 clips.");
        QCOMPARE(OnboardingTexts::scanCountsText(0, 0), "Found 0 events so far, across 0 clips.");
        QCOMPARE(OnboardingTexts::scanCountsText(12, 300), "Found 12 events so far, across 300 clips.");

        // The volume and its TeslaCam folder lead to the same root.
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/media/u/CAR"), "/media/u/CAR/TeslaCam");
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/media/u/CAR/TeslaCam"), "/media/u/CAR/TeslaCam");
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/media/u/CAR/TeslaCam/"), "/media/u/CAR/TeslaCam");
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/media/u/CAR/"), "/media/u/CAR/TeslaCam");
        // Only the exact name counts.
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/x/teslacam"), "/x/teslacam/TeslaCam");
        QCOMPARE(OnboardingTexts::rootForChosenFolder("/"), "/TeslaCam");

        VolumeCandidate c{"/media/u/CAR", "CAR", true, 64000000000LL, 1000};
        QCOMPARE(OnboardingTexts::candidateHeading(c), "Is this your Tesla drive? — CAR");
        QVERIFY(OnboardingTexts::candidateCapacity(c).startsWith("64"));
        c.capacityBytes.reset();
        QVERIFY(OnboardingTexts::candidateCapacity(c).isEmpty());
        QCOMPARE(OnboardingTexts::encryptionSteps().size(), 4);
        QCOMPARE(OnboardingTexts::encryptionSteps()[2].toMap()["title"].toString(),
                 "Switch off “Encrypt Dashcam Recordings”");
    }

    void helpArticles()
    {
        const auto &all = HelpArticle::allCases();
        QCOMPARE(all.size(), size_t(7));
        QCOMPARE(all.front().rawValue(), "sentryMode");
        QCOMPARE(all.back().title(), "Keyboard shortcuts");
        for (HelpArticle a : all) {
            QCOMPARE(HelpArticle::fromRawValue(a.rawValue()), std::optional<HelpArticle>(a));
            QVERIFY(!a.title().isEmpty());
            QVERIFY(a.paragraphs().size() >= 2);
            for (const QString &p : a.paragraphs())
                QVERIFY2(!p.contains("Mac") && !p.contains("macOS"), qPrintable(p));
        }
        QCOMPARE(HelpArticle(HelpArticle::encryptionExplained).paragraphs().size(), 3);
        QVERIFY(HelpArticle(HelpArticle::encryptionExplained).paragraphs()[1].contains(
            "your Tesla account at dashcam.tesla.com: your browser"));
        QVERIFY(HelpArticle(HelpArticle::readOnlyPromise).paragraphs()[0].endsWith(
            "the Vault folder you choose on your computer (or another drive you pick)."));
        QCOMPARE(HelpArticle(HelpArticle::keyboardShortcuts).listLines().size(), 11);
        QVERIFY(HelpArticle(HelpArticle::sentryMode).listLines().isEmpty());
        QVERIFY(!HelpArticle::fromRawValue(u"nope"));
    }

    void everySymbolHasAnIcon()
    {
        // Every symbol named in the source tree is in the table and its file exists.
        QStringList symbols{"externaldrive.connected.to.line.below", "lock.shield", "map", "waveform.path.ecg",
                            "questionmark.circle", "sparkles", "car.side", "externaldrive.fill",
                            "externaldrive.badge.questionmark", "chevron.right", "tray.and.arrow.down", "info.circle",
                            "chart.pie", "questionmark.video", "lock.doc", "checkmark.seal", "checkmark.circle",
                            "exclamationmark.triangle", "lock.open"};
        for (HelpArticle a : HelpArticle::allCases())
            symbols << a.symbolName();
        for (const QVariant &s : OnboardingTexts::encryptionSteps() + OnboardingTexts::encryptionNotes())
            symbols << s.toMap()["symbolName"].toString();
        for (const auto &f : {FailureScreens::emptyDrive(), FailureScreens::driveDisconnected(),
                              FailureScreens::encryptedClipsOnly(), FailureScreens::unreadableFormat(VolumeFormat()),
                              FailureScreens::staleBookmark(BookmarkKey::teslaDrive),
                              FailureScreens::noTeslaCamFolder(std::nullopt)})
            symbols << f.symbolName;
        const bool themeInstalled = QFile::exists(SymbolIcons::themeRoot());
        for (const QString &s : symbols) {
            QVERIFY2(!SymbolIcons::themeIconName(s).isEmpty(), qPrintable(s));
            const QString url = SymbolIcons::iconUrl(s);
            QVERIFY(!url.isEmpty());
            if (themeInstalled) {
                QVERIFY2(url.startsWith("file:"), qPrintable(s));
                QVERIFY(QFile::exists(QUrl(url).toLocalFile()));
            }
        }
        // Unknown names still get an icon.
        QCOMPARE(SymbolIcons::iconUrl("no.such.symbol"), SymbolIcons::neutralIconUrl());
    }
};

QTEST_GUILESS_MAIN(PresentersTest)
#include "tst_presenters.moc"
