#pragma once

#include <QString>

// The few words in user-facing texts that name the platform. Kept in one
// place so that each platform's build says its own words.
namespace PlatformWords {

// What the user formats a drive with, as in "(in <this>, after backing up)".
QString diskUtility();
// The user's own machine, as in "on this <computer>".
QString computer();
// The operating system as the subject of a sentence, lower case: "your system".
QString operatingSystem();
// Where removable drives are mounted: /run/media/<user>, /media/<user> or
// /media, the first that exists.
QString removableMediaFolder();

} // namespace PlatformWords
