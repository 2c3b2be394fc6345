#include "drive/ClipCalendar.h"
#include "drive/EventJSONPayload.h"
#include "drive/ReasonMapper.h"

#include <QtTest>

class EventMetadataTest : public QObject {
    Q_OBJECT

private:
    static EventJSONPayload decode(const char *json)
    {
        const auto p = EventJSONPayload::decode(QByteArray(json));
        if (!p)
            qFatal("expected %s to decode", json);
        return *p;
    }

private Q_SLOTS:
    void initTestCase()
    {
        // A zone with daylight saving makes local-time mistakes visible.
        qputenv("TZ", "America/Chicago");
        tzset();
    }

    // The car's own form, every value a string, is read in the parser's test.
    void flexibleDoublesOnTheGlobe()
    {
        QCOMPARE(decode(R"({"est_lat":"30.5"})").estLat, decode(R"({"est_lat":30.5})").estLat);
        QCOMPARE(decode(R"({"est_lat":"-1e-3"})").estLat, std::optional<double>(-0.001));
        for (const char *bad : {R"({"est_lat":"north"})", R"({"est_lat":" 30.5"})", R"({"est_lat":"30.5 "})",
                                R"({"est_lat":"30,5"})", R"({"est_lat":""})", R"({"est_lat":null})",
                                R"({"est_lat":true})", R"({"est_lat":[1]})", R"({"est_lat":"1,000"})"})
            QVERIFY2(!decode(bad).estLat, bad);

        // Coordinates off the globe are absent.
        const auto p = decode(R"({"est_lat":"90","est_lon":-180})");
        QCOMPARE(std::pair(p.estLat, p.estLon), std::pair(std::optional<double>(90.0), std::optional<double>(-180.0)));
        for (const char *bad : {R"({"est_lat":"-97.4812","est_lon":"181"})", R"({"est_lat":"nan","est_lon":"-inf"})",
                                R"({"est_lat":1e300,"est_lon":-1e300})", R"({"est_lat":"NaN","est_lon":"infinity"})"})
            QVERIFY2(!decode(bad).estLat && !decode(bad).estLon, bad);
    }

    // The camera as an integer or a string; other wrong types cost only their field.
    void wrongTypesCostOnlyTheirField()
    {
        QCOMPARE((QList<std::optional<QString>>{decode(R"({"camera":0})").cameraRaw, decode(R"({"camera":12})").cameraRaw,
                                                decode(R"({"camera":"front"})").cameraRaw}),
                 (QList<std::optional<QString>>{"0", "12", "front"}));
        QVERIFY(!decode(R"({"camera":1.5})").cameraRaw && !decode(R"({"camera":false})").cameraRaw);
        const auto p = decode(R"({"timestamp":5,"city":["x"],"reason":{"a":1},"est_lon":"7.25"})");
        QVERIFY(!p.timestampRaw && !p.city && !p.reason);
        // No reason at all is an unknown one, with no text of the car's to show.
        const PlainReason absent = ReasonMapper::map(p.reason);
        QCOMPARE(std::pair(absent.category, absent.raw),
                 std::pair(ReasonCategory(ReasonCategory::unknown), std::optional<QString>()));
        QCOMPARE(p.estLon, std::optional<double>(7.25));
        // Decoding fails only for what isn't an object.
        QVERIFY(EventJSONPayload::decode("{}"));
        for (const char *notAnObject : {"[1,2]", "{not json", "", "\"text\""})
            QVERIFY2(!EventJSONPayload::decode(notAnObject), notAnObject);
    }

    void timestampRules()
    {
        auto parsed = [](const char *t) {
            EventJSONPayload p;
            p.timestampRaw = QString::fromLatin1(t);
            return p.parsedTimestamp();
        };
        // 2026-07-21T02:11:05Z, an absolute moment.
        const double utc = 806292665.0;
        QCOMPARE(parsed("2026-07-21T02:11:05Z"), std::optional<Date>(Date(utc)));
        QCOMPARE(parsed("2026-07-21T04:11:05+02:00"), std::optional<Date>(Date(utc)));
        // Local (America/Chicago is UTC-5 in July).
        const Date local(utc + 5 * 3600);
        QCOMPARE(parsed("2026-07-21T02-11-05"), std::optional<Date>(local));
        QCOMPARE(parsed("2026-07-21_02-11-05"), std::optional<Date>(local));
        for (const char *bad : {"yesterday", "2026/07/21 02:11:05", ""})
            QVERIFY2(!parsed(bad), bad);
        EventJSONPayload none;
        QVERIFY(!none.parsedTimestamp());
    }

    void reasonMapping_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<int>("category");
        QTest::addColumn<double>("accel"); // 0: none
        QTest::newRow("dashcam icon") << "user_interaction_dashcam_icon_tapped" << int(ReasonCategory::manualSave) << 0.0;
        QTest::newRow("dashcam anything") << "user_interaction_dashcamXYZ" << int(ReasonCategory::manualSave) << 0.0;
        QTest::newRow("accel value") << "sentry_aware_accel_0.61" << int(ReasonCategory::impact) << 0.61;
        QTest::newRow("accel bare") << "sentry_aware_accel" << int(ReasonCategory::impact) << 0.0;
        QTest::newRow("accel letters") << "sentry_aware_accel_abc" << int(ReasonCategory::impact) << 0.0;
        QTest::newRow("panic") << "sentry_panic_mode" << int(ReasonCategory::panic) << 0.0;
        QTest::newRow("case matters") << "USER_INTERACTION_HONK" << int(ReasonCategory::unknown) << 0.0;
        QTest::newRow("handle") << "sentry_locked_handle_pulled" << int(ReasonCategory::unknown) << 0.0;
        QTest::newRow("aeb") << "vehicle_auto_emergency_braking" << int(ReasonCategory::unknown) << 0.0;
        QTest::newRow("honk prefix only") << "user_interaction_honk2" << int(ReasonCategory::unknown) << 0.0;
        QTest::newRow("empty") << "" << int(ReasonCategory::unknown) << 0.0;
    }

    void reasonMapping()
    {
        QFETCH(QString, raw);
        QFETCH(int, category);
        QFETCH(double, accel);
        const PlainReason r = ReasonMapper::map(raw);
        QCOMPARE(int(r.category.value()), category);
        QCOMPARE(r.raw, std::optional<QString>(raw));
        QCOMPARE(r.accelValue, accel ? std::optional(accel) : std::nullopt);
    }
};

QTEST_GUILESS_MAIN(EventMetadataTest)
#include "tst_eventmetadata.moc"
