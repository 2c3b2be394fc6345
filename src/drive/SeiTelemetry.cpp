#include "drive/SeiTelemetry.h"

#include "drive/SeiMetadata.pb.h"

extern "C" {
#include <libavcodec/codec_id.h>
}

#include <climits>

namespace SeiTelemetry {

namespace {

constexpr uint8_t markerByte = 0x42;
constexpr uint8_t markerEnd = 0x69;
constexpr unsigned userDataUnregistered = 5;
constexpr int h264Sei = 6;
constexpr int hevcPrefixSei = 39;

TelemetryRecord fromMessage(const keelhold::telemetry::SeiMetadata &m)
{
    TelemetryRecord r;
    r.version = m.version();
    r.gear = TelemetryRecord::Gear(int(m.gear_state()));
    r.frameSequenceNumber = m.frame_seq_no();
    r.speed = m.vehicle_speed_mps();
    r.acceleratorPedal = m.accelerator_pedal_position();
    r.steeringAngle = m.steering_wheel_angle();
    r.blinkerLeft = m.blinker_on_left();
    r.blinkerRight = m.blinker_on_right();
    r.brakeApplied = m.brake_applied();
    r.autopilot = TelemetryRecord::AutopilotState(int(m.autopilot_state()));
    r.latitude = m.latitude_deg();
    r.longitude = m.longitude_deg();
    r.heading = m.heading_deg();
    r.accelerationX = m.linear_acceleration_mps2_x();
    r.accelerationY = m.linear_acceleration_mps2_y();
    r.accelerationZ = m.linear_acceleration_mps2_z();
    return r;
}

// Where the SEI's content ends: before the stop bit's byte and any zero
// bytes after it.
size_t rbspEnd(const std::vector<uint8_t> &rbsp, size_t from)
{
    size_t end = rbsp.size();
    while (end > from && rbsp[end - 1] == 0)
        --end;
    if (end > from && rbsp[end - 1] == 0x80)
        --end;
    return end;
}

// A payload type or size: 0xFF bytes each add 255, the first other byte ends it.
std::optional<size_t> readSeiNumber(const std::vector<uint8_t> &rbsp, size_t &at, size_t end)
{
    size_t value = 0;
    while (at < end && rbsp[at] == 0xFF) {
        value += 255;
        ++at;
    }
    if (at >= end)
        return std::nullopt;
    return value + rbsp[at++];
}

std::optional<TelemetryRecord> recordInSei(const uint8_t *nal, size_t size, size_t headerSize)
{
    if (size <= headerSize)
        return std::nullopt;
    const std::vector<uint8_t> rbsp = unescape(nal + headerSize, size - headerSize);
    const size_t end = rbspEnd(rbsp, 0);
    size_t at = 0;
    while (at < end) {
        const auto type = readSeiNumber(rbsp, at, end);
        const auto payloadSize = type ? readSeiNumber(rbsp, at, end) : std::nullopt;
        if (!payloadSize)
            return std::nullopt;
        const size_t payloadEnd = *payloadSize > end - at ? end : at + *payloadSize;
        if (*type == userDataUnregistered && at < end && rbsp[at] == markerByte) {
            // The car's message runs to the end of the unit.
            if (auto record = recordInPayload(rbsp.data() + at, end - at))
                return record;
        }
        at = payloadEnd;
    }
    return std::nullopt;
}

uint32_t readLength(const uint8_t *p, int bytes)
{
    uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value = (value << 8) | p[i];
    return value;
}

// Calls visit(unit, size) for each NAL unit until it answers true.
template <typename Visit>
void forEachUnit(const uint8_t *data, size_t size, int lengthSize, Visit visit)
{
    if (lengthSize > 0) {
        size_t at = 0;
        while (size - at > size_t(lengthSize)) {
            const size_t length = readLength(data + at, lengthSize);
            at += size_t(lengthSize);
            if (length > size - at)
                return; // a cut or damaged packet: what follows can't be found
            if (length > 0 && visit(data + at, length))
                return;
            at += length;
        }
        return;
    }
    // Start codes: 00 00 01, the unit runs to the next one (or the end).
    size_t at = 0;
    auto nextStart = [&](size_t from) -> size_t {
        for (size_t i = from; i + 3 <= size; ++i)
            if (data[i] == 0 && data[i + 1] == 0 && data[i + 2] == 1)
                return i;
        return size;
    };
    at = nextStart(0);
    while (at < size) {
        const size_t begin = at + 3;
        size_t next = nextStart(begin);
        size_t unitEnd = next;
        // The zero in front of a four-byte start code belongs to no unit.
        while (unitEnd > begin && data[unitEnd - 1] == 0 && next < size)
            --unitEnd;
        if (unitEnd > begin && visit(data + begin, unitEnd - begin))
            return;
        at = next;
    }
}

} // namespace

NalFormat NalFormat::fromStream(int codecId, const uint8_t *extradata, size_t size)
{
    NalFormat format;
    if (codecId == AV_CODEC_ID_H264) {
        format.codec = Codec::h264;
        // avcC: version 1, then lengthSizeMinusOne in byte 4.
        if (extradata && size >= 7 && extradata[0] == 1)
            format.lengthSize = (extradata[4] & 0x03) + 1;
    } else if (codecId == AV_CODEC_ID_HEVC) {
        format.codec = Codec::hevc;
        // hvcC: version 1, lengthSizeMinusOne in byte 21.
        if (extradata && size >= 23 && extradata[0] == 1)
            format.lengthSize = (extradata[21] & 0x03) + 1;
    }
    return format;
}

std::optional<TelemetryRecord> recordInPacket(const uint8_t *data, size_t size, const NalFormat &format)
{
    if (!data || format.codec == NalFormat::Codec::none)
        return std::nullopt;
    std::optional<TelemetryRecord> found;
    forEachUnit(data, size, format.lengthSize, [&](const uint8_t *unit, size_t length) {
        if (format.codec == NalFormat::Codec::h264) {
            if ((unit[0] & 0x1F) == h264Sei)
                found = recordInSei(unit, length, 1);
        } else if (length >= 2 && ((unit[0] >> 1) & 0x3F) == hevcPrefixSei) {
            found = recordInSei(unit, length, 2);
        }
        return found.has_value();
    });
    return found;
}

std::optional<TelemetryRecord> recordInPayload(const uint8_t *payload, size_t size)
{
    size_t at = 0;
    while (at < size && payload[at] == markerByte)
        ++at;
    if (at == 0 || at >= size || payload[at] != markerEnd)
        return std::nullopt;
    ++at;
    if (size - at > size_t(INT_MAX))
        return std::nullopt;
    keelhold::telemetry::SeiMetadata message;
    if (!message.ParseFromArray(payload + at, int(size - at)))
        return std::nullopt;
    return fromMessage(message);
}

std::vector<uint8_t> unescape(const uint8_t *data, size_t size)
{
    std::vector<uint8_t> out;
    out.reserve(size);
    int zeros = 0;
    for (size_t i = 0; i < size; ++i) {
        const uint8_t b = data[i];
        if (zeros >= 2 && b == 0x03) {
            zeros = 0;
            continue;
        }
        out.push_back(b);
        zeros = b == 0 ? zeros + 1 : 0;
    }
    return out;
}

} // namespace SeiTelemetry
