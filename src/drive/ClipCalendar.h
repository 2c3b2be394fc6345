#pragma once

#include "model/Date.h"

#include <QString>
#include <optional>

// The Gregorian calendar in the machine's local zone, fixed at first use for
// the life of the process, so that a zone change mid-run doesn't change how
// file names read. Component arithmetic is lenient, like a calendar's: a
// 13th month rolls into the next year.
namespace ClipCalendar {

Date dateFromComponents(long long year, long long month, long long day, long long hour, long long minute,
                        long long second);

// Same, but refuses components out of their calendar ranges.
std::optional<Date> strictDateFromComponents(long long year, long long month, long long day, long long hour,
                                             long long minute, long long second);

// "yyyy-MM-dd_HH-mm-ss" in the machine's *current* zone.
QString folderNameString(Date date);

} // namespace ClipCalendar
