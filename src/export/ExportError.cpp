#include "export/ExportError.h"

namespace Exporter {

ExportError::ExportError(Case c, const QString &text)
    : case_(c), text_(c == exportFailed ? text : QString()), what_(message().toStdString())
{
}

QString ExportError::message() const
{
    switch (case_) {
    case exportFailed:
        return text_.isEmpty() ? QStringLiteral("Unknown export failure.") : text_;
    case noClipsForCamera:
        return QStringLiteral("There is no playable footage from this camera in this event.");
    case compositionFailed:
        return QStringLiteral("The footage couldn't be put together into one movie.");
    case exportSessionUnavailable:
        return QStringLiteral("This footage can't be written as an MP4 movie with the video tools on this computer.");
    case cancelled:
        return QStringLiteral("The export was stopped.");
    }
    return QString();
}

} // namespace Exporter
