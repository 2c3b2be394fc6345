#pragma once

#include <QLocale>
#include <QStringList>

// The program's texts in the user's language. English is the source and
// needs no file but for its plurals ("1 event" against "%n events"); the
// languages shipped are compiled in, so the app and the command line speak
// them wherever they run from.
namespace Translations {

// The languages shipped besides English, as their files name them ("de", "zh_CN").
QStringList shipped();

// Installs, on the running application, English plurals and the first of
// the locale's languages that ships (LANGUAGE, then LC_MESSAGES and LANG,
// for the system's); English stands where none does. Returns the language
// installed, "en" for English alone. Calling again replaces the last.
QString install(const QLocale &locale = QLocale::system());
// The language installed last, as install answered; "en" before any.
QString current();

} // namespace Translations
