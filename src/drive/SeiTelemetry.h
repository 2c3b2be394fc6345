#pragma once

#include "model/TelemetryRecord.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Finds the car's driving record in a video packet: walks the packet's NAL
// units, takes the SEI units, reads their messages and decodes the one of
// user data (payload type 5) that opens with the car's marker. Anything
// malformed gives no record; nothing here reads past the bytes it is given.
namespace SeiTelemetry {

// How a stream's packets frame their NAL units.
struct NalFormat {
    enum class Codec { none, h264, hevc };
    Codec codec = Codec::none;
    int lengthSize = 0; // bytes of each unit's length prefix; 0 for start codes

    // From the stream's codec (AVCodecID) and decoder configuration: MP4
    // keeps the prefix length in its avcC or hvcC; without one, the packets
    // carry start codes.
    static NalFormat fromStream(int codecId, const uint8_t *extradata, size_t size);
};

// The record in one packet, if it carries a readable one.
std::optional<TelemetryRecord> recordInPacket(const uint8_t *data, size_t size, const NalFormat &format);

// The record in one user-data SEI payload, as it stands after the payload
// size (libavcodec's AV_FRAME_DATA_SEI_UNREGISTERED side data is this,
// unescaped): the marker, then the protobuf message.
std::optional<TelemetryRecord> recordInPayload(const uint8_t *payload, size_t size);

// A NAL unit's bytes with emulation prevention taken out (00 00 03 → 00 00).
std::vector<uint8_t> unescape(const uint8_t *data, size_t size);

} // namespace SeiTelemetry
