#include "base/DiagnosticLog.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <mutex>

namespace DiagnosticLog {

namespace {

std::mutex mutex;
QString path; // guarded by mutex
QtMessageHandler previous = nullptr;

const char *levelWord(QtMsgType type)
{
    switch (type) {
    case QtWarningMsg: return "warning";
    case QtCriticalMsg: return "error";
    case QtFatalMsg: return "fatal";
    default: return "info";
    }
}

void append(const QByteArray &line)
{
    std::lock_guard lock(mutex);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).size() > rotateAt) {
        QFile::remove(path + QStringLiteral(".1"));
        QFile::rename(path, path + QStringLiteral(".1"));
    }
    QFile file(path);
    // A log that can't be written costs nothing else.
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        file.write(line);
    }
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg) {
        const QString category = context.category ? QString::fromLatin1(context.category) : QStringLiteral("default");
        const QString line = QStringLiteral("%1 %2 %3: %4\n")
                                 .arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODate),
                                      QLatin1String(levelWord(type)), category, redacted(message));
        append(line.toUtf8());
    }
    if (previous)
        previous(type, context, message);
}

QStringList linesOf(const QString &file)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

QString defaultFolder()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (state.isEmpty() || !QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/Keelhold");
}

void install(const QString &folder)
{
    QDir().mkpath(folder);
    {
        std::lock_guard lock(mutex);
        path = QDir(folder).filePath(QStringLiteral("keelhold.log"));
    }
    static std::once_flag once;
    std::call_once(once, [] { previous = qInstallMessageHandler(handle); });
}

QString filePath()
{
    std::lock_guard lock(mutex);
    return path;
}

QStringList lastLines(int count)
{
    const QString current = filePath();
    if (current.isEmpty() || count <= 0)
        return {};
    QStringList lines = linesOf(current + QStringLiteral(".1")) + linesOf(current);
    if (lines.size() > count)
        lines = lines.mid(lines.size() - count);
    return lines;
}

QString redacted(QString line)
{
    static const QRegularExpression jwt(QStringLiteral("eyJ[A-Za-z0-9_-]{8,}\\.[A-Za-z0-9_-]+(\\.[A-Za-z0-9_-]*)?"));
    static const QRegularExpression bearer(QStringLiteral("(Bearer\\s+)\\S+"), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression field(
        QStringLiteral("((?:access_token|refresh_token|id_token|code|token)[\"']?\\s*[=:]\\s*[\"']?)[^\\s&\"',}]+"),
        QRegularExpression::CaseInsensitiveOption);
    line.replace(jwt, QStringLiteral("[token]"));
    line.replace(bearer, QStringLiteral("\\1[token]"));
    line.replace(field, QStringLiteral("\\1[token]"));
    const QString home = QDir::homePath();
    if (home.size() > 1)
        line.replace(home + QLatin1Char('/'), QStringLiteral("~/"));
    return line;
}

} // namespace DiagnosticLog
