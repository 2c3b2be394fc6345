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
#include <QUrl>
#include <QtTest>

// The drive picker's panel rules with the licence gate in front of them, on
// a real engine and real folders; and the choice of dark or light.
namespace {

class SwitchableGate final : public LicenceGate {
public:
    Status answer = Status::unlocked;
    Status status() const override { return answer; }
};

QString savedDrive(EngineFacade &engine)
{
    const BookmarkResult r = engine.resolveBookmark(BookmarkKey::teslaDrive);
    return std::holds_alternative<QString>(r) ? std::get<QString>(r) : QString();
}

} // namespace

class PickerAndSchemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).clear();
        qunsetenv(DrivePicker::answerEnv);
    }

    void theGateIsUnlockedForNow() { QCOMPARE(LicenceGate().status(), LicenceGate::Status::unlocked); }

    void lockedGateShowsTheLicenceWindowInstead()
    {
        QTemporaryDir tmp;
        QDir().mkpath(tmp.filePath(QStringLiteral("STICK/TeslaCam")));
        LiveEngine engine;
        AppState state(engine);
        SwitchableGate gate;
        gate.answer = LicenceGate::Status::locked;
        DrivePicker picker(&state, &gate);
        QSignalSpy licence(&picker, &DrivePicker::licenceWindowRequested);
        QSignalSpy panel(&picker, &DrivePicker::openPanelRequested);
        QSignalSpy picked(&picker, &DrivePicker::picked);

        picker.presentOpenPanel(QStringLiteral("/media"));
        // Even a ready answer to the panel is never reached.
        qputenv(DrivePicker::answerEnv, tmp.filePath(QStringLiteral("STICK")).toLocal8Bit());
        picker.presentOpenPanel(QStringLiteral("/media"));
        QCOMPARE(licence.count(), 2);
        QCOMPARE(panel.count(), 0);
        QCOMPARE(picked.count(), 0);
        QVERIFY(savedDrive(engine).isEmpty());

        // Unlocked, the same call goes through.
        gate.answer = LicenceGate::Status::unlocked;
        picker.presentOpenPanel(QStringLiteral("/media"));
        QCOMPARE(licence.count(), 2);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(savedDrive(engine), tmp.filePath(QStringLiteral("STICK/TeslaCam")));
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
        QCOMPARE(panel.count(), 1);
        QCOMPARE(panel.at(0).at(0).toString(), QStringLiteral("/media/UNTITLED"));
    }

    void chosenFolderBecomesTheTeslaCamRoot_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("root");
        QTest::newRow("the volume") << QStringLiteral("STICK") << QStringLiteral("STICK/TeslaCam");
        QTest::newRow("its TeslaCam") << QStringLiteral("STICK/TeslaCam") << QStringLiteral("STICK/TeslaCam");
        QTest::newRow("a file URL") << QStringLiteral("url:STICK") << QStringLiteral("STICK/TeslaCam");
        // Only the exact name counts; the folder need not exist yet.
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
        const QString answer = chosen.startsWith(QLatin1String("url:"))
            ? QUrl::fromLocalFile(tmp.filePath(chosen.mid(4))).toString()
            : tmp.filePath(chosen);
        picker.panelFinished(true, answer);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toString(), tmp.filePath(root));
        // The bookmark is saved on the root before the scan is asked for.
        if (QFileInfo::exists(tmp.filePath(root)))
            QCOMPARE(savedDrive(engine), tmp.filePath(root));
        // The picker itself starts nothing: the wizard runs the scan.
        QVERIFY(!state.driveRootURL());
    }

    void cancelledOrEmptyPanelDoesNothing()
    {
        LiveEngine engine;
        AppState state(engine);
        LicenceGate gate;
        DrivePicker picker(&state, &gate);
        QSignalSpy picked(&picker, &DrivePicker::picked);
        picker.panelFinished(false, QStringLiteral("/media/UNTITLED"));
        picker.panelFinished(true, QString());
        qputenv(DrivePicker::answerEnv, "-");
        picker.presentOpenPanel(QStringLiteral("/media"));
        QCOMPARE(picked.count(), 0);
        QVERIFY(savedDrive(engine).isEmpty());
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
