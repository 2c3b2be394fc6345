#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace {

const QString folder = QStringLiteral(":/i18n");
QString installedLanguage = QStringLiteral("en");

enum Slot { englishPlurals, qtOwn, language, slots };

void put(std::unique_ptr<QTranslator> next, Slot which)
{
    static std::unique_ptr<QTranslator> installed[slots];
    std::unique_ptr<QTranslator> &slot = installed[which];
    if (slot)
        QCoreApplication::removeTranslator(slot.get());
    slot = std::move(next);
    if (slot)
        QCoreApplication::installTranslator(slot.get());
}

} // namespace

namespace Translations {

QStringList shipped()
{
    QStringList out;
    const QStringList files = QDir(folder).entryList({QStringLiteral("keelhold_*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString language = file.mid(9, file.size() - 12);
        if (language != QStringLiteral("en"))
            out << language;
    }
    return out;
}

QString install(const QLocale &locale)
{
    // The English plurals go in first, so the language's own come first.
    auto plurals = std::make_unique<QTranslator>();
    put(plurals->load(QStringLiteral("keelhold_en"), folder) ? std::move(plurals) : nullptr, englishPlurals);

    auto language = std::make_unique<QTranslator>();
    // The locale's languages in its order: English among them finds the
    // plurals file, and so stays English.
    const bool found = language->load(locale, QStringLiteral("keelhold"), QStringLiteral("_"), folder);
    // Named as its file is: "de", "zh_CN".
    const QString file = QFileInfo(language->filePath()).completeBaseName();
    const QString name = found && file.startsWith(QStringLiteral("keelhold_")) ? file.mid(9) : QStringLiteral("en");
    const bool english = name == QStringLiteral("en");
    // Qt's own words (a command's "Usage:", the file dialogs) where the
    // system has them in that language.
    auto qt = std::make_unique<QTranslator>();
    const bool qtFound = !english
        && qt->load(QLocale(name), QStringLiteral("qtbase"), QStringLiteral("_"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    put(qtFound ? std::move(qt) : nullptr, qtOwn);
    put(english ? nullptr : std::move(language), Slot::language);
    installedLanguage = name;
    return name;
}

QString current()
{
    return installedLanguage;
}

} // namespace Translations
