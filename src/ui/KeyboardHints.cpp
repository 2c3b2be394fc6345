#include "KeyboardHints.h"

#include <QSettings>
#include <QVariantMap>

KeyboardHints::KeyboardHints(QObject *parent) : QObject(parent) {}

bool KeyboardHints::showHints() const
{
    return QSettings().value(settingKey, true).toBool();
}

void KeyboardHints::setShowHints(bool value)
{
    if (value == showHints())
        return;
    QSettings().setValue(settingKey, value);
    Q_EMIT showHintsChanged();
}

QVariantList KeyboardHints::items()
{
    // Keys marked with a symbol or letter stay as they are; only a key named in words is translated.
    const std::pair<QString, QString> table[] = {
        //: The space bar, as a key's name
        {tr("Space"), tr("Play/Pause")},
        {QStringLiteral("← →"), tr("Skip 5s")},
        {QStringLiteral(", ."), tr("Frame step")},
        {QStringLiteral("1–7"), tr("Cameras")},
        {QStringLiteral("0"), tr("All cameras")},
        //: Jump to the moment the event happened
        {QStringLiteral("M"), tr("The moment")},
        {QStringLiteral("N ⇧N"), tr("What happened")},
        {QStringLiteral("F"), tr("Fill window")},
        {QStringLiteral("T"), tr("Driving data")},
        //: Keep the event in the Vault
        {QStringLiteral("K"), tr("Keep")},
        //: Hide the event from the list
        {QStringLiteral("D"), tr("Dismiss")}};
    QVariantList list;
    for (const auto &[key, label] : table)
        list.append(QVariantMap{{QStringLiteral("key"), key}, {QStringLiteral("label"), label}});
    return list;
}

QString KeyboardHints::closeTooltip()
{
    return tr("Hide these hints. The full shortcut list stays in Help.");
}
