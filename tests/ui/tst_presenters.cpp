#include "support/IsolatedHome.h"
#include "FailureScreens.h"
#include "HealthPresenter.h"
#include "HelpArticle.h"
#include "ListPaneWidth.h"
#include "OnboardingTexts.h"
#include "SymbolIcons.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

// The rules behind the screens, without a window: widths, texts with counts
// and plurals, and no word of another platform in the texts.
class PresentersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A theme icon renamed or misspelt in the table would quietly show the neutral icon instead.
    void everySymbolFindsItsThemeIcon()
    {
        if (!QFile::exists(SymbolIcons::themeRoot()))
            QSKIP("the icon theme isn't installed");
        for (const QString &symbol : SymbolIcons::symbolNames())
            QVERIFY2(SymbolIcons::iconUrl(symbol) != SymbolIcons::neutralIconUrl(), qPrintable(symbol));
        QCOMPARE(SymbolIcons::iconUrl(QStringLiteral("no.such.symbol")), SymbolIcons::neutralIconUrl());
    }

    void listWidthHonoursTheDetailRoomAndFollowsTheDrag()
    {
        using namespace ListPaneWidth;
        // At 788 or less the column is the least width, whatever is stored.
        for (double stored : {0.0, 300.0, 340.0, 560.0, 9999.0}) {
            QCOMPARE(columnWidth(788, stored), 300.0);
            QCOMPARE(columnWidth(500, stored), 300.0);
        }
        // A stored value below the least is held up (the fifth).
        QCOMPARE((QList<double>{columnWidth(900, 560), columnWidth(1048, 560), columnWidth(2000, 560),
                                columnWidth(2000, 340), columnWidth(2000, 100), columnWidth(2000, 900)}),
                 (QList<double>{412, 560, 560, 340, 300, 560}));
        // A drag is computed from its start: going far past the end and back lands where the pointer is, no drift.
        QCOMPARE((QList<double>{dragWidth(340, 1000), dragWidth(340, -1000), dragWidth(340, 50), dragWidth(340, -40),
                                dragWidth(340, 0)}),
                 (QList<double>{560, 300, 390, 300, 340}));
    }

    void fullnessTextAndBar()
    {
        using namespace HealthPresenter;
        const QString calm = "% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.";
        const QString unkept = " not backed up yet — see the recommendation below.";
        QCOMPARE(fullnessConsequenceText(0.9, 2), "90" + calm + " You have 2 events" + unkept);
        QCOMPARE(fullnessConsequenceText(0.9, 1), "90" + calm + " You have 1 event" + unkept);
        // The calm sentence alone with nothing to keep, and at every level,
        // low ones included; halves round away from zero.
        for (auto [fraction, events, percent] :
             {std::tuple{0.9, 0, "90"}, {0.05, 3, "5"}, {0.125, 0, "13"}, {0.995, 0, "100"}, {0.0, 0, "0"}})
            QCOMPARE(fullnessConsequenceText(fraction, events), percent + calm);
        QVERIFY(fullnessBarIsOrange(0.9, 2));
        QVERIFY(!fullnessBarIsOrange(0.9, 0));
        QVERIFY(!fullnessBarIsOrange(0.85, 3)); // the threshold compares the unrounded fraction
        QVERIFY(fullnessBarIsOrange(0.8504, 3));
    }

    void footageConditionCard()
    {
        HealthReport r;
        r.formatVerdict = "v";
        r.recommendations.push_back({"all-good", Recommendation::Severity::info, "t", "d", "checkmark.seal"});
        // The card's texts and switches, as the screen reads them.
        const auto card = [&r] {
            const QVariantMap m = HealthPresenter::content(r);
            QStringList out;
            for (const char *key : {"conditionText", "conditionSymbol", "hasFullness", "fullnessText", "showEncryption"})
                out << m.value(QLatin1String(key)).toString();
            return out;
        };
        const QString noCapacity = "We couldn't read this drive's capacity.";
        QCOMPARE(card(), (QStringList{"Still checking your footage for damage — check back shortly.", "", "false",
                                      noCapacity, "false"}));
        r.probedClipCount = 120;
        QCOMPARE(card(), (QStringList{"All 120 checked clips are in good shape.", "checkmark.circle", "false",
                                      noCapacity, "false"}));

        r.corruptClipCount = 3;
        r.encryptedClipsPresent = true;
        r.fullnessFraction = 0.9;
        r.unarchivedEventCount = 2;
        QCOMPARE(card(), (QStringList{"3 of 120 checked clips didn't record properly.", "exclamationmark.triangle", "true",
                                      HealthPresenter::fullnessConsequenceText(0.9, 2), "true"}));
        const QVariantMap m = HealthPresenter::content(r);
        QVERIFY(m["barIsOrange"].toBool());
        const QVariantList recs = m["recommendations"].toList();
        QCOMPARE(recs.size(), 1);
        QCOMPARE(recs[0].toMap()["colour"].toString(),
                 HealthPresenter::severityColour(Recommendation::Severity::info));
    }

    // No screen may name the other platform's tools.
    void failureTextsSpeakThePlatformsWords()
    {
        QVERIFY(FailureScreens::unreadableFormat(VolumeFormat::makeOther("ntfs")).message.contains("this one is ntfs."));
        const QList<FailureScreens::Screen> all{
            FailureScreens::unreadableFormat(VolumeFormat::fat32), FailureScreens::staleBookmark(BookmarkKey::teslaDrive),
            FailureScreens::staleBookmark(BookmarkKey::vaultFolder), FailureScreens::encryptedClipsOnly(),
            FailureScreens::emptyDrive(), FailureScreens::driveDisconnected(), FailureScreens::noTeslaCamFolder(QString("X"))};
        const QRegularExpression mac(R"(\bMac\b|macOS|Disk Utility|/Volumes)");
        for (const auto &s : all)
            QVERIFY2(!mac.match(s.title + s.message + s.actionTitle).hasMatch(), qPrintable(s.message));
        const QVariantMap texts = OnboardingTexts::texts();
        for (auto it = texts.begin(); it != texts.end(); ++it)
            QVERIFY2(!mac.match(it.value().toString()).hasMatch(), qPrintable(it.key()));
        for (HelpArticle a : HelpArticle::allCases())
            for (const QString &p : a.paragraphs())
                QVERIFY2(!mac.match(p).hasMatch(), qPrintable(p));
    }

    void scanCountsAndCandidates()
    {
        QCOMPARE(OnboardingTexts::scanCountsText(1, 4), "Found 1 event so far, across 4 clips.");
        QCOMPARE(OnboardingTexts::scanCountsText(12, 300), "Found 12 events so far, across 300 clips.");
        VolumeCandidate c{"/media/u/CAR", "CAR", true, 64000000000LL, 1000};
        QCOMPARE(OnboardingTexts::candidateHeading(c), "Is this your Tesla drive? — CAR");
        QVERIFY(OnboardingTexts::candidateCapacity(c).startsWith("64"));
        c.capacityBytes.reset();
        QVERIFY(OnboardingTexts::candidateCapacity(c).isEmpty());
    }

};

KEELHOLD_ISOLATED_TEST_MAIN(PresentersTest)
#include "tst_presenters.moc"
