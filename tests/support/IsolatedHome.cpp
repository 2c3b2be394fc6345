#include "IsolatedHome.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

namespace IsolatedHome {

QString setUp()
{
    // Kept alive until exit so the folder outlives every test function.
    static QTemporaryDir home(QDir::tempPath() + QStringLiteral("/keelhold-home-XXXXXX"));
    const QString root = home.path();
    const auto set = [&](const char *name, const QString &sub) {
        const QString path = sub.isEmpty() ? root : root + QLatin1Char('/') + sub;
        QDir().mkpath(path);
        qputenv(name, QFile::encodeName(path));
    };
    set("HOME", QString());
    set("XDG_DATA_HOME", QStringLiteral(".local/share"));
    set("XDG_CONFIG_HOME", QStringLiteral(".config"));
    set("XDG_CACHE_HOME", QStringLiteral(".cache"));
    return root;
}

} // namespace IsolatedHome
