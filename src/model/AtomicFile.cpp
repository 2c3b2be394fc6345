#include "model/AtomicFile.h"

#include <QSaveFile>

namespace AtomicFile {

bool write(const QString &path, const QByteArray &data, QString *error)
{
    QSaveFile file(path);
    // Unbuffered: Qt 6.4's QSaveFile commits a short file when the final
    // flush of its buffer fails (a full disk), so every write is checked here.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    if (file.write(data) != data.size() || file.error() != QFileDevice::NoError) {
        if (error)
            *error = file.errorString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

} // namespace AtomicFile
