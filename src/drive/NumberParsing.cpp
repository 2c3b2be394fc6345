#include "drive/NumberParsing.h"

#include <QByteArray>
#include <charconv>

namespace NumberParsing {

std::optional<double> parseDouble(QStringView text)
{
    if (text.isEmpty())
        return std::nullopt;
    for (const QChar c : text)
        if (c.unicode() > 0x7f)
            return std::nullopt;
    QByteArray latin = text.toLatin1();
    const char *begin = latin.constData();
    const char *end = begin + latin.size();
    if (*begin == '+') {
        ++begin;
        if (begin == end || *begin == '-' || *begin == '+')
            return std::nullopt;
    }
    double value = 0;
    const auto [ptr, ec] = std::from_chars(begin, end, value, std::chars_format::general);
    if (ec != std::errc() || ptr != end)
        return std::nullopt;
    return value;
}

} // namespace NumberParsing
