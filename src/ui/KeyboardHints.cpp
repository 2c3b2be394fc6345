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
    static const std::pair<const char16_t *, const char16_t *> table[] = {
        {u"Space", u"Play/Pause"}, {u"← →", u"Skip 5s"},     {u", .", u"Frame step"}, {u"1–7", u"Cameras"},
        {u"0", u"All cameras"},    {u"M", u"The moment"},    {u"N ⇧N", u"What happened"}, {u"F", u"Fill window"},  {u"T", u"Driving data"}, {u"K", u"Keep"},
        {u"D", u"Dismiss"}};
    QVariantList list;
    for (const auto &[key, label] : table)
        list.append(QVariantMap{{QStringLiteral("key"), QString::fromUtf16(key)},
                                {QStringLiteral("label"), QString::fromUtf16(label)}});
    return list;
}

QString KeyboardHints::closeTooltip()
{
    return QStringLiteral("Hide these hints. The full shortcut list stays in Help.");
}
