#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <array>

// The ways bytes from a car's drive get into Keelhold, one function each: an
// input goes through the same code a scan, a probe or an export runs on it.
// The libFuzzer targets and the corpus test both feed these.
namespace FuzzEntries {

// What the input broke, in one sentence; empty when every promise held.
// Crashes and sanitizer reports are the other way an input fails.
using Entry = QString (*)(const QByteArray &input);

struct Target {
    const char *name; // also the name of its corpus folder under tests/fuzz
    Entry run;
};

const std::array<Target, 5> &targets();
const Target *target(QStringView name);

// Once per process, before the first input: quiet FFmpeg, a zone with
// daylight saving (fixed at the first date read), a scratch folder.
void prepare();

// An event folder's event.json.
QString eventJson(const QByteArray &input);
// One name per line, as a listing of the drive hands them over: event
// folders and clip files, then recent clips grouped into drives.
QString names(const QByteArray &input);
// One clip file, probed for its health and length.
QString probe(const QByteArray &input);
// One clip file, twice, exported as one camera of an event.
QString exportClip(const QByteArray &input);
// One clip file, read for the driving records in its packets.
QString telemetry(const QByteArray &input);

} // namespace FuzzEntries
