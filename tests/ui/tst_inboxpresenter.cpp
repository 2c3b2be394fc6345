#include "EventMapPresenter.h"
#include "InboxPresenter.h"

#include <QtTest>

// The inbox and map rules without a window: the column's choice, the row texts with
// every fallback, pins and the tile maths.
class InboxPresenterTest : public QObject {
    Q_OBJECT

    static TeslaEvent event(EventKind kind, const QString &folder)
    {
        TeslaEvent e;
        e.kind = kind;
        e.folderName = folder;
        e.folderURL = QStringLiteral("/drive/TeslaCam/") + folder;
        e.timestamp = Date(806'000'000.0);
        e.missingEventJSON = false;
        return e;
    }

    static void addClipBytes(TeslaEvent &e, qint64 bytes)
    {
        ClipRef c;
        c.url = e.folderURL + QStringLiteral("/clip") + QString::number(e.clips.size()) + QStringLiteral(".mp4");
        c.fileSize = bytes;
        e.clips.push_back(c);
    }

private Q_SLOTS:
    void columnChoiceTakesTheFirstThatHolds()
    {
        using namespace InboxPresenter;
        // A failure hides even a filled scan; scanning beats a missing scan.
        QCOMPARE((QList{columnContent(true, true, true, 10), columnContent(false, true, true, 10),
                        columnContent(false, true, false, 0), columnContent(false, false, false, 0),
                        columnContent(false, false, true, 0), columnContent(false, false, true, 1)}),
                 (QList{ColumnContent::failure, ColumnContent::scanning, ColumnContent::scanning, ColumnContent::noDrive,
                        ColumnContent::emptyDrive, ColumnContent::inbox}));
    }

    void secondLineFallsBackInOrder()
    {
        using namespace InboxPresenter;
        TeslaEvent e = event(EventKind::sentry, QStringLiteral("2026-07-21_02-11-05"));
        // Nothing known and the details file present: one space keeps the row's height.
        QCOMPARE(secondLine(e, true), QStringLiteral(" "));
        QVERIFY(textBlockToolTip(e).isEmpty());

        e.missingEventJSON = true;
        QCOMPARE(secondLine(e, true), QStringLiteral("Details limited — footage intact"));
        QVERIFY(textBlockToolTip(e).startsWith(QStringLiteral("Your car didn't write a details file")));

        addClipBytes(e, 1024 * 1024);
        addClipBytes(e, 1024 * 1024);
        const QString size = byteCount(2 * 1024 * 1024);
        QCOMPARE(secondLine(e, true), size);
        // Without the size option only the fallback remains.
        QCOMPARE(secondLine(e, false), QStringLiteral("Details limited — footage intact"));

        e.city = QStringLiteral("Oslo");
        QCOMPARE(secondLine(e, true), QStringLiteral("Oslo · ") + size);
        QCOMPARE(secondLine(e, false), QStringLiteral("Oslo"));

        // Clips of zero bytes give no size.
        TeslaEvent empty = event(EventKind::saved, QStringLiteral("x"));
        addClipBytes(empty, 0);
        QCOMPARE(secondLine(empty, true), QStringLiteral(" "));
    }

    void accessibilityAndTimestamps()
    {
        using namespace InboxPresenter;
        TeslaEvent e = event(EventKind::sentry, QStringLiteral("a"));
        e.reason.category = ReasonCategory::impact;
        const QString longTime = longTimestamp(e);
        // The date with its year, then the time to the second.
        const QString year = QString::number(e.timestamp.toLocalDateTime().date().year());
        QVERIFY(longTime.contains(year));
        QVERIFY(longTime.contains(QRegularExpression(QStringLiteral("^[A-Z][a-z]+day.* at \\d{1,2}:\\d\\d:\\d\\d [AP]M$"))));
        QVERIFY(rowTimestamp(e).contains(QRegularExpression(QStringLiteral("^[A-Z][a-z]{2} \\d{1,2}:\\d\\d [AP]M$"))));
        QCOMPARE(accessibilityLabel(e), e.reason.label() + QStringLiteral(", ") + longTime);
        e.city = QStringLiteral("Bergen");
        QCOMPARE(accessibilityLabel(e), e.reason.label() + QStringLiteral(", ") + longTime + QStringLiteral(", Bergen"));
        QCOMPARE(reasonChipAccessibilityLabel(e), QStringLiteral("Reason: ") + e.reason.label());
    }

