#include "report/ReportDocument.h"

#include "model/DrivingDataText.h"
#include "report/ReportChart.h"
#include "report/ReportDrawing.h"
#include "report/ReportError.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace {

constexpr int resolution = 300; // dots per inch of the page's layout

QString esc(const QString &text) { return text.toHtmlEscaped(); }

QString row(const QString &label, const QString &value)
{
    return QStringLiteral("<tr><td width=\"130\" style=\"color:#555\">%1</td><td>%2</td></tr>").arg(esc(label), value);
}

QString coordinates(double latitude, double longitude)
{
    return QStringLiteral("%1, %2").arg(latitude, 0, 'f', 5).arg(longitude, 0, 'f', 5);
}

QString duration(double seconds)
{
    const int whole = int(std::lround(seconds));
    return QStringLiteral("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

QString size(const QLocale &locale, qint64 bytes)
{
    return locale.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString dateTime(const QLocale &locale, const Date &date)
{
    return date.formatCarClock(locale, locale.dateTimeFormat(QLocale::LongFormat));
}

} // namespace

QPageSize::PageSizeId ReportDocument::pageSizeFor(const QLocale &locale)
{
    const auto t = locale.territory();
    return locale.measurementSystem() == QLocale::ImperialUSSystem || t == QLocale::Canada || t == QLocale::Mexico
            || t == QLocale::Philippines || t == QLocale::Chile || t == QLocale::Colombia
        ? QPageSize::Letter
        : QPageSize::A4;
}

QString ReportDocument::title(const TeslaEvent &event)
{
    const QString reason = event.encrypted && !event.reasonRaw ? tr("Encrypted by your car") : event.reason.label();
    // "Sentry — Sentry event" says it twice.
    if (reason.startsWith(event.kind.displayName(), Qt::CaseInsensitive))
        return tr("Incident report: %1").arg(reason);
    return tr("Incident report: %1 — %2").arg(event.kind.displayName(), reason);
}

void ReportDocument::write(const ReportContent &content, const QString &path, const Options &options)
{
    const QLocale &locale = options.locale;
    QPdfWriter writer(path);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(pageSizeFor(locale)));
    writer.setPageMargins(QMarginsF(16, 14, 16, 14), QPageLayout::Millimeter);
    writer.setTitle(title(content.event));
    writer.setCreator(QStringLiteral("Keelhold %1").arg(options.version));

    QTextDocument doc;
    doc.documentLayout()->setPaintDevice(&writer);
    const QRectF page = writer.pageLayout().paintRectPixels(resolution);
    const double footer = resolution * 0.35; // room at each page's foot for its number
    doc.setPageSize(QSizeF(page.width(), page.height() - footer));
    doc.setDocumentMargin(0);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(9.5);
    // No ligatures: text copied from the page then reads "file", not
    // "ﬁle", and a command copies as typed.
    font.setStyleStrategy(QFont::PreferNoShaping);
    doc.setDefaultFont(font);
    doc.setDefaultStyleSheet(QStringLiteral(
        "h1 { font-size: 17pt; margin-bottom: 4pt; } h2 { font-size: 13pt; margin-top: 10pt; margin-bottom: 4pt; }"
        "td { padding: 2pt 6pt 2pt 0; } .small { font-size: 7.5pt; } .mono { font-family: 'DejaVu Sans Mono'; font-size: 7pt; }"
        ".note { color: #8a4b00; } .bad { color: #b71c1c; font-weight: bold; }"));
    auto *drawings = new ReportDrawing(&doc);
    // Drawings stand in the HTML as markers in paragraphs of their own,
    // swapped for the drawing objects once the text is laid in.
    std::vector<std::pair<QString, QTextCharFormat>> markers;
    const auto drawing = [&](ReportDrawing::Paint paint, double heightPerWidth) {
        const QString marker = QStringLiteral("@@drawing%1@@").arg(markers.size());
        markers.emplace_back(marker, drawings->add(std::move(paint), heightPerWidth));
        return QStringLiteral("<p>%1</p>").arg(marker);
    };
    const QString newPage = QStringLiteral(" style=\"page-break-before: always\"");
    const double width = page.width();
    const TeslaEvent &event = content.event;

    // What and when.
    QString html = QStringLiteral("<h1>%1</h1><table cellspacing=\"0\" cellpadding=\"2\">").arg(esc(title(event)));
    html += row(content.hasTrigger ? tr("The moment") : tr("Recording starts"),
                QStringLiteral("<b>%1</b> %2").arg(esc(dateTime(locale, content.carClock)), esc(tr("(the car's clock)"))));
    if (content.gpsClock)
        html += row(tr("By the GPS clock"),
                    esc(QLocale::c().toString(content.gpsClock->toQDateTime(), QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC'"))));
    if (!event.encrypted)
        html += row(tr("What happened"), esc(event.reason.blurb()));
    const auto place = event.placeName();
    html += row(tr("Place"), place ? esc(*place) : esc(tr("The car didn't name the place.")));
    if (content.latitude && content.longitude)
        html += row(tr("Coordinates"), esc(coordinates(*content.latitude, *content.longitude)));
    html += row(tr("Recorded by"), esc(content.stills.size() == 1 ? tr("1 camera") : tr("%1 cameras").arg(content.stills.size())));
    html += QStringLiteral("</table>");
    if (content.clocksDisagree())
        html += QStringLiteral("<p class=\"note\">%1</p>")
                    .arg(esc(tr("The car's clock and the GPS clock differ by more than a time zone can explain: the car's "
                                "clock was probably set wrong. The GPS time is the more reliable one.")));
    if (event.encrypted)
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("The car encrypted this footage. The files are listed exactly as "
                                                        "the car wrote them.")));
    if (content.latitude && content.longitude) {
        const double lat = *content.latitude, lon = *content.longitude;
        const auto route = content.route;
        const auto tiles = content.mapTiles;
        html += QStringLiteral("<h2>%1</h2>").arg(esc(route.size() > 1 ? tr("Where, and the route driven") : tr("Where")));
        html += drawing([=](QPainter &p, const QRectF &r) { ReportMap::paint(p, r, route, lat, lon, tiles); },
                        ReportMap::heightPerWidth);
    } else {
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("The car didn't record where this happened, so there is no map.")));
    }

    // Each camera at the moment, two to a row, embedded at the camera's full size.
    html += QStringLiteral("<h2%1>%2</h2><p>%3</p><table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">")
                .arg(newPage, esc(tr("Each camera at the moment")),
                     esc(tr("Every picture is the camera's own frame at the moment, at its full size.")));
    // Image sizes in HTML count at 96 to the inch, whatever the page's resolution.
    const double cell = (width - resolution * 0.2) / 2 * 96 / resolution;
    for (size_t i = 0; i < content.stills.size(); ++i) {
        const auto &still = content.stills[i];
        if (i % 2 == 0)
            html += QStringLiteral("<tr>");
        html += QStringLiteral("<td width=\"50%\" valign=\"top\" style=\"padding-bottom: 8pt\"><b>%1</b><br/>")
                    .arg(esc(still.camera.displayName()));
        if (still.picture) {
            const QString name = QStringLiteral("still%1").arg(i);
            doc.addResource(QTextDocument::ImageResource, QUrl(name), *still.picture);
            const double height = cell * still.picture->height() / std::max(1, still.picture->width());
            html += QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%3\"/>").arg(name).arg(int(cell)).arg(int(height));
        } else {
            html += QStringLiteral("<table width=\"100%\" bgcolor=\"#e8e8e8\" cellpadding=\"40\"><tr><td align=\"center\">"
                                   "%1</td></tr></table>")
                        .arg(esc(still.missingReason));
        }
        html += QStringLiteral("</td>");
        if (i % 2 == 1 || i + 1 == content.stills.size())
            html += QStringLiteral("</tr>");
    }
    html += QStringLiteral("</table>");

    // The driving data around the moment.
    // Without driving data a line says so, under the stills.
    html += QStringLiteral("<h2%1>%2</h2>").arg(content.hasDrivingData() ? newPage : QString(), esc(tr("Driving data")));
    if (content.hasDrivingData()) {
        html += QStringLiteral("<p>%1</p>")
                    .arg(esc(content.hasTrigger ? tr("From 10 seconds before to 10 seconds after the moment, as the car "
                                                     "recorded it with each frame.")
                                                : tr("The first 20 seconds of the recording, as the car recorded it with "
                                                     "each frame.")));
        const auto readings = content.readings;
        const bool miles = options.miles;
        const double from = content.chartFrom();
        const bool atMoment = content.hasTrigger;
        html += drawing([=](QPainter &p, const QRectF &r) { ReportChart::paint(p, r, readings, miles, from, atMoment); },
                        ReportChart::heightFor(1));
    } else {
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("These clips carry no driving data: the car records it only with "
                                                        "newer software.")));
    }
    if (content.atMoment) {
        const TelemetryRecord &r = *content.atMoment;
        html += QStringLiteral("<h2>%1</h2><table cellspacing=\"0\" cellpadding=\"2\">").arg(esc(content.hasTrigger ? tr("At the moment") : tr("At the start")));
        html += row(tr("Speed"), esc(QStringLiteral("%1 %2").arg(DrivingDataText::speed(r.speed, options.miles))
                                         .arg(DrivingDataText::speedUnit(options.miles))));
        html += row(tr("Gear"), esc(TelemetryRecord::gearDisplayName(r.gear)));
        html += row(tr("Brake"), esc(r.brakeApplied ? tr("Pressed") : tr("Not pressed")));
        html += row(tr("Accelerator"),
                    esc(tr("%1%").arg(std::lround(DrivingDataText::pedalFraction(r.acceleratorPedal) * 100))));
        html += row(tr("Steering"), esc(DrivingDataText::steering(r.steeringAngle)));
        const QString assistance = DrivingDataText::assistance(r.autopilot);
        html += row(tr("Driver assistance"), esc(assistance.isEmpty() ? tr("Off") : assistance));
        html += row(tr("Turn signal"), esc(r.blinkerLeft && r.blinkerRight ? tr("Hazard lights")
                                           : r.blinkerLeft                 ? tr("Left")
                                           : r.blinkerRight                ? tr("Right")
                                                                           : tr("Off")));
        if (r.hasPosition()) {
            html += row(tr("Heading"), esc(DrivingDataText::heading(r.heading)));
            html += row(tr("Position"), esc(coordinates(r.latitude, r.longitude)));
        }
        html += row(tr("Acceleration"), esc(tr("x %1, y %2, z %3 m/s²")
                                                .arg(r.accelerationX, 0, 'f', 2)
                                                .arg(r.accelerationY, 0, 'f', 2)
                                                .arg(r.accelerationZ, 0, 'f', 2)));
        html += QStringLiteral("</table>");
    }

    // The hard moments the driving data shows, or that it shows none.
    if (content.hasDrivingData() || !content.hardMoments.empty()) {
        html += QStringLiteral("<h2>%1</h2>").arg(esc(tr("Hard moments of the drive")));
        if (content.hardMoments.empty()) {
            html += QStringLiteral("<p>%1</p>")
                        .arg(esc(tr("The driving data shows no hard braking, swerve, sudden stop or Autopilot "
                                    "switching off in this event.")));
        } else {
            html += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\">");
            for (const ReportContent::Moment &m : content.hardMoments) {
                const HardMoment &h = m.what;
                QString detail = QStringLiteral("%1 %2")
                                     .arg(DrivingDataText::speed(float(h.speed), options.miles))
                                     .arg(DrivingDataText::speedUnit(options.miles));
                if (h.kind == HardMoment::Kind::hardBraking || h.kind == HardMoment::Kind::suddenStop)
                    detail += tr(", slowing at %1 g").arg(h.deceleration / HardMoments::standardGravity, 0, 'f', 2);
                else if (h.kind == HardMoment::Kind::swerve && h.steeringRate > 0)
                    detail += tr(", steering turned at %1°/s").arg(std::lround(h.steeringRate));
                html += QStringLiteral("<tr><td width=\"130\" style=\"color:#555\">%1</td><td><b>%2</b> %3</td></tr>")
                            .arg(esc(tr("%1 (%2 in)").arg(m.carClock.formatCarClock(locale, locale.timeFormat(QLocale::LongFormat)),
                                                          duration(h.time))),
                                 esc(h.displayName()), esc(QStringLiteral("— ") + detail));
            }
            html += QStringLiteral("</table><p>%1</p>")
                        .arg(esc(tr("Found from the car's own records: hard braking is the speed falling at 0.4 g or "
                                    "more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 "
                                    "g.")));
        }
    }

    // Every original file: where they are, then each with its digest.
    html += QStringLiteral("<h2%1>%2</h2><p>%3</p>")
                .arg(newPage, esc(tr("The original files")),
                     esc(tr("Every file the car recorded for this event. Each SHA-256 was computed from the file itself "
                            "as this report was made.")));
    const QString folder = event.folderURL.isEmpty() && !content.files.empty()
        ? QFileInfo(content.files.front().path).absolutePath()
        : event.folderURL;
    QString where;
    if (!content.fromVault)
        where = tr("On the car's drive, in %1").arg(folder);
    else if (content.lastVerified)
        where = tr("In the Vault, in %1. Last verified %2.").arg(folder, dateTime(locale, *content.lastVerified));
    else
        where = tr("In the Vault, in %1. Not verified again since it was kept.").arg(folder);
    html += QStringLiteral("<p>%1</p>").arg(esc(where));
    const bool kept = std::any_of(content.files.begin(), content.files.end(), [](const auto &f) { return f.keptSha256.has_value(); });
    const bool allMatch = std::all_of(content.files.begin(), content.files.end(), [](const auto &f) { return f.matchesRecord(); });
    if (kept && allMatch)
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("Every file matches the Vault's record of it, made when it was kept.")));
    html += QStringLiteral("<table width=\"100%\" cellspacing=\"0\" class=\"small\"><tr>");
    for (const QString &heading : {tr("File"), tr("Camera"), tr("Starts"), tr("Length"), tr("Size"), tr("Condition")})
        html += QStringLiteral("<td><b>%1</b></td>").arg(esc(heading));
    html += QStringLiteral("</tr>");
    for (const auto &f : content.files) {
        html += QStringLiteral("<tr><td>%1</td><td>%2</td><td>%3</td><td>%4</td><td>%5</td><td>%6</td></tr>")
                    .arg(esc(f.name), esc(f.camera.displayName()),
                         esc(f.start.formatCarClock(locale, locale.timeFormat(QLocale::LongFormat))),
                         f.duration ? esc(duration(*f.duration)) : QStringLiteral("—"), esc(size(locale, f.size)),
                         f.damaged ? QStringLiteral("<span class=\"bad\">%1</span>").arg(esc(f.condition)) : esc(f.condition));
        QString digest = f.sha256 ? QStringLiteral("SHA-256 <span class=\"mono\">%1</span>").arg(*f.sha256)
                                  : QStringLiteral("<span class=\"bad\">%1</span>").arg(esc(f.readProblem));
        if (!f.matchesRecord())
            digest += QStringLiteral("<br/><span class=\"bad\">%1</span>")
                          .arg(esc(tr("This differs from the Vault's record: the file is not the one that was kept.")));
        html += QStringLiteral("<tr><td colspan=\"6\" style=\"padding-bottom: 5pt\">%1</td></tr>").arg(digest);
    }
    html += QStringLiteral("</table>");
    if (content.files.empty())
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("No files were found for this event.")));

    html += QStringLiteral("<h2>%1</h2><p>%2</p><p class=\"mono\">sha256sum -c SHA256SUMS</p><p>%3</p>")
                .arg(esc(tr("How to check the files")),
                     esc(tr("Anyone can check that a file is exactly the one listed here by computing its SHA-256 again "
                            "and comparing it with the one above. With the evidence package unpacked, run this in its "
                            "folder; every line must end in OK:")),
                     esc(tr("On a Mac: shasum -a 256 -c SHA256SUMS. On Windows: certutil -hashfile FILE SHA256, one "
                            "file at a time.")));
    html += QStringLiteral("<p class=\"small\">%1</p>")
                .arg(esc(tr("Made by Keelhold %1 on %2 (this computer's clock). Keelhold only reads the car's drive: "
                            "nothing on it was changed.")
                             .arg(options.version, locale.toString(content.madeAt.toLocalDateTime(), QLocale::LongFormat))));
    doc.setHtml(html);
    for (const auto &[marker, format] : markers) {
        QTextCursor found = doc.find(marker);
        if (!found.isNull())
            found.insertText(QString(QChar::ObjectReplacementCharacter), format);
    }
    // The swap is laid out lazily; the pages are counted and drawn whole.
    doc.markContentsDirty(0, doc.characterCount());

    QPainter painter;
    if (!painter.begin(&writer))
        throw ReportError(tr("The report couldn't be written there."));
    const int pages = doc.pageCount();
    const QSizeF pageSize = doc.pageSize();
    QFont footerFont = font;
    footerFont.setPointSizeF(7.5);
    for (int i = 0; i < pages; ++i) {
        if (i > 0 && !writer.newPage())
            throw ReportError(tr("The report couldn't be written there."));
        painter.save();
        painter.translate(0, -i * pageSize.height());
        QAbstractTextDocumentLayout::PaintContext context;
        // A hair inside the page: a block that starts right at the next page's
        // top would be drawn here too, clipped, and its text found twice.
        context.clip = QRectF(0, i * pageSize.height() + 1, pageSize.width(), pageSize.height() - 2);
        painter.setClipRect(context.clip);
        doc.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(footerFont);
        painter.setPen(QColor(0x61, 0x61, 0x61));
        const QRectF foot(0, pageSize.height(), pageSize.width(), footer);
        painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, title(event));
        painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, tr("Page %1 of %2").arg(i + 1).arg(pages));
    }
    if (!painter.end())
        throw ReportError(tr("The report couldn't be written there."));
}
