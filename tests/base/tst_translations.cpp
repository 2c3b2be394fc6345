#include "base/Translations.h"
#include "support/CliRun.h"
#include "support/IsolatedHome.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    bool numerus = false;
    QString type; // of the translation: "", "unfinished", "vanished", "obsolete"
    QStringList forms;

    QString key() const { return context + QChar(0) + source + QChar(0) + comment; }
};

std::vector<Message> readTs(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::vector<Message> out;
    QXmlStreamReader xml(&file);
    QString context;
    Message m;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            m = Message{context, {}, {}, xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes"), {}, {}};
        } else if (name == QLatin1String("source")) {
            m.source = xml.readElementText();
        } else if (name == QLatin1String("comment")) {
            m.comment = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            m.type = xml.attributes().value(QLatin1String("type")).toString();
            if (m.numerus) {
                while (xml.readNextStartElement())
                    m.forms << xml.readElementText();
            } else {
                m.forms << xml.readElementText();
            }
            out.push_back(m);
        }
    }
    return out;
}

// %1…%99 and %n, as QString::arg and tr() fill them.
QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression marker(QStringLiteral("%(\\d{1,2}|n)"));
    QSet<QString> found;
    for (const auto &m : marker.globalMatch(text))
        found.insert(m.captured(0));
    return found;
}

const QString tsFolder = QStringLiteral(KEELHOLD_SOURCE_DIR "/translations");

} // namespace

// The shipped languages are whole, say what the English says, and are the
// ones a person's system asks for.
class TestTranslations : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyLanguageIsCompleteAndKeepsItsPlaceholders_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Translations::shipped())
            QTest::newRow(qPrintable(language)) << language;
    }
    void everyLanguageIsCompleteAndKeepsItsPlaceholders()
    {
        QFETCH(QString, language);
        const std::vector<Message> messages = readTs(tsFolder + QStringLiteral("/keelhold_%1.ts").arg(language));
        QVERIFY(messages.size() > 500);
        QStringList faults;
        for (const Message &m : messages) {
            const QString where = m.context + QStringLiteral(": ") + m.source.left(60);
            if (!m.type.isEmpty() || m.forms.isEmpty()
                || std::any_of(m.forms.begin(), m.forms.end(), [](const QString &f) { return f.trimmed().isEmpty(); })) {
                faults << QStringLiteral("untranslated — ") + where;
                continue;
            }
            QSet<QString> wanted = placeholders(m.source);
            // A singular form may say the number in words ("eine Datei").
            const bool numbered = wanted.remove(QStringLiteral("%n"));
            for (const QString &form : m.forms) {
                const QSet<QString> there = placeholders(form);
                if (!there.contains(wanted) || (!m.numerus && there.contains(QStringLiteral("%n"))))
                    faults << QStringLiteral("placeholders — ") + where + QStringLiteral(" → ") + form.left(60);
            }
            if (numbered && !placeholders(m.forms.last()).contains(QStringLiteral("%n")))
                faults << QStringLiteral("drops %n — ") + where;
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    // The files hold every text of the sources and nothing else: a text added
    // without running scripts/update-translations fails here.
    void theFilesFollowTheSources()
    {
        QTemporaryDir dir;
        const QString fresh = dir.filePath(QStringLiteral("now.ts"));
        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(KEELHOLD_SOURCE_DIR));
        lupdate.start(QStringLiteral(KEELHOLD_LUPDATE_PATH),
                      {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"), QStringLiteral("-I"), QStringLiteral("src"),
                       QStringLiteral("-extensions"), QStringLiteral("cpp,h,qml"), QStringLiteral("src"), QStringLiteral("data"),
                       QStringLiteral("-ts"), fresh});
        QVERIFY(lupdate.waitForFinished(120000));
        QCOMPARE(lupdate.exitCode(), 0);
        QSet<QString> now;
        for (const Message &m : readTs(fresh))
            now.insert(m.key());
        QVERIFY(now.size() > 500);
        for (const QString &language : Translations::shipped()) {
            QSet<QString> shipped;
            for (const Message &m : readTs(tsFolder + QStringLiteral("/keelhold_%1.ts").arg(language)))
                shipped.insert(m.key());
            QStringList missing;
            for (const QString &key : now - shipped)
                missing << key.section(QChar(0), 0, 1).replace(QChar(0), QStringLiteral(": "));
            QVERIFY2(missing.isEmpty(), qPrintable(language + QStringLiteral(" lacks:\n") + missing.join(QLatin1Char('\n'))));
            QCOMPARE(shipped.size(), now.size());
        }
    }

    // The system's language picks the file; English stands where none ships,
    // and English plurals are right without any other language.
    void theSystemLanguageDecides()
    {
        QCOMPARE(Translations::shipped(),
                 (QStringList{QStringLiteral("de"), QStringLiteral("es"), QStringLiteral("fr"), QStringLiteral("nb"),
                              QStringLiteral("nl"), QStringLiteral("zh_CN")}));
        const auto kept = [] { return QCoreApplication::translate("KeepSummary", "Footage kept"); };
        QCOMPARE(Translations::install(QLocale(QLocale::German, QLocale::Austria)), QStringLiteral("de"));
        QVERIFY(kept() != QStringLiteral("Footage kept"));
        QCOMPARE(Translations::install(QLocale(QLocale::Chinese, QLocale::China)), QStringLiteral("zh_CN"));
        QVERIFY(kept() != QStringLiteral("Footage kept"));
        QCOMPARE(Translations::install(QLocale(QLocale::Portuguese)), QStringLiteral("en"));
        QCOMPARE(kept(), QStringLiteral("Footage kept"));
        QCOMPARE(QCoreApplication::translate("KeepSummary", "Kept %n new events from %1 \u2014 %2, all verified", nullptr, 1),
                 QStringLiteral("Kept 1 new event from %1 \u2014 %2, all verified"));

        // The tool as a person runs it: LANGUAGE first, then the locale.
        const auto helpIn = [](const QString &language, const QString &lang) {
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("LANGUAGE"), language);
            env.insert(QStringLiteral("LANG"), lang);
            env.remove(QStringLiteral("LC_ALL"));
            env.remove(QStringLiteral("LC_MESSAGES"));
            return QString::fromUtf8(CliRun::run({QStringLiteral("--help")}, env).out);
        };
        const QString english = helpIn(QString(), QStringLiteral("C.UTF-8"));
        QVERIFY(english.contains(QStringLiteral("Show the options of a command.")));
        Translations::install(QLocale(QLocale::German));
        const QString german = QCoreApplication::translate("CliOutput", "Show the options of a command.");
        Translations::install(QLocale(QLocale::English));
        QVERIFY(helpIn(QStringLiteral("de"), QStringLiteral("C.UTF-8")).contains(german));
        QVERIFY(helpIn(QString(), QStringLiteral("de_DE.UTF-8")).contains(german));
        QVERIFY(helpIn(QStringLiteral("pt_BR:de"), QStringLiteral("C.UTF-8")).contains(german));
        QCOMPARE(helpIn(QStringLiteral("pt_BR"), QStringLiteral("C.UTF-8")), english);
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
