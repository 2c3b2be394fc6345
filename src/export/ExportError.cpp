#include "export/ExportError.h"

#include <QCoreApplication>

namespace Exporter {

ExportError::ExportError(Case c, const QString &text)
    : case_(c), text_(c == exportFailed ? text : QString()), what_(message().toStdString())
{
}

QString ExportError::message() const
{
    switch (case_) {
    case exportFailed:
        return text_.isEmpty() ? QCoreApplication::translate("ExportError", "Unknown export failure.") : text_;
    case noClipsForCamera:
        return QCoreApplication::translate("ExportError",
                                           "There is no playable footage from this camera in this event.");
    case compositionFailed:
        return QCoreApplication::translate("ExportError", "The footage couldn't be put together into one movie.");
    case exportSessionUnavailable:
        return QCoreApplication::translate("ExportError", "This footage can't be written as an MP4 movie with the "
                                                          "video tools on this computer.");
    case cancelled:
        return QCoreApplication::translate("ExportError", "The export was stopped.");
    }
    return QString();
}

} // namespace Exporter
