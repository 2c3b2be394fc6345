#pragma once

#include "drive/SeiMetadata.pb.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

// Writes clips that carry driving records coded as the car codes them: an
// H.264 (or H.265) movie is copied packet by packet, and in front of chosen
// frames goes an SEI NAL unit holding a user-data message with the marker
// and the serialized record, emulation prevention applied. Nothing is
// re-encoded. Used by the tests and by the sample footage's build.
namespace TelemetryClipWriter {

using Message = keelhold::telemetry::SeiMetadata;

// What can be wrong with one frame's record.
enum class Damage {
    none,
    badMarker,   // the marker's last byte is not 0x69
    badProtobuf, // the marker is fine, the message can't be parsed
    cutShort,    // the message ends in the middle of its last field
};

struct FrameRecord {
    Message message;
    Damage damage = Damage::none;
    int markerLength = 3; // 0x42 bytes before the 0x69
    // A 300-byte user-data message first in the same unit, so its size is coded with 0xFF continuation bytes.
    bool afterLongMessage = false;
};

// frame: index in presentation order; time: seconds from the first frame.
using RecordFor = std::function<std::optional<FrameRecord>(int frame, double time)>;

// Copies source to dest with the records recordFor gives; with faststart
// the index goes before the samples; creationTime (ISO 8601, UTC), when
// given, goes into the header as the car's GPS clock puts it there. Throws
// std::runtime_error when a movie can't be read or written.
void remux(const QString &source, const QString &dest, const RecordFor &recordFor, bool faststart = false,
           const QString &creationTime = {});

// The user-data payload: marker and message, damaged as asked.
QByteArray payload(const FrameRecord &record);
// A whole SEI NAL unit (header, messages, trailing bits), emulation prevented; hevc: a prefix SEI, two-byte header.
QByteArray seiUnit(const FrameRecord &record, bool hevc = false);
// 00 00 0x (x ≤ 3) becomes 00 00 03 0x.
QByteArray escape(const QByteArray &rbsp);

} // namespace TelemetryClipWriter
