#include "timeline/Composition.h"
#include "timeline/MediaTime.h"

#include <QtTest>

namespace {
MediaTime s(double seconds)
{
    return MediaTime::fromSeconds(seconds);
}
} // namespace

class TestComposition : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Appending, gaps and a clip spliced into the one before are played
    // through real clips in the telemetry timeline's test; here the rest.
    void insertingMovesWhatFollowsAndRefusesEmptyRanges()
    {
        Composition g;
        g.addMutableTrack();
        auto &gap = g.track(0);
        QVERIFY(gap.insertTimeRange("a.mp4", s(0), s(10), s(0)));
        QVERIFY(gap.insertTimeRange("c.mp4", s(0), s(10), s(30)));
        QVERIFY(gap.insertTimeRange("b.mp4", s(0), s(5), s(15)));
        QCOMPARE(gap.segments.size(), size_t(3));
        QCOMPARE(gap.segments[1].file, QString("b.mp4"));
        QCOMPARE(gap.segments[2].timelineStart, s(35));

        // At the very start: everything moves.
        QVERIFY(gap.insertTimeRange("z.mp4", s(0), s(1), s(0)));
        QCOMPARE(gap.segments[0].file, QString("z.mp4"));
        QCOMPARE(gap.segments[1].timelineStart, s(1));

        // Empty or negative ranges are refused and change nothing.
        Composition c;
        c.addMutableTrack();
        QVERIFY(!c.track(0).insertTimeRange("a.mp4", s(0), s(0), s(0)));
        QVERIFY(!c.track(0).insertTimeRange("a.mp4", s(0), s(-1), s(0)));
        QVERIFY(!c.track(0).insertTimeRange("a.mp4", s(0), s(1), s(-1)));
        QVERIFY(c.track(0).segments.empty());
        QCOMPARE(c.duration(), MediaTime::zero());
    }
};

QTEST_GUILESS_MAIN(TestComposition)
#include "tst_composition.moc"
