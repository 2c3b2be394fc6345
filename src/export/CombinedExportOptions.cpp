#include "export/CombinedExportOptions.h"

#include "timeline/EventTimeline.h"

#include <QStringList>
#include <algorithm>

std::optional<CombinedExportOptions::Layout> CombinedExportOptions::layoutFromWord(QStringView word)
{
    for (const Layout layout : {Layout::grid, Layout::frontAndSides, Layout::single})
        if (word == CombinedExportOptions::word(layout))
            return layout;
    return std::nullopt;
}

QString CombinedExportOptions::word(Layout layout)
{
    switch (layout) {
    case Layout::grid:
        return QStringLiteral("grid");
    case Layout::frontAndSides:
        return QStringLiteral("front-sides");
    case Layout::single:
        return QStringLiteral("single");
    }
    return QString();
}

std::optional<CombinedExportOptions::Size> CombinedExportOptions::sizeFromWord(QStringView word)
{
    if (word == u"720")
        return Size::p720;
    if (word == u"1080")
        return Size::p1080;
    if (word == u"full")
        return Size::full;
    return std::nullopt;
}

std::optional<CombinedExportOptions::Overlay> CombinedExportOptions::overlayFromWords(QStringView words)
{
    Overlay overlay{false, false, false, false};
    if (words == u"none")
        return overlay;
    const auto parts = words.split(u',');
    for (const QStringView part : parts) {
        const QStringView p = part.trimmed();
        if (p == u"time")
            overlay.time = true;
        else if (p == u"names")
            overlay.names = true;
        else if (p == u"reason")
            overlay.reason = true;
        else if (p == u"telemetry")
            overlay.telemetry = true;
        else
            return std::nullopt;
    }
    return overlay;
}

std::optional<std::pair<double, double>> CombinedExportOptions::momentRange(const TeslaEvent &event, double duration)
{
    const std::optional<double> moment = EventTimeline::momentOffset(event, duration);
    if (!moment)
        return std::nullopt;
    return std::make_pair(std::max(0.0, *moment - secondsBeforeMoment), std::min(duration, *moment + secondsAfterMoment));
}
