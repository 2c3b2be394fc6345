#pragma once

#include <QString>
#include <optional>

// The footage that ships with the program, for trying it without a drive.
namespace SampleFootage {

// Overrides where the footage is looked for (tests, odd installs).
inline constexpr const char *env = "KEELHOLD_SAMPLE_FOOTAGE";

// Its TeslaCam folder: the override, else beside the installed program,
// else in the build tree; none when it isn't there.
std::optional<QString> folder();

} // namespace SampleFootage
