#pragma once

#include <QStringView>
#include <optional>

// Strict C-locale number parsing: the whole text must be one number, with no
// spaces and no group separators.
namespace NumberParsing {
std::optional<double> parseDouble(QStringView text);
} // namespace NumberParsing
