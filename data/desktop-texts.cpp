// Writes the desktop entry and the AppStream file with their texts in every
// shipped language, taken from the program's own translations, so the menu
// speaks the language the window does. Run by the build.
//
//   desktop-texts DESKTOP_IN DESKTOP_OUT METAINFO_IN METAINFO_OUT QM...
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include <cstdio>

namespace {

// The English texts, as the two files hold them; lupdate takes them from here.
const char *const context = "DesktopEntry";
const char *const genericName = QT_TRANSLATE_NOOP("DesktopEntry", "Tesla Footage Viewer");
const char *const comment = QT_TRANSLATE_NOOP("DesktopEntry", "Review the footage your Tesla recorded and keep what matters");
//: Search words for the desktop's menu, each ending in a semicolon; keep the English ones and add your language's
const char *const keywords = QT_TRANSLATE_NOOP("DesktopEntry", "Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;");
const char *const summary = QT_TRANSLATE_NOOP("DesktopEntry", "Review and keep your Tesla's camera footage");

QString read(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

bool write(const QString &path, const QString &text)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(text.toUtf8()) >= 0;
}

QString xmlEscaped(QString s)
{
    return s.replace(QLatin1Char('&'), QLatin1String("&amp;")).replace(QLatin1Char('<'), QLatin1String("&lt;"));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 5) {
        std::fputs("usage: desktop-texts DESKTOP_IN DESKTOP_OUT METAINFO_IN METAINFO_OUT QM...\n", stderr);
        return 64;
    }
    QString desktop = read(args[1]);
    QString metainfo = read(args[3]);
    const QString summaryLine = QStringLiteral("<summary>%1</summary>").arg(xmlEscaped(QString::fromUtf8(summary)));
    // The English here and in the files must be the same, or nothing matches.
    for (const auto &[key, text] : {std::pair{"GenericName", genericName}, {"Comment", comment}, {"Keywords", keywords}})
        if (!desktop.contains(QStringLiteral("\n%1=%2\n").arg(QLatin1String(key), QString::fromUtf8(text)))) {
            std::fprintf(stderr, "desktop-texts: %s in %s is not the English this tool knows\n", key, qPrintable(args[1]));
            return 1;
        }
    if (!metainfo.contains(summaryLine)) {
        std::fprintf(stderr, "desktop-texts: the summary in %s is not the English this tool knows\n", qPrintable(args[3]));
        return 1;
    }

    QString desktopLines;
    QString summaries;
    for (const QString &qm : args.mid(5)) {
        const QString language = QFileInfo(qm).completeBaseName().section(QLatin1Char('_'), 1);
        QTranslator translator;
        if (language == QLatin1String("en") || !translator.load(qm))
            continue;
        for (const auto &[key, text] : {std::pair{"GenericName", genericName}, {"Comment", comment}, {"Keywords", keywords}}) {
            const QString t = translator.translate(context, text);
            if (!t.isEmpty())
                desktopLines += QStringLiteral("%1[%2]=%3\n").arg(QLatin1String(key), language, t);
        }
        const QString t = translator.translate(context, summary);
        if (!t.isEmpty())
            summaries += QStringLiteral("\n  <summary xml:lang=\"%1\">%2</summary>").arg(language, xmlEscaped(t));
    }
    if (!desktop.endsWith(QLatin1Char('\n')))
        desktop += QLatin1Char('\n');
    desktop += desktopLines;
    metainfo.replace(summaryLine, summaryLine + summaries);
    return write(args[2], desktop) && write(args[4], metainfo) ? 0 : 1;
}
