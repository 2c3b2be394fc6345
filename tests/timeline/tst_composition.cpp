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
    void mediaTimeUsesTimescale600()
    {
        QCOMPARE(MediaTime::fromSeconds(1.0).ticks(), 600);
        QCOMPARE(MediaTime::fromSeconds(0.25).ticks(), 150);
        QCOMPARE(MediaTime::fromSeconds(1.0 / 36).ticks(), 17); // rounds to the nearest tick
        QCOMPARE(MediaTime::fromTicks(900).seconds(), 1.5);
        QVERIFY(MediaTime::fromSeconds(2) > MediaTime::fromSeconds(1.999));
    }

    void insertingAtOrPastTheEndAppendsWithAGap()
    {
        Composition c;
        const auto t = c.addMutableTrack();
        QVERIFY(t);
        auto &track = c.track(*t);
        QVERIFY(track.trackID != 0);
        QVERIFY(track.insertTimeRange("a.mp4", s(0), s(60.5), s(0)));
        QVERIFY(track.insertTimeRange("c.mp4", s(0), s(60), s(180))); // minute 2 missing
        QCOMPARE(track.segments.size(), size_t(2));
        QCOMPARE(track.segments[1].timelineStart, s(180));
        QCOMPARE(track.end(), s(240));
        QCOMPARE(c.duration(), s(240));
        // A camera that starts late keeps its empty stretch in front.
        Composition late;
        late.addMutableTrack();
        QVERIFY(late.track(0).insertTimeRange("x.mp4", s(0), s(60), s(120)));
        QCOMPARE(late.track(0).segments[0].timelineStart, s(120));
        QCOMPARE(late.duration(), s(180));
    }

    void insertingBeforeTheEndSplicesAndMovesLaterMedia()
    {
        Composition c;
        c.addMutableTrack();
        auto &track = c.track(0);
        // A clip a little longer than a minute, then the next minute's clip at 60:
        // the overhang is split off and moved behind the new clip.
        QVERIFY(track.insertTimeRange("a.mp4", s(0), s(60.5), s(0)));
        QVERIFY(track.insertTimeRange("b.mp4", s(0), s(60), s(60)));
        QCOMPARE(track.segments.size(), size_t(3));
        QCOMPARE(track.segments[0], (Composition::Segment{"a.mp4", s(0), s(60), s(0)}));
        QCOMPARE(track.segments[1], (Composition::Segment{"b.mp4", s(0), s(60), s(60)}));
        QCOMPARE(track.segments[2], (Composition::Segment{"a.mp4", s(60), s(0.5), s(120)}));
        QCOMPARE(track.end(), s(120.5));

        // Inserting into an empty stretch moves what follows it, too.
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
    }

    void rejectsEmptyOrNegativeRanges()
    {
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
