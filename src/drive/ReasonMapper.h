#pragma once

#include "model/PlainReason.h"

#include <QString>
#include <optional>

// Turns the car's terse reason strings into plain categories.
namespace ReasonMapper {
PlainReason map(const std::optional<QString> &raw);
PlainReason recentDrive();
} // namespace ReasonMapper
