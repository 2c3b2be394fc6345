#include "ColorScheme.h"
#include "DrivePicker.h"
#include "LicenceGate.h"
#include "engine/LiveEngine.h"
#include "state/AppState.h"
#include "support/IsolatedHome.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// The drive picker's panel rules on a real engine and real folders (the
// licence gate and the common answers are clicked through in the wizard
// window test); and the choice of dark or light.
class PickerAndSchemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).clear();
        qunsetenv(DrivePicker::answerEnv);
    }

    void panelOpensAtTheGivenFolder()
    {
        LiveEngine engine;
        AppState state(engine);
        LicenceGate gate;
        DrivePicker picker(&state, &gate);
        QSignalSpy panel(&picker, &DrivePicker::openPanelRequested);
        // Answered at once: the real dialog is driven in the window tests.
        qputenv(DrivePicker::answerEnv, "-");
        picker.presentOpenPanel(QStringLiteral("/media/UNTITLED"));
        QCOMPARE(QList<QVariantList>(panel), QList<QVariantList>{{QStringLiteral("/media/UNTITLED")}});
    }

    void chosenFolderBecomesTheTeslaCamRoot_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("root");
        // Only the exact name counts; the folder need not exist yet. The
        // volume itself is chosen in the wizard window test.
        QTest::newRow("its TeslaCam folder") << QStringLiteral("STICK/TeslaCam") << QStringLiteral("STICK/TeslaCam");
        QTest::newRow("with a trailing slash") << QStringLiteral("STICK/TeslaCam/") << QStringLiteral("STICK/TeslaCam");
        QTest::newRow("as a file URL") << QStringLiteral("file://%1/STICK") << QStringLiteral("STICK/TeslaCam");
        QTest::newRow("teslacam in lower case") << QStringLiteral("STICK/teslacam")
                                                << QStringLiteral("STICK/teslacam/TeslaCam");
        QTest::newRow("a folder with no TeslaCam") << QStringLiteral("EMPTY") << QStringLiteral("EMPTY/TeslaCam");
    }

    void chosenFolderBecomesTheTeslaCamRoot()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, root);
        QTemporaryDir tmp;
        QDir().mkpath(tmp.filePath(QStringLiteral("STICK/TeslaCam")));
        QDir().mkpath(tmp.filePath(QStringLiteral("STICK/teslacam")));
        QDir().mkpath(tmp.filePath(QStringLiteral("EMPTY")));
        LiveEngine engine;
        AppState state(engine);
        LicenceGate gate;
        DrivePicker picker(&state, &gate);
        QSignalSpy picked(&picker, &DrivePicker::picked);
        picker.panelFinished(true, chosen.contains(QLatin1String("%1")) ? chosen.arg(tmp.path()) : tmp.filePath(chosen));
        QCOMPARE(QList<QVariantList>(picked), QList<QVariantList>{{tmp.filePath(root)}});
        // The bookmark is saved on the root before the scan is asked for.
        const BookmarkResult saved = engine.resolveBookmark(BookmarkKey::teslaDrive);
        if (QFileInfo::exists(tmp.filePath(root)))
            QCOMPARE(std::holds_alternative<QString>(saved) ? std::get<QString>(saved) : QString(), tmp.filePath(root));
        // The picker itself starts nothing: the wizard runs the scan.
        QVERIFY(!state.driveRootURL());
    }

    void schemeFollowsOverrideThenThemeThenPalette_data()
    {
        QTest::addColumn<QString>("override");
        QTest::addColumn<QString>("gtkTheme");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<bool>("dark");
        const QColor light(0xef, 0xef, 0xef), dark(0x30, 0x30, 0x30);
        QTest::newRow("light palette") << QString() << QString() << light << false;
        QTest::newRow("dark palette") << QString() << QString() << dark << true;
        QTest::newRow("no palette") << QString() << QString() << QColor() << false;
        QTest::newRow("dark theme variant") << QString() << QStringLiteral("Adwaita:dark") << light << true;
        QTest::newRow("dark theme name") << QString() << QStringLiteral("Arc-Dark") << light << true;
        QTest::newRow("light theme") << QString() << QStringLiteral("Adwaita") << light << false;
        QTest::newRow("override dark") << QStringLiteral("dark") << QStringLiteral("Adwaita") << light << true;
        QTest::newRow("override light beats all") << QStringLiteral(" Light ") << QStringLiteral("Adwaita:dark") << dark
                                                  << false;
        QTest::newRow("unknown override ignored") << QStringLiteral("purple") << QString() << dark << true;
    }

    void schemeFollowsOverrideThenThemeThenPalette()
    {
        QFETCH(QString, override);
        QFETCH(QString, gtkTheme);
        QFETCH(QColor, window);
        QFETCH(bool, dark);
        QCOMPARE(ColorScheme::decide(override, gtkTheme, window) == ColorScheme::Scheme::dark, dark);
    }

    void palettesReadWell()
    {
        // Text stands out from its ground in both schemes.
        for (ColorScheme::Scheme s : {ColorScheme::Scheme::light, ColorScheme::Scheme::dark}) {
            const QPalette p = ColorScheme::palette(s);
            QVERIFY(qAbs(p.color(QPalette::Window).lightness() - p.color(QPalette::WindowText).lightness()) > 150);
            QVERIFY(qAbs(p.color(QPalette::Base).lightness() - p.color(QPalette::Text).lightness()) > 150);
            QCOMPARE(p.color(QPalette::Window).lightness() < 128, s == ColorScheme::Scheme::dark);
        }
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(PickerAndSchemeTest)

#include "tst_pickerandscheme.moc"
