#include "ui/DiagnosticInfo.h"

#include "base/DiagnosticLog.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>
#include <QSysInfo>

extern "C" {
#include <libavutil/avutil.h>
}

namespace DiagnosticInfo {

QString text()
{
    auto orUnknown = [](const QString &value) { return value.isEmpty() ? QStringLiteral("unknown") : value; };
    QStringList lines;
    lines << QStringLiteral("Keelhold %1").arg(QCoreApplication::applicationVersion())
          << QStringLiteral("Qt %1 (built with %2)").arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR))
          << QStringLiteral("FFmpeg %1").arg(QString::fromLatin1(av_version_info()))
          << QStringLiteral("System: %1, kernel %2, %3")
                 .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), QSysInfo::currentCpuArchitecture())
          << QStringLiteral("Desktop: %1, session %2, Qt platform %3")
                 .arg(orUnknown(qEnvironmentVariable("XDG_CURRENT_DESKTOP")),
                      orUnknown(qEnvironmentVariable("XDG_SESSION_TYPE")), QGuiApplication::platformName());
    const QStringList log = DiagnosticLog::lastLines(logLines);
    lines << QString() << QStringLiteral("Last log lines (%1):").arg(log.size());
    if (log.isEmpty())
        lines << QStringLiteral("(none)");
    for (const QString &line : log)
        lines << DiagnosticLog::redacted(line);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace DiagnosticInfo
