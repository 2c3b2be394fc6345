#pragma once

// A clip on the failing test drive whose reads stop answering partway
// through its pictures, as a drive that dies mid-file does. Its index comes
// first, so opening and judging it read only its head, and the hold comes
// while its pictures are being read.

#include <QByteArray>
#include <QString>

class FaultyFs;

namespace HeldClip {

// A generated 640x480 H.264 clip, index first, as bytes.
QByteArray indexFirst(double seconds, int framesPerSecond);

// Puts bytes on the drive as name, reads from heldFrom on held until release; the path as the drive shows it.
QString add(FaultyFs &drive, const QString &name, const QByteArray &bytes, qint64 heldFrom);

} // namespace HeldClip
