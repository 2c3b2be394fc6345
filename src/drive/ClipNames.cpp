#include "drive/ClipNames.h"

#include "drive/ClipCalendar.h"

#include <QChar>
#include <climits>

namespace ClipNames {

namespace {

// Matches `count` Unicode decimal digits (\d) at pos, advancing it.
bool matchDigits(QStringView s, qsizetype &pos, int count)
{
    for (int i = 0; i < count; ++i) {
        if (pos >= s.size())
            return false;
        char32_t cp = s[pos].unicode();
        qsizetype width = 1;
        if (QChar::isHighSurrogate(cp) && pos + 1 < s.size() && s[pos + 1].isLowSurrogate()) {
            cp = QChar::surrogateToUcs4(s[pos], s[pos + 1]);
            width = 2;
        }
        if (QChar::category(cp) != QChar::Number_DecimalDigit)
            return false;
        pos += width;
    }
    return true;
}

bool matchChar(QStringView s, qsizetype &pos, char16_t c)
{
    if (pos >= s.size() || s[pos] != c)
        return false;
    ++pos;
    return true;
}

// (\d{4}-\d{2}-\d{2})_(\d{2}-\d{2}-\d{2}) from the start; pos ends after it.
bool matchDateTime(QStringView s, qsizetype &pos, NameViews &groups)
{
    pos = 0;
    if (!(matchDigits(s, pos, 4) && matchChar(s, pos, u'-') && matchDigits(s, pos, 2) && matchChar(s, pos, u'-')
          && matchDigits(s, pos, 2)))
        return false;
    const qsizetype dateEnd = pos;
    if (!matchChar(s, pos, u'_'))
        return false;
    const qsizetype timeStart = pos;
    if (!(matchDigits(s, pos, 2) && matchChar(s, pos, u'-') && matchDigits(s, pos, 2) && matchChar(s, pos, u'-')
          && matchDigits(s, pos, 2)))
        return false;
    groups.date = s.first(dateEnd);
    groups.time = s.mid(timeStart, pos - timeStart);
    return true;
}

// Swift's Int(String) on one part: ASCII digits with an optional sign, no allocation.
std::optional<long long> parseIntegerPart(QStringView part)
{
    qsizetype i = 0;
    bool negative = false;
    if (part.size() > 1 && (part[0] == u'+' || part[0] == u'-')) {
        negative = part[0] == u'-';
        i = 1;
    }
    if (i >= part.size())
        return std::nullopt;
    long long value = 0;
    for (; i < part.size(); ++i) {
        const char16_t c = part[i].unicode();
        if (c < u'0' || c > u'9' || value > (LLONG_MAX - 9) / 10)
            return std::nullopt;
        value = value * 10 + (c - u'0');
    }
    return negative ? -value : value;
}

// Splits on "-", drops empty parts, keeps the integers; true when exactly three.
bool threeNumbers(QStringView text, long long out[3])
{
    int count = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != u'-')
            continue;
        if (i > start) {
            if (const auto v = parseIntegerPart(text.mid(start, i - start))) {
                if (count == 3)
                    return false;
                out[count++] = *v;
            }
        }
        start = i + 1;
    }
    return count == 3;
}

} // namespace

std::optional<NameViews> matchClipViews(QStringView name)
{
    NameViews groups;
    qsizetype pos = 0;
    if (!matchDateTime(name, pos, groups) || !matchChar(name, pos, u'-'))
        return std::nullopt;
    static constexpr QStringView extension = u".mp4";
    if (!name.endsWith(extension))
        return std::nullopt;
    const qsizetype suffixEnd = name.size() - extension.size();
    if (suffixEnd <= pos)
        return std::nullopt;
    for (qsizetype i = pos; i < suffixEnd; ++i) {
        const char16_t c = name[i].unicode();
        if (!((c >= u'a' && c <= u'z') || c == u'_'))
            return std::nullopt;
    }
    groups.suffix = name.mid(pos, suffixEnd - pos);
    return groups;
}

std::optional<NameGroups> matchFolderName(QStringView name)
{
    NameViews groups;
    qsizetype pos = 0;
    if (!matchDateTime(name, pos, groups) || pos != name.size())
        return std::nullopt;
    return NameGroups{groups.date.toString(), groups.time.toString(), QString()};
}

std::optional<NameGroups> matchClipFilename(QStringView name)
{
    const auto groups = matchClipViews(name);
    if (!groups)
        return std::nullopt;
    return NameGroups{groups->date.toString(), groups->time.toString(), groups->suffix.toString()};
}

bool isIgnoredName(QStringView name)
{
    return name == u".DS_Store" || name == u"desktop.ini" || name == u"Thumbs.db" || name.startsWith(u"._");
}

std::optional<Date> parseTimestamp(QStringView dateGroup, QStringView timeGroup)
{
    long long date[3];
    long long time[3];
    if (!threeNumbers(dateGroup, date) || !threeNumbers(timeGroup, time))
        return std::nullopt;
    return ClipCalendar::dateFromComponents(date[0], date[1], date[2], time[0], time[1], time[2]);
}

} // namespace ClipNames
