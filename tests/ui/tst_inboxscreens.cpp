#include "AppWindowHarness.h"

#include "InboxPresenter.h"
#include "InboxViewModel.h"
#include "TileSource.h"
#include "VaultViewModel.h"
#include "support/IsolatedHome.h"
#include "support/TeslaCamFixture.h"
#include "vault/VaultIndex.h"

#include <QAccessible>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QSettings>

// The Drive and Vault screens in the real window, on a drive of 500 events:
// filters and their tokens, bulk and single keeps and dismissals, the keys,
// the recent-driving banner, the Vault's verification detail and removal.
class InboxScreensTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp;
    std::unique_ptr<AppWindowHarness> app;
    QString vaultPath;

    static QString stamp(const QDateTime &t) { return t.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss")); }

    void buildDrive(const QString &root)
    {
        TeslaCamFixture drive(root);
        const QStringList reasons{QStringLiteral("sentry_aware_object_detection"), QStringLiteral("sentry_aware_accel_0.61"),
                                  QStringLiteral("user_interaction_honk"), QStringLiteral("user_interaction_dashcam_icon_tapped"),
                                  QStringLiteral("vehicle_auto_emergency_braking")};
        const QStringList cities{QStringLiteral("Austin"), QStringLiteral("Round Rock"), QString(), QStringLiteral("Taylor")};
        const QDateTime base(QDate(2024, 3, 1), QTime(8, 0), Qt::LocalTime);
        for (int i = 0; i < 480; ++i) {
            const QDateTime t = base.addSecs(qint64(i) * 3 * 3600);
            const bool sentry = i % 2 == 0;
            const QString folder = drive.addEvent(
                sentry ? QStringLiteral("SentryClips") : QStringLiteral("SavedClips"), stamp(t),
                TeslaCamFixture::eventJson(t.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")), reasons[i % reasons.size()],
                                           cities[i % cities.size()], QString::number(30.2 + i * 0.001),
                                           QString::number(-97.7 - i * 0.001)));
            drive.addClip(folder, stamp(t.addSecs(-60)), QStringLiteral("front"), 32 * 1024);
        }
        // Twenty separate stretches of recent driving, long gaps apart.
        const QDateTime recentBase(QDate(2024, 6, 1), QTime(7, 0), Qt::LocalTime);
        for (int i = 0; i < 20; ++i)
            drive.addRecentClip(stamp(recentBase.addSecs(qint64(i) * 5 * 3600)), QStringLiteral("front"), 32 * 1024);
    }

    EventListModel *rows() const { return app->screens.inbox()->rows(); }

    QQuickItem *rowItem(const QString &id)
    {
        auto *list = app->find(QStringLiteral("inboxList"));
        const int index = rows()->indexOf(id);
        if (!list || index < 0)
            return nullptr;
        QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, 1 /* Beginning */));
        QQuickItem *row = shownRow(index);
        return row && app->settle(row) ? row : nullptr;
    }

    // The list's delegate for the row now, made or reused within the call
    // that brought the row into view; null while the row is out of view.
    // (Delegates waiting for reuse keep their last row's name.)
    QQuickItem *shownRow(int index)
    {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(app->find(QStringLiteral("inboxList")), "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row),
                                  Q_ARG(int, index));
        return row;
    }

    void resetInbox()
    {
        app->screens.inbox()->clearAllFilters();
        app->state.setSelectedEventIDsForBulk({});
        app->state.setShowArchiveReport(false);
        app->state.setSelectedSection(SidebarSection::drive);
        auto *toggle = app->find(QStringLiteral("selectToggle"));
        if (toggle && toggle->property("checked").toBool())
            app->click(toggle);
    }

    void waitForKeep()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!app->state.isArchiving(), 20000);
    }

    // A row's context menu opens with a right click; null if the menu or the entry never showed.
    QObject *pick(QQuickItem *opener, const QString &menuName, const QString &entry,
                  Qt::MouseButton button = Qt::RightButton)
    {
        app->click(opener, button);
        QObject *menu = app->find<QObject>(menuName);
        if (!menu || !QTest::qWaitFor([menu] { return menu->property("visible").toBool(); }))
            return nullptr;
        QObject *item = AppWindowHarness::menuEntry(menu, entry);
        if (item)
            QMetaObject::invokeMethod(item, "triggered");
        QMetaObject::invokeMethod(menu, "close");
        return item;
    }

    void rowMenu(const QString &id, const QString &entry)
    {
        QQuickItem *row = rowItem(id);
        QVERIFY(row);
        QVERIFY(pick(row, QStringLiteral("rowMenu"), entry));
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QVERIFY(tmp.isValid());
        // The map may show here too: never the real tile server.
        QSettings().setValue(TileSource::templateKey, QStringLiteral("http://127.0.0.1:9/{z}/{x}/{y}.png"));
        buildDrive(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        vaultPath = tmp.filePath(QStringLiteral("vault"));
        QDir().mkpath(vaultPath);
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        app->window()->resize(1300, 900);
        app->state.setVaultURL(vaultPath);
        app->state.beginScan(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        QTRY_VERIFY_WITH_TIMEOUT(app->state.driveScan() && !app->state.isScanning() && !app->state.isRevalidatingScan(), 60000);
        QVERIFY(!app->state.currentFailure());
        QCOMPARE(app->state.driveScan()->events.size(), size_t(500));
    }

    void init()
    {
        if (!app)
            QSKIP("no window");
        resetInbox();
    }

    void listFollowsTheFiltersAndTokensClearThem()
    {
        QCOMPARE(app->screens.inbox()->content(), QStringLiteral("inbox"));
        QCOMPARE(rows()->count(), 500);
        auto *tokens = app->find(QStringLiteral("filterTokens"));
        QVERIFY(tokens && !tokens->isVisible());

        // The pickers of the filter menu, as the user picks them.
        auto *filterButton = app->find(QStringLiteral("filterButton"));
        QVERIFY(filterButton);
        for (const char *entry : {"pick_honk", "pick_sentry"})
            QVERIFY2(pick(filterButton, QStringLiteral("filterMenu"), QString::fromLatin1(entry), Qt::LeftButton), entry);
        QCOMPARE(app->state.filterReason()->rawValue(), QStringLiteral("honk"));
        QCOMPARE(app->state.filterKind()->rawValue(), QStringLiteral("sentry"));

        // Only Sentry honks remain, in the list and in the window.
        QTRY_VERIFY(rows()->count() > 0 && rows()->count() < 500);
        for (const TeslaEvent &e : rows()->events()) {
            QCOMPARE(e.kind, EventKind::sentry);
            QCOMPARE(e.reason.category, ReasonCategory::honk);
        }
        QTRY_VERIFY(tokens->isVisible());
        QStringList labels;
        for (QQuickItem *t : tokens->childItems())
            if (t->objectName().startsWith(QStringLiteral("token_")))
                labels << t->property("label").toString();
        QCOMPARE(labels, (QStringList{QStringLiteral("Honk save"), QStringLiteral("Sentry")}));
        QCOMPARE(app->screens.inbox()->activeFilterCount(), 2);
        QVERIFY(app->screens.inbox()->filterMenuIcon() != app->ui.icon(QStringLiteral("line.3.horizontal.decrease.circle")));

        // A token's button clears that filter alone.
        QQuickItem *remove = AppWindowHarness::findItem(app->find(QStringLiteral("token_kind")), QStringLiteral("removeToken"));
        QVERIFY(remove);
        app->click(remove);
        QTRY_VERIFY(!app->state.filterKind());
        QVERIFY(app->state.filterReason());
        for (const TeslaEvent &e : rows()->events())
            QCOMPARE(e.reason.category, ReasonCategory::honk);

        // A filter that leaves nothing is an empty list, not the empty-drive screen.
        app->state.setFilterState(TriageState::dismissed);
        QTRY_COMPARE(rows()->count(), 0);
        QCOMPARE(app->screens.inbox()->content(), QStringLiteral("inbox"));

        QVERIFY(pick(filterButton, QStringLiteral("filterMenu"), QStringLiteral("clearAllFilters"), Qt::LeftButton));
        QTRY_COMPARE(rows()->count(), 500);
        QTRY_VERIFY(!tokens->isVisible());
    }

    void aRescanKeepsTheListAndShowsTheCheckingLine()
    {
        auto *line = app->find(QStringLiteral("revalidatingLine"));
        QVERIFY(line && !line->isVisible());
        // Checked at the moment the state turns, however short the check is.
        int seen = 0;
        const QMetaObject::Connection c = connect(&app->state, &AppState::isRevalidatingScanChanged, this, [&] {
            if (!app->state.isRevalidatingScan())
                return;
            ++seen;
            QCOMPARE(app->screens.inbox()->content(), QStringLiteral("inbox"));
            QVERIFY(line->isVisible());
            QCOMPARE(rows()->count(), 500);
        });
        app->state.beginScan(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        QTRY_VERIFY_WITH_TIMEOUT(seen == 1 && !app->state.isScanning() && !app->state.isRevalidatingScan(), 60000);
        disconnect(c);
        QVERIFY(!line->isVisible());
        QCOMPARE(rows()->count(), 500);
    }

    void recentBannerFollowsTheFilters()
    {
        auto *banner = app->find(QStringLiteral("recentDrivingBanner"));
        QTRY_VERIFY(banner && banner->isVisible());
        QCOMPARE(app->screens.inbox()->recentCount(), 20);
        app->state.setFilterKind(EventKind::sentry);
        QTRY_VERIFY(!banner->isVisible());
        app->state.setFilterKind(EventKind::recent);
        QTRY_VERIFY(banner->isVisible());
        app->state.setFilterKind(std::nullopt);
        app->state.setFilterReason(ReasonCategory::impact);
        QTRY_VERIFY(!banner->isVisible());
        app->state.setFilterReason(std::nullopt);
        // Preview opens the first recent stretch. The banner heads the list
        // and scrolls with it: back to the top, where a user finds it.
        QMetaObject::invokeMethod(app->find(QStringLiteral("inboxList")), "positionViewAtBeginning");
        auto *preview = app->find(QStringLiteral("previewRecent"));
        QVERIFY(preview);
        app->click(preview);
        QTRY_VERIFY(app->state.selectedEventID() && app->state.selectedEventID()->startsWith(QStringLiteral("recent|")));

        // "Keep Recent Driving Now" keeps what the list shows: not a dismissed stretch.
        QStringList recent;
        for (const TeslaEvent &e : rows()->events())
            if (e.kind == EventKind::recent)
                recent << e.id();
        QCOMPARE(recent.size(), 20);
        app->state.dismissIDs({recent.last()});
        QTRY_COMPARE(app->screens.inbox()->recentCount(), 19);
        QMetaObject::invokeMethod(app->find(QStringLiteral("inboxList")), "positionViewAtBeginning");
        app->click(app->find(QStringLiteral("keepRecentNow")));
        QTRY_VERIFY(app->state.isArchiving());
        waitForKeep();
        QCOMPARE(int(app->state.lastArchiveReport()->archivedEvents.size()), 19);
        for (const QString &id : recent.mid(0, 19))
            QCOMPARE(app->state.triageState(id).rawValue(), QStringLiteral("kept"));
        QCOMPARE(app->state.triageState(recent.last()).rawValue(), QStringLiteral("dismissed"));
    }

    void bulkKeepTakesTheVisibleTickedRowsOnly()
    {
        auto *toggle = app->find(QStringLiteral("selectToggle"));
        QVERIFY(toggle);
        app->click(toggle);
        QTRY_VERIFY(toggle->property("checked").toBool());
        auto *bulk = app->find(QStringLiteral("bulkActions"));
        QVERIFY(bulk && !bulk->isVisible());

        // Tick three Saved events and one Sentry event through their tick buttons.
        QStringList saved, sentry;
        for (const TeslaEvent &e : rows()->events()) {
            if (e.kind == EventKind::saved && saved.size() < 3 && app->state.triageState(e.id()).rawValue() == QLatin1String("new"))
                saved << e.id();
            if (e.kind == EventKind::sentry && sentry.isEmpty())
                sentry << e.id();
        }
        QVERIFY(rowItem(saved.first()));
        const QPointF firstRowAt = rowItem(saved.first())->mapToScene(QPointF(0, 0));
        for (const QString &id : saved) {
            QQuickItem *row = rowItem(id);
            QVERIFY2(row, qPrintable(id));
            QQuickItem *tick = AppWindowHarness::findItem(row, QStringLiteral("tick"));
            QVERIFY(tick && tick->isVisible());
            app->click(tick);
        }
        QTRY_COMPARE(app->state.selectedEventIDsForBulk().size(), 3);
        // The bulk bar had its room from the start: the rows didn't move under the pointer.
        QCOMPARE(rowItem(saved.first())->mapToScene(QPointF(0, 0)), firstRowAt);
        // In Select mode a tap on the row itself ticks it and opens nothing.
        const auto openBefore = app->state.selectedEventID();
        QQuickItem *sentryRow = rowItem(sentry.first());
        QVERIFY(sentryRow);
        app->click(AppWindowHarness::findItem(sentryRow, QStringLiteral("firstLine")));
        QTRY_COMPARE(app->state.selectedEventIDsForBulk().size(), 4);
        QCOMPARE(app->state.selectedEventID(), openBefore);
        QTRY_VERIFY(bulk->isVisible());
        auto *keep = app->find(QStringLiteral("bulkKeep"));
        QCOMPARE(keep->property("text").toString(), QStringLiteral("Keep 4"));

        // Turning the toggle off and on keeps the ticks.
        app->click(toggle);
        QTRY_VERIFY(!bulk->isVisible());
        app->click(toggle);
        QTRY_VERIFY(bulk->isVisible());
        QCOMPARE(app->state.selectedEventIDsForBulk().size(), 4);

        // The Sentry event is ticked but filtered away: it is not kept.
        app->state.setFilterKind(EventKind::saved);
        QTRY_VERIFY(rows()->indexOf(sentry.first()) < 0);
        QMetaObject::invokeMethod(app->find(QStringLiteral("inboxList")), "positionViewAtBeginning");
        app->shot(QStringLiteral("inbox-filters-and-bulk-selection"));
        app->click(keep);
        QTRY_VERIFY(app->state.selectedEventIDsForBulk().isEmpty());
        waitForKeep();
        QVERIFY(app->state.selectedEventIDsForBulk().isEmpty());
        for (const QString &id : saved)
            QCOMPARE(app->state.triageState(id).rawValue(), QStringLiteral("kept"));
        QCOMPARE(app->state.triageState(sentry.first()).rawValue(), QStringLiteral("new"));

        // The report sheet tells what happened.
        QTRY_VERIFY(app->state.showArchiveReport());
        auto *heading = app->find(QStringLiteral("reportHeading"));
        QVERIFY(heading);
        QTRY_COMPARE(heading->property("text").toString(), QStringLiteral("Backup Complete"));
        app->shot(QStringLiteral("archive-report"));
        app->click(app->find(QStringLiteral("reportDone")));
        QTRY_VERIFY(!app->state.showArchiveReport());
    }

    // A dismissed row leaves the list, returns under its filter and carries no mark; a kept one is marked kept.
    void rowMenuDismissesAndKeeps()
    {
        app->state.setFilterState(TriageState::dismissed);
        const int dismissedBefore = rows()->count();
        app->state.setFilterState(std::nullopt);
        const int before = rows()->count();
        const QString id = rows()->idAt(5);
        rowMenu(id, QStringLiteral("menuDismiss"));
        QTRY_VERIFY(rows()->indexOf(id) < 0);
        QCOMPARE(rows()->count(), before - 1);
        app->state.setFilterState(TriageState::dismissed);
        QTRY_COMPARE(rows()->count(), dismissedBefore + 1);
        QVERIFY(rows()->indexOf(id) >= 0);
        QQuickItem *row = rowItem(id);
        QVERIFY(row);
        QVERIFY(!AppWindowHarness::findItem(row, QStringLiteral("newDot"))->isVisible());
        QVERIFY(!AppWindowHarness::findItem(row, QStringLiteral("keptMark"))->isVisible());

        app->state.setFilterState(std::nullopt);
        QString fresh;
        for (const TeslaEvent &e : rows()->events())
            if (e.kind == EventKind::sentry && app->state.triageState(e.id()).rawValue() == QLatin1String("new")) {
                fresh = e.id();
                break;
            }
        row = rowItem(fresh);
        QVERIFY(row);
        QVERIFY(AppWindowHarness::findItem(row, QStringLiteral("newDot"))->isVisible());
        rowMenu(fresh, QStringLiteral("menuKeep"));
        waitForKeep();
        row = rowItem(fresh);
        QVERIFY(row);
        QTRY_VERIFY(AppWindowHarness::findItem(row, QStringLiteral("keptMark"))->isVisible());
        QVERIFY(!AppWindowHarness::findItem(row, QStringLiteral("newDot"))->isVisible());
        QCOMPARE(row->property("overlayKind").toString(), QStringLiteral("kept"));
    }

    void arrowKeysMoveAndKAndDAct()
    {
        app->state.setSelectedEventID(std::nullopt);
        auto *list = app->find(QStringLiteral("inboxList"));
        QVERIFY(list);
        list->forceActiveFocus();
        QTest::keyClick(app->window(), Qt::Key_Down);
        QTRY_COMPARE(app->state.selectedEventID().value_or(QString()), rows()->idAt(0));
        QTest::keyClick(app->window(), Qt::Key_Down);
        QTest::keyClick(app->window(), Qt::Key_Down);
        QTRY_COMPARE(app->state.selectedEventID().value_or(QString()), rows()->idAt(2));
        QTest::keyClick(app->window(), Qt::Key_Up);
        const QString second = rows()->idAt(1);
        QTRY_COMPARE(app->state.selectedEventID().value_or(QString()), second);
        QTest::keyClick(app->window(), Qt::Key_D);
        QTRY_VERIFY(rows()->indexOf(second) < 0);
        QCOMPARE(app->state.triageState(second).rawValue(), QStringLiteral("dismissed"));
        // Far down the list: the selection scrolls into view.
        const QString far = rows()->idAt(300);
        app->state.setSelectedEventID(far);
        QTRY_VERIFY([&] {
            QQuickItem *row = shownRow(rows()->indexOf(far));
            if (!row)
                return false;
            const double y = row->mapToItem(list, QPointF(0, 0)).y();
            return y >= 0 && y + row->height() <= list->height() + 1;
        }());
        QTest::keyClick(app->window(), Qt::Key_K);
        waitForKeep();
        QCOMPARE(app->state.triageState(rows()->idAt(300)).rawValue(), QStringLiteral("kept"));
    }

    void thumbnailsLoadOffTheGuiThreadAndStayCached()
    {
        QString id;
        for (const TeslaEvent &e : rows()->events())
            if (e.thumbURL) {
                id = e.id();
                break;
            }
        QQuickItem *row = rowItem(id);
        QVERIFY(row);
        auto *picture = AppWindowHarness::findItem(row, QStringLiteral("picture"));
        QVERIFY(picture);
        QTRY_COMPARE(picture->property("status").toInt(), 1 /* Image.Ready */);
        QVERIFY(picture->property("asynchronous").toBool());
        // Back from far away, the picture comes from the cache before the event loop has had a turn to load it.
        auto *list = app->find(QStringLiteral("inboxList"));
        QMetaObject::invokeMethod(list, "positionViewAtEnd");
        QVERIFY(app->waitForFrame());
        const int index = rows()->indexOf(id);
        QVERIFY(!shownRow(index));
        QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, 1 /* Beginning */));
        row = shownRow(index);
        QVERIFY(row);
        picture = AppWindowHarness::findItem(row, QStringLiteral("picture"));
        QVERIFY(picture);
        QCOMPARE(picture->property("status").toInt(), 1 /* Image.Ready */);
    }

    void vaultListShowsVerificationAndRemovesToTheTrash()
    {
        if (app->state.vaultEvents().size() < 2) {
            app->state.keep({app->state.driveScan()->events[10], app->state.driveScan()->events[11]});
            waitForKeep();
            app->state.setShowArchiveReport(false);
        }
        app->state.setSelectedSection(SidebarSection::vault);
        app->state.loadVaultEvents();
        QTRY_VERIFY(app->screens.vault()->rows()->count() >= 2);
        const int before = app->screens.vault()->rows()->count();
        QTRY_VERIFY(app->screens.vault()->summary().startsWith(QString::number(before) + QStringLiteral(" events · ")));
        QVERIFY(app->screens.vault()->summary().endsWith(QStringLiteral(" free on this disk")));

        auto *list = app->find(QStringLiteral("vaultList"));
        QVERIFY(list && list->isVisible());
        const QString id = app->screens.vault()->rows()->idAt(0);
        QQuickItem *row = nullptr;
        QTRY_VERIFY((row = AppWindowHarness::findItem(list, QStringLiteral("eventRow_") + id, true)));

        // The badge opens the detail with file names and digests.
        QQuickItem *badge = nullptr;
        QTRY_VERIFY((badge = AppWindowHarness::findItem(row, QStringLiteral("verificationButton"))) && badge->isVisible());
        app->click(badge); // once the column, laid out as it shows, stands still
        QQuickItem *badgeItem = AppWindowHarness::findItem(row, QStringLiteral("verificationBadge"));
        QVERIFY(badgeItem);
        QObject *popover = badgeItem->findChild<QObject *>(QStringLiteral("verificationPopover"));
        QTRY_VERIFY(popover && popover->property("visible").toBool());
        app->shot(QStringLiteral("vault-verification-popover"));
        const QVariantMap info = app->screens.vault()->verification(id);
        const QVariantList files = info.value(QStringLiteral("files")).toList();
        QVERIFY(!files.isEmpty());
        QCOMPARE(files.first().toMap().value(QStringLiteral("sha256")).toString().size(), 64);
        QVERIFY(info.value(QStringLiteral("archivedLine")).toString().startsWith(QStringLiteral("Archived ")));
        QMetaObject::invokeMethod(popover, "close");

        // Move to Trash… then Cancel leaves everything.
        QObject *item = pick(row, QStringLiteral("vaultRowMenu"), QStringLiteral("menuMoveToTrash"));
        QVERIFY(item);
        QObject *dialog = app->find<QObject>(QStringLiteral("trashConfirmation"));
        QTRY_VERIFY(dialog && dialog->property("visible").toBool());
        auto *message = app->find(QStringLiteral("removalMessage"));
        QVERIFY(message->property("text").toString().endsWith(
            QStringLiteral(" will move to your computer's Trash, where you can still recover it. Nothing on your Tesla "
                           "drive is touched.")));
        QMetaObject::invokeMethod(app->find<QObject>(QStringLiteral("cancelMoveToTrash")), "clicked");
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QCOMPARE(app->screens.vault()->rows()->count(), before);

        // Confirmed: the list shrinks and the folder leaves the Vault (for the Trash, as VaultIndex's test proves).
        QMetaObject::invokeMethod(item, "triggered");
        QTRY_VERIFY(dialog->property("visible").toBool());
        QMetaObject::invokeMethod(app->find<QObject>(QStringLiteral("confirmMoveToTrash")), "clicked");
        QTRY_COMPARE(app->screens.vault()->rows()->count(), before - 1);
        QCOMPARE(app->screens.vault()->rows()->indexOf(id), -1);
        QDirIterator vaultIt(vaultPath, {id.section(QLatin1Char('|'), 1)}, QDir::Dirs, QDirIterator::Subdirectories);
        QVERIFY(!vaultIt.hasNext());
    }

    // One byte changed and one file deleted are found and named; an event's own Verify dates its mark.
    void vaultVerifyFindsChangedAndMissingFilesAndPartKeeps()
    {
        std::vector<TeslaEvent> fresh;
        for (const TeslaEvent &e : app->state.driveScan()->events)
            if (e.kind != EventKind::recent && app->state.triageState(e.id()).rawValue() == QLatin1String("new") && fresh.size() < 4)
                fresh.push_back(e);
        app->state.keep(fresh);
        waitForKeep();
        app->state.setShowArchiveReport(false);

        // As a pulled drive leaves it: the record of the first lists 2 of 3 files.
        VaultIndex index = VaultIndex::load(vaultPath);
        const auto recordOf = [&](const TeslaEvent &e) -> ArchivedEvent & {
            return *std::find_if(index.events.rbegin(), index.events.rend(),
                                 [&](const ArchivedEvent &a) { return a.eventID == e.id(); });
        };
        ArchivedEvent &part = recordOf(fresh[0]);
        part.files.pop_back();
        part.expectedFileCount = 3;
        index.save(vaultPath);
        app->state.setVaultURL(vaultPath); // read again, as at the next start
        app->state.setSelectedSection(SidebarSection::vault);
        auto *list = app->find(QStringLiteral("vaultList"));
        QVERIFY(list);
        // Brought into view first: rows out of view have no item.
        const auto vaultRow = [&](const TeslaEvent &e) -> QQuickItem * {
            const int index = app->screens.vault()->rows()->indexOf(e.id());
            if (index < 0)
                return nullptr;
            QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, 1 /* Beginning */));
            return AppWindowHarness::findItem(list, QStringLiteral("eventRow_") + e.id(), true);
        };
        const auto badgeText = [&](const TeslaEvent &e) {
            QQuickItem *row = vaultRow(e);
            QQuickItem *button = row ? AppWindowHarness::findItem(row, QStringLiteral("verificationButton")) : nullptr;
            return button && button->isVisible() ? button->property("text").toString() : QString();
        };
        QTRY_COMPARE(badgeText(fresh[0]), QStringLiteral("Incomplete — 2 of 3 files"));
        QCOMPARE(badgeText(fresh[1]), QStringLiteral("Verified copy"));
        // Nor does its row call it safely kept.
        const int partRow = app->screens.vault()->rows()->indexOf(fresh[0].id());
        QCOMPARE(app->screens.vault()->rows()->data(app->screens.vault()->rows()->index(partRow),
                                                    EventListModel::OverlayKindRole).toString(),
                 QString());
        // Its detail says what is missing and what to do.
        QQuickItem *partBadge = AppWindowHarness::findItem(vaultRow(fresh[0]), QStringLiteral("verificationButton"));
        QVERIFY(partBadge);
        app->click(partBadge);
        QObject *popover = AppWindowHarness::findItem(vaultRow(fresh[0]), QStringLiteral("verificationBadge"))
                               ->findChild<QObject *>(QStringLiteral("verificationPopover"));
        QTRY_VERIFY(popover && popover->property("visible").toBool());
        QCOMPARE(app->screens.vault()->verification(fresh[0].id()).value(QStringLiteral("title")).toString(),
                 QStringLiteral("Incomplete Copy"));
        app->shot(QStringLiteral("vault-incomplete"));
        QMetaObject::invokeMethod(popover, "close");

        // One byte changed in the second, a clip deleted from the third.
        const ArchivedEvent &changed = recordOf(fresh[1]);
        const QString changedPath = vaultPath + QLatin1Char('/') + changed.relativePath + QLatin1Char('/') + changed.files[0].name;
        const auto flipByte = [&] {
            QFile f(changedPath);
            QVERIFY(f.open(QIODevice::ReadWrite));
            QVERIFY(f.seek(100));
            const char c = f.read(1).at(0);
            QVERIFY(f.seek(100));
            f.write(QByteArray(1, char(c ^ 0x20)));
        };
        flipByte();
        const ArchivedEvent &missing = recordOf(fresh[2]);
        QVERIFY(QFile::remove(vaultPath + QLatin1Char('/') + missing.relativePath + QLatin1Char('/') + missing.files[0].name));

        auto *notice = app->find(QStringLiteral("vaultNotice"));
        QVERIFY(notice && !notice->isVisible());
        auto *verify = app->find(QStringLiteral("verifyVault"));
        QVERIFY(verify && verify->isVisible());
        app->click(verify);
        QTRY_VERIFY_WITH_TIMEOUT(!app->state.isVerifyingVault() && app->state.verificationLog().wholeVaultCheckedAt, 30000);
        QTRY_COMPARE(badgeText(fresh[1]), QStringLiteral("Changed since it was kept"));
        QCOMPARE(badgeText(fresh[2]), QStringLiteral("Missing"));
        QCOMPARE(badgeText(fresh[0]), QStringLiteral("Incomplete — 2 of 3 files"));
        const QString today = Date::now().formatLocal(QStringLiteral("d MMM yyyy"));
        QCOMPARE(badgeText(fresh[3]), QStringLiteral("Verified ") + today);
        // The notice at the top names both files.
        QTRY_VERIFY(notice->isVisible());
        const QString message = app->find(QStringLiteral("noticeMessage"))->property("text").toString();
        QVERIFY2(message.contains(changed.files[0].name + QStringLiteral(" has changed")), qPrintable(message));
        QVERIFY2(message.contains(missing.files[0].name + QStringLiteral(" is missing")), qPrintable(message));
        // The detail names the file and what happened to it.
        QVariantMap info = app->screens.vault()->verification(fresh[1].id());
        QCOMPARE(info.value(QStringLiteral("files")).toList().at(0).toMap().value(QStringLiteral("problem")).toString(),
                 QStringLiteral("Changed since it was kept"));
        QMetaObject::invokeMethod(list, "positionViewAtBeginning");
        app->shot(QStringLiteral("vault-changed-notice"));

        // Put right, the event's own Verify finds it whole again and dates its mark.
        flipByte();
        QQuickItem *row = vaultRow(fresh[1]);
        QVERIFY(row);
        QVERIFY(pick(row, QStringLiteral("vaultRowMenu"), QStringLiteral("menuVerify")));
        QTRY_COMPARE(badgeText(fresh[1]), QStringLiteral("Verified ") + today);
        // Still one event changed or gone: the missing one.
        QTRY_VERIFY(app->find(QStringLiteral("noticeTitle"))->property("text").toString().startsWith(QStringLiteral("A kept event")));
        app->state.setSelectedSection(SidebarSection::drive);
    }

    void progressOverlayStandsOverDriveAndMapAndCancels()
    {
        std::vector<TeslaEvent> batch, second;
        for (const TeslaEvent &e : app->state.driveScan()->events) {
            if (app->state.triageState(e.id()).rawValue() != QLatin1String("new"))
                continue;
            if (batch.size() < 120)
                batch.push_back(e);
            else if (second.size() < 60)
                second.push_back(e);
        }
        auto *overlay = app->find(QStringLiteral("archiveProgressOverlay"));
        QVERIFY(overlay && !overlay->isVisible());
        // The picture is taken a third of the way through, from inside the run.
        const auto taken = std::make_shared<bool>(false);
        const QMetaObject::Connection midway = connect(&app->state, &AppState::archiveProgressChanged, this, [this, taken] {
            const auto &p = app->state.archiveProgress();
            if (!*taken && p && p->eventsCompleted >= 40) {
                *taken = true;
                app->shotNow(QStringLiteral("archive-progress-overlay"));
            }
        });
        app->state.keep(batch);
        QVERIFY(overlay->isVisible());
        auto *line = app->find(QStringLiteral("archiveProgressLine"));
        QCOMPARE(line->property("text").toString(), QStringLiteral("0 of 120 events"));
        // Over the map too, and not over the Vault.
        app->state.setSelectedSection(SidebarSection::map);
        QVERIFY(overlay->isVisible());
        app->state.setSelectedSection(SidebarSection::vault);
        QVERIFY(!overlay->isVisible());
        app->state.setSelectedSection(SidebarSection::drive);
        waitForKeep();
        disconnect(midway);
        QTRY_VERIFY(!overlay->isVisible());
        app->state.setShowArchiveReport(false);

        // Cancel at once: the run stops at its first check and says so.
        app->state.keep(second);
        auto *cancel = app->find(QStringLiteral("cancelArchive"));
        QVERIFY(cancel && cancel->isVisible());
        QMetaObject::invokeMethod(cancel, "clicked");
        waitForKeep();
        QVERIFY(app->state.lastArchiveReport() && app->state.lastArchiveReport()->cancelled);
        QVERIFY(app->state.lastArchiveReport()->archivedEvents.size() < second.size());
        QCOMPARE(app->screens.vault()->report().value(QStringLiteral("heading")).toString(), QStringLiteral("Backup Stopped"));
        QTRY_VERIFY(app->state.showArchiveReport());
        app->state.setShowArchiveReport(false);
    }

    void sampleFootageFillsTheInboxAndEjects()
    {
        if (!AppState::sampleFootageURL())
            QSKIP("the sample footage is not built (target sample_footage)");
        app->state.loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(app->state.isSampleMode() && app->state.driveScan() && !app->state.isScanning(), 30000);
        QCOMPARE(app->screens.inbox()->content(), QStringLiteral("inbox"));
        QTRY_COMPARE(rows()->count(), int(app->state.visibleInboxEvents().size()));
        QVERIFY(rows()->count() > 0);
        QQuickItem *banner = app->find(QStringLiteral("sampleModeBanner"));
        QVERIFY(banner && banner->isVisible());

        // Every row has its two lines; the cars' own pictures load.
        int pictures = 0;
        const std::vector<TeslaEvent> events = rows()->events();
        for (const TeslaEvent &e : events) {
            QQuickItem *row = rowItem(e.id());
            QVERIFY(row);
            QVERIFY(!AppWindowHarness::findItem(row, QStringLiteral("secondLine"))->property("text").toString().isEmpty());
            // One accessibility element, named by reason, time and place.
            QAccessibleInterface *access = QAccessible::queryAccessibleInterface(row);
            QVERIFY(access);
            QCOMPARE(access->text(QAccessible::Name), InboxPresenter::accessibilityLabel(e));
            if (e.thumbURL) {
                QQuickItem *picture = AppWindowHarness::findItem(row, QStringLiteral("picture"));
                QTRY_COMPARE(picture->property("status").toInt(), 1);
                ++pictures;
            }
        }
        QVERIFY(pictures > 0);
        app->shot(QStringLiteral("inbox-sample-footage"));
        // Rows stand under the day they were recorded.
        QVERIFY(AppWindowHarness::findItem(app->window()->contentItem(),
                                           QStringLiteral("dayHeading_") + InboxPresenter::dayHeading(events.front().timestamp, QDate::currentDate())));
        // Another drive is one click away from the sample.
        QQuickItem *switchDrive = app->find(QStringLiteral("switchDrive"));
        QVERIFY(switchDrive && switchDrive->isVisible());

        // With no drive of its own to go back to, Eject leads to the wizard.
        QMetaObject::invokeMethod(banner, "eject");
        QTRY_VERIFY(!app->state.isSampleMode());
        QTRY_VERIFY(!banner->isVisible());
        QTRY_VERIFY(app->state.showOnboarding());
        app->state.setShowOnboarding(false);
    }

    void cleanupTestCase() { app.reset(); }
};

KEELHOLD_APP_TEST_MAIN(InboxScreensTest)

#include "tst_inboxscreens.moc"
