#include "AppStateFace.h"
#include "EventListModel.h"
#include "InboxViewModel.h"
#include "MapViewModel.h"
#include "ThumbnailImageProvider.h"
#include "TileMap.h"
#include "TileSource.h"
#include "VaultViewModel.h"
#include "engine/MockEngine.h"
#include "playback/ThumbnailLoader.h"
#include "state/AppState.h"
#include "support/IsolatedHome.h"
#include "support/TeslaCamFixture.h"

#include <QAbstractItemModelTester>
#include <QGuiApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// The view models under the Drive, Vault and Map screens, without a window:
// the row model's moves, the keys, the Vault's texts and plurals, the map's
// pins and hand-over, the tile maths, the thumbnail provider.
class ScreenModelsTest : public QObject {
    Q_OBJECT

    static QStringList ids(const std::vector<TeslaEvent> &events)
    {
        QStringList out;
        for (const TeslaEvent &e : events)
            out << e.id();
        return out;
    }

    static void scanDemo(AppState &state)
    {
        state.beginScan(MockEngine::fixtureURL() + QStringLiteral("/TeslaCam"));
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && !state.isScanning() && !state.isRevalidatingScan(), 20000);
    }

private Q_SLOTS:
    void init() { QSettings().clear(); }

    // What QML reads and writes arrives in the state typed, and back as
    // QML expects it: absent as null or "", unknown words as nothing.
    void theStatesQmlFaceConvertsBothWays()
    {
        MockEngine engine;
        AppState state(engine);
        AppStateFace face(state);
        QSignalSpy section(&face, &AppStateFace::selectedSectionChanged);
        QVERIFY(face.property("driveScan").isNull());
        QCOMPARE(face.property("selectedEventID").toString(), QString());

        face.setProperty("selectedSection", int(SidebarSection::health));
        face.setProperty("selectedSection", int(SidebarSection::health));
        QCOMPARE(state.selectedSection(), SidebarSection::health);
        QCOMPARE(section.count(), 1);

        face.setProperty("filterState", QStringLiteral("kept"));
        QCOMPARE(state.filterState(), std::optional<TriageState>(TriageState::kept));
        face.setProperty("filterState", QStringLiteral("archived"));
        QVERIFY(!state.filterState());
        face.setProperty("filterState", QStringLiteral("kept"));
        face.setProperty("filterState", QString());
        QVERIFY(!state.filterState());

        face.setProperty("selectedEventID", QStringLiteral("x"));
        QCOMPARE(state.selectedEventID(), std::optional<QString>(QStringLiteral("x")));
        face.setProperty("selectedEventID", QString());
        QVERIFY(!state.selectedEventID());

        scanDemo(state);
        const QVariantMap scan = face.property("driveScan").toMap();
        QCOMPARE(scan.value(QStringLiteral("events")).toList().size(), qsizetype(state.driveScan()->events.size()));
        QVERIFY(face.property("lockStates").toMap().isEmpty()); // the demo drive is clear
    }

    // The rows move only where they change; the keys walk the visible list
    // and act on its selection; the roles follow ticks, selection and access.
    void rowModelFollowsTheStateAndTheKeys()
    {
        MockEngine engine;
        AppState state(engine);
        InboxViewModel inbox(&state);
        EventListModel *rows = inbox.rows();
        QAbstractItemModelTester tester(rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        scanDemo(state);
        QCOMPARE(ids(rows->events()), ids(state.visibleInboxEvents()));
        QVERIFY(rows->count() >= 4);

        QSignalSpy removed(rows, &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserted(rows, &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(rows, &QAbstractItemModel::modelReset);
        QSignalSpy changed(rows, &QAbstractItemModel::dataChanged);

        // A dismissal takes out that one row.
        const QString third = rows->idAt(2);
        state.dismissIDs({third});
        QCOMPARE(removed.size(), 1);
        QCOMPARE(removed.first().mid(1), (QVariantList{2, 2}));
        QCOMPARE(ids(rows->events()), ids(state.visibleInboxEvents()));

        // The Dismissed filter: the others go, the dismissed one comes in.
        state.setFilterState(TriageState::dismissed);
        QCOMPARE(ids(rows->events()), QStringList{third});
        state.setFilterState(std::nullopt);
        QCOMPARE(ids(rows->events()), ids(state.visibleInboxEvents()));
        QVERIFY(inserted.size() >= 2);
        QCOMPARE(reset.size(), 0);

        // A mark on a row that stays is a data change, not a move.
        removed.clear();
        inserted.clear();
        changed.clear();
        state.setTriage(TriageState::reviewed, rows->idAt(0));
        QCOMPARE(removed.size() + inserted.size(), 0);
        QVERIFY(changed.size() >= 1);
        QCOMPARE(rows->data(rows->index(0), EventListModel::OverlayKindRole).toString(), QString());
        QCOMPARE(rows->data(rows->index(1), EventListModel::OverlayKindRole).toString(), QStringLiteral("dot"));

        // K and D with nothing selected do nothing.
        inbox.keepSelected();
        inbox.dismissSelected();
        QVERIFY(!state.isArchiving());
        QCOMPARE(ids(state.visibleInboxEvents()).size(), rows->count());

        inbox.moveSelection(-1); // from nothing: the first row
        QCOMPARE(*state.selectedEventID(), rows->idAt(0));
        inbox.moveSelection(-1); // stays at the top
        QCOMPARE(*state.selectedEventID(), rows->idAt(0));
        for (int i = 0; i < 20; ++i)
            inbox.moveSelection(1); // stops at the end
        QCOMPARE(*state.selectedEventID(), rows->idAt(rows->count() - 1));

        // A selection the filters hide is not acted on.
        state.setSelectedEventID(rows->idAt(1));
        state.setFilterState(TriageState::kept);
        inbox.dismissSelected();
        state.setFilterState(std::nullopt);
        QCOMPARE(state.triageState(rows->idAt(1)).rawValue(), QStringLiteral("new"));

        const QModelIndex first = rows->index(0);
        const QString id = rows->idAt(0);
        QVERIFY(!rows->data(first, EventListModel::IsBulkSelectedRole).toBool());
        state.toggleBulkSelection(id);
        QVERIFY(rows->data(first, EventListModel::IsBulkSelectedRole).toBool());
        QVERIFY(rows->data(first, EventListModel::TickToolTipRole) != rows->data(rows->index(1), EventListModel::TickToolTipRole));

        // (The index the list scrolls to is followed in the window tests.)
        state.setSelectedEventID(rows->idAt(3));
        QVERIFY(rows->data(rows->index(3), EventListModel::IsSelectedRole).toBool());
        QVERIFY(!rows->data(first, EventListModel::IsSelectedRole).toBool());

        // The picture's id carries the access epoch, so a change of access asks again.
        for (int r = 0; r < rows->count(); ++r) {
            const TeslaEvent &e = rows->events()[size_t(r)];
            const QString source = rows->data(rows->index(r), EventListModel::ThumbSourceRole).toString();
            if (!e.thumbURL) {
                QVERIFY(source.isEmpty());
                continue;
            }
            QCOMPARE(source, QStringLiteral("image://thumbs/%1%2").arg(state.resourceAccessEpoch()).arg(*e.thumbURL));
            QCOMPARE(ThumbnailImageProvider::pathFromID(source.mid(15)), *e.thumbURL);
        }
    }

    void vaultTextsCountAndPluralise()
    {
        TeslaEvent one;
        one.folderName = QStringLiteral("2024-05-01_10-00-00");
        ClipRef clip;
        clip.fileSize = 1500000;
        one.clips = {clip};
        QCOMPARE(VaultViewModel::summaryFor({one}, std::nullopt),
                 QStringLiteral("1 event · ") + QLocale().formattedDataSize(1500000, 1, QLocale::DataSizeTraditionalFormat));
        QCOMPARE(VaultViewModel::summaryFor({}, std::nullopt), QStringLiteral("0 events · 0 bytes"));

        // The sheet's heading, then its lines.
        const auto sheet = [](const ArchiveReport &report) {
            const QVariantMap r = VaultViewModel::reportFor(report);
            QStringList out{r.value(QStringLiteral("heading")).toString()};
            for (const QVariant &line : r.value(QStringLiteral("lines")).toList())
                out << line.toMap().value(QStringLiteral("text")).toString();
            return out;
        };
        // Cancelled at once with nothing new: the heading alone.
        ArchiveReport nothing;
        nothing.cancelled = true;
        QCOMPARE(sheet(nothing), QStringList{QStringLiteral("Backup Stopped")});

        const QString copied = QStringLiteral(" copied and verified, byte-for-byte. The original on your drive is untouched.");
        const QString unread = QStringLiteral(" couldn't be read — your drive may be failing. Nothing was deleted or "
                                              "changed; you can try again.");
        ArchiveReport some;
        some.archivedEvents.resize(1);
        some.skippedDuplicates = 2;
        some.failedFiles.resize(1);
        QCOMPARE(sheet(some), (QStringList{"Backup Complete", "1 event" + copied,
                                           "2 were already in your Vault, so we skipped them.", "1 file" + unread}));
        some.archivedEvents.resize(2);
        some.skippedDuplicates = 0;
        some.failedFiles.resize(3);
        QCOMPARE(sheet(some), (QStringList{"Backup Complete", "2 events" + copied, "3 files" + unread}));

        // Cut off by the drive: the event kept in part is never counted as
        // kept or verified, and the heading says what happened.
        ArchiveReport cut;
        cut.plannedEvents = 6;
        cut.archivedEvents.resize(6);
        for (ArchivedEvent &e : cut.archivedEvents) {
            e.files.resize(2);
            e.expectedFileCount = 2;
        }
        cut.archivedEvents.back().files.resize(44);
        cut.archivedEvents.back().expectedFileCount = 90;
        cut.failedFiles.resize(1);
        cut.stoppedBecause = ArchiveReport::StopReason::driveDisconnected;
        QCOMPARE(sheet(cut), (QStringList{"Drive disconnected — 5 of 6 events kept completely", "5 events" + copied,
                                          "1 event reached your Vault only in part (44 of 90 files), so it isn't a "
                                          "verified copy. Keep it again to finish it.",
                                          "1 file couldn't be read as the drive went away."}));
        // Not cut off, but one event short: no "Complete" either.
        cut.stoppedBecause.reset();
        QCOMPARE(sheet(cut).first(), QStringLiteral("Backup Incomplete — 5 of 6 events kept completely"));
        QCOMPARE(VaultViewModel::progressLineFor(ArchiveProgress{10, 100, 3, 7, std::nullopt}, true),
                 QStringLiteral("Paused at 3 of 7 events — plug the drive back in to go on"));
    }

    // A check from before an event was kept again says nothing of it (the
    // marks a check gives, of part of an event too, are read in the Vault's
    // window test); the line says where the copy came from.
    void vaultMarkAndArchivedLine()
    {
        ArchivedEvent again;
        again.eventID = QStringLiteral("recent|2026-07-18_09-10-00");
        again.files = {ArchivedFile{QStringLiteral("a-front.mp4"), 10, QString(64, QLatin1Char('a'))},
                       ArchivedFile{QStringLiteral("a-back.mp4"), 10, QString(64, QLatin1Char('b'))}};
        again.archivedAt = Date(3000);
        again.expectedFileCount = 2;
        again.sourceVolume = QStringLiteral("TESLADRIVE");
        EventCheck check{again.eventID, Date(2000), 2, {}, {}, {}, 2, 2};
        check.missing = QStringList{QStringLiteral("a-front.mp4")};
        const QVariantMap mark = VaultViewModel::verificationFor(again, &check);
        QCOMPARE(mark.value(QStringLiteral("badge")).toString(), QStringLiteral("Verified copy"));
        QVERIFY(mark.value(QStringLiteral("archivedLine")).toString().endsWith(QStringLiteral(" from TESLADRIVE")));
        QVERIFY(!VaultViewModel::freeBytesAt(QString()));
        // (Choosing the folder and the empty Vault's screens are clicked through in the shell's window test.)
        MockEngine engine;
        AppState state(engine);
        VaultViewModel vault(&state);
        QVERIFY(!vault.verification(QStringLiteral("sentry|nothing")).value(QStringLiteral("present")).toBool());
    }

    // Pins and sections are proven on the presenter; here the hand-over.
    void mapHandsOverToTheDriveSection()
    {
        MockEngine engine;
        AppState state(engine);
        MapViewModel map(&state);
        QVERIFY(map.isEmpty());
        state.setSelectedSection(SidebarSection::map);
        map.select(QString()); // a pin deselected: nothing
        QCOMPARE(state.selectedSection(), SidebarSection::map);
        // An id that is on no drive still lands in the Drive section.
        map.select(QStringLiteral("saved|vault-only"));
        QCOMPARE(state.selectedSection(), SidebarSection::drive);
        QCOMPARE(*state.selectedEventID(), QStringLiteral("saved|vault-only"));
    }

    void tileMapKeepsTheCoordinateUnderTheCursor()
    {
        const int requests = TileSource::shared()->requestsStarted();
        TileMap map;
        map.setSize(QSizeF(800, 600));
        map.setCenterLatitude(30.25);
        map.setCenterLongitude(-97.75);
        map.setZoom(12);
        QCOMPARE(map.toView(30.25, -97.75), QPointF(400, 300));
        const QPointF before = map.toView(30.3, -97.7);
        QSignalSpy view(&map, &TileMap::viewChanged);
        map.zoomAround(2, before.x(), before.y());
        QCOMPARE(map.zoom(), 13.0);
        const QPointF after = map.toView(30.3, -97.7);
        QVERIFY(qAbs(after.x() - before.x()) < 0.5 && qAbs(after.y() - before.y()) < 0.5);
        map.pan(100, -50);
        const QPointF moved = map.toView(30.3, -97.7);
        QVERIFY(qAbs(moved.x() - after.x() - 100) < 0.5 && qAbs(moved.y() - after.y() + 50) < 0.5);
        QCOMPARE(view.size(), 2);
        map.setZoom(40);
        QCOMPARE(map.zoom(), TileMap::maxZoom);
        // Not in a window: nothing was asked of any server.
        QCOMPARE(TileSource::shared()->requestsStarted(), requests);
    }

    void thumbnailProviderScalesCachesAndGivesNothingForBadFiles()
    {
        QTemporaryDir dir;
        QImage big(800, 400, QImage::Format_RGB32);
        big.fill(Qt::red);
        const QString good = dir.filePath(QStringLiteral("thumb.png"));
        QVERIFY(big.save(good));
        const QString bad = dir.filePath(QStringLiteral("bad.png"));
        TeslaCamFixture::writeFile(bad, "not a picture");
        ThumbnailImageProvider provider;
        QVERIFY(provider.flags() & QQmlImageProviderBase::ForceAsynchronousImageLoading);
        QSize size;
        const QImage image = provider.requestImage(QStringLiteral("3") + good, &size, QSize());
        QCOMPARE(image.size(), QSize(200, 100));
        QCOMPARE(size, QSize(200, 100));
        QVERIFY(provider.requestImage(QStringLiteral("3") + bad, &size, QSize()).isNull());
        QVERIFY(!ThumbnailLoader::cached(bad));
        QVERIFY(provider.requestImage(QStringLiteral("nothing"), &size, QSize()).isNull());
    }
};

KEELHOLD_APP_TEST_MAIN(ScreenModelsTest)

#include "tst_screenmodels.moc"