    void dayHeadingsNameTheDay()
    {
        using namespace InboxPresenter;
        const QDateTime noon(QDate(2025, 6, 16), QTime(12, 0));
        const QDate today = noon.date();
        QCOMPARE(dayHeading(Date::fromQDateTime(noon), today), QStringLiteral("Today"));
        // Just after midnight is still today; just before is yesterday.
        QCOMPARE(dayHeading(Date::fromQDateTime(QDateTime(today, QTime(0, 0, 1))), today), QStringLiteral("Today"));
        QCOMPARE(dayHeading(Date::fromQDateTime(QDateTime(today, QTime(0, 0)).addSecs(-1)), today), QStringLiteral("Yesterday"));
        const QString older = dayHeading(Date::fromQDateTime(noon.addDays(-2)), today);
        for (const char *part : {"Saturday", "June", "2025", "14"})
            QVERIFY2(older.contains(QLatin1String(part)), part);
    }

    void mapSectionsAndPins()
    {
        using namespace EventMapPresenter;
        TeslaEvent located = event(EventKind::sentry, QStringLiteral("a"));
        located.latitude = 59.9;
        located.longitude = 10.7;
        TeslaEvent halfLocated = event(EventKind::saved, QStringLiteral("b"));
        halfLocated.latitude = 60.0; // latitude without longitude gets no pin
        TeslaEvent vaultOnly = event(EventKind::saved, QStringLiteral("c"));
        vaultOnly.latitude = 61.0;
        vaultOnly.longitude = 11.0;

        auto all = allEvents({located, halfLocated}, {vaultOnly, located});
        QCOMPARE(all.size(), size_t(3)); // an event on the drive and in the Vault stands once
        auto s = sections(all);
        QCOMPARE(s.size(), size_t(2));
        QCOMPARE(s[0].events.size(), size_t(2));
        QCOMPARE(s[1].events[0].folderName, QStringLiteral("b"));

        s = sections(allEvents({}, {vaultOnly}));
        QCOMPARE(s.size(), size_t(1));
        QCOMPARE(s[0].events.size(), size_t(1));
        QVERIFY(sections({}).empty());

        QCOMPARE(pinTint(vaultOnly), QStringLiteral("accent"));
    }

    void mercatorRoundTripsAndFits()
    {
        using namespace EventMapPresenter;
        QCOMPARE(project(0, 0, 0), QPointF(128, 128));
        QCOMPARE(project(0, -180, 1).x(), 0.0);
        for (auto [lat, lon] : {std::pair{59.91, 10.75}, {-33.86, 151.2}, {0.0, 0.0}, {37.77, -122.42}}) {
            const QPointF back = unproject(project(lat, lon, 12.5), 12.5);
            QVERIFY(qAbs(back.x() - lon) < 1e-9 && qAbs(back.y() - lat) < 1e-9);
        }
        // Poles are clamped, not infinite.
        QVERIFY(std::isfinite(project(90, 0, 3).y()));

        // Every point lands inside the view with the margin.
        const std::vector<QPointF> pts{{59.91, 10.75}, {60.39, 5.32}, {63.43, 10.39}};
        const View v = fitting(pts, 800, 600, 48);
        const QPointF c = project(v.centerLatitude, v.centerLongitude, v.zoom);
        for (const QPointF &p : pts) {
            const QPointF q = project(p.x(), p.y(), v.zoom) - c;
            QVERIFY(qAbs(q.x()) <= 400 - 48 + 1e-6 && qAbs(q.y()) <= 300 - 48 + 1e-6);
        }
        const View one = fitting({{59.91, 10.75}}, 800, 600);
        QCOMPARE(one.zoom, 16.0);
        QVERIFY(qAbs(one.centerLatitude - 59.91) < 1e-9);
    }
};

QTEST_GUILESS_MAIN(InboxPresenterTest)
#include "tst_inboxpresenter.moc"
