#include "ReportDocument.h"

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

// "48 km/h": a speed as DrivingDataText gives it, in the unit shown.
QString speedWithUnit(int speed, bool miles)
{
    //: A speed: %1 the number, %2 its unit (km/h or mph)
    return QCoreApplication::translate("ReportDocument", "%1 %2", "speed and its unit")
        .arg(speed)
        .arg(DrivingDataText::speedUnit(miles));
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
        //: The report's title; %1 is why the car recorded, such as "Sentry event"
        return tr("Incident report: %1").arg(reason);
    //: The report's title; %1 is the kind of recording, such as "Saved", %2 why the car recorded
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
    //: Label beside the date and time the car triggered the recording
    html += row(content.hasTrigger ? tr("The moment")
                                   //: Label beside the date and time a recording with no trigger starts
                                   : tr("Recording starts"),
                //: After the date and time of the moment: which clock says so
                QStringLiteral("<b>%1</b> %2").arg(esc(dateTime(locale, content.carClock)), esc(tr("(the car's clock)"))));
    if (content.gpsClock)
        //: Label beside the same moment by the GPS clock, in UTC
        html += row(tr("By the GPS clock"),
                    esc(QLocale::c().toString(content.gpsClock->toQDateTime(), QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC'"))));
    if (!event.encrypted)
        html += row(tr("What happened"), esc(event.reason.blurb()));
    const auto place = event.placeName();
    //: Label beside the street and city where it happened
    html += row(tr("Place"), place ? esc(*place) : esc(tr("The car didn't name the place.")));
    if (content.latitude && content.longitude)
        html += row(tr("Coordinates"), esc(coordinates(*content.latitude, *content.longitude)));
    //: Label beside how many cameras recorded the event
    html += row(tr("Recorded by"), esc(tr("%n cameras", nullptr, int(content.stills.size()))));
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
        //: Heading over the map of the spot and the route
        html += QStringLiteral("<h2>%1</h2>").arg(esc(route.size() > 1 ? tr("Where, and the route driven")
                                                                        //: Heading over the map of the spot
                                                                        : tr("Where")));
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
    //: Heading over the chart of speed, pedals and steering
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
        //: Heading over the car's readings at the moment
        const QString readingsHeading = content.hasTrigger ? tr("At the moment")
                                                           //: Heading over the car's readings where a recording with no trigger starts
                                                           : tr("At the start");
        html += QStringLiteral("<h2>%1</h2><table cellspacing=\"0\" cellpadding=\"2\">").arg(esc(readingsHeading));
        //: Label beside the car's speed
        html += row(tr("Speed"), esc(speedWithUnit(DrivingDataText::speed(r.speed, options.miles), options.miles)));
        //: Label beside the gear (P, R, N, D)
        html += row(tr("Gear"), esc(TelemetryRecord::gearDisplayName(r.gear)));
        //: Label beside whether the brake pedal was pressed
        html += row(tr("Brake"), esc(r.brakeApplied ? tr("Pressed") : tr("Not pressed")));
        //: Label beside how far the accelerator pedal was pressed
        html += row(tr("Accelerator"),
                    //: How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it
                    esc(tr("%1%").arg(std::lround(DrivingDataText::pedalFraction(r.acceleratorPedal) * 100))));
        //: Label beside the steering wheel's angle
        html += row(tr("Steering"), esc(DrivingDataText::steering(r.steeringAngle)));
        const QString assistance = DrivingDataText::assistance(r.autopilot);
        //: Label beside Autopilot's state (Autosteer, Traffic-Aware Cruise Control…)
        html += row(tr("Driver assistance"), esc(assistance.isEmpty() ? tr("Off", "driver assistance") : assistance));
        //: Label beside the turn signal's state
        html += row(tr("Turn signal"), esc(r.blinkerLeft && r.blinkerRight ? tr("Hazard lights")
                                           //: The left turn signal was on
                                           : r.blinkerLeft                 ? tr("Left", "turn signal")
                                           //: The right turn signal was on
                                           : r.blinkerRight                ? tr("Right", "turn signal")
                                                                           : tr("Off", "turn signal")));
        if (r.hasPosition()) {
            //: Label beside the direction the car was heading (a compass bearing)
            html += row(tr("Heading"), esc(DrivingDataText::heading(r.heading)));
            //: Label beside the car's GPS coordinates
            html += row(tr("Position"), esc(coordinates(r.latitude, r.longitude)));
        }
        //: Label beside the car's acceleration
        html += row(tr("Acceleration"),
                    //: Acceleration along the car's three axes, in metres per second squared
                    esc(tr("x %1, y %2, z %3 m/s²")
                                                .arg(r.accelerationX, 0, 'f', 2)
                                                .arg(r.accelerationY, 0, 'f', 2)
                                                .arg(r.accelerationZ, 0, 'f', 2)));
        html += QStringLiteral("</table>");
    }

    // The hard moments the driving data shows, or that it shows none.
    if (content.hasDrivingData() || !content.hardMoments.empty()) {
        //: Heading over the list of hard braking, swerves and the like
        html += QStringLiteral("<h2>%1</h2>").arg(esc(tr("Hard moments of the drive")));
        if (content.hardMoments.empty()) {
            html += QStringLiteral("<p>%1</p>")
                        .arg(esc(tr("The driving data shows no hard braking, swerve, sudden stop or Autopilot "
                                    "switching off in this event.")));
        } else {
            html += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\">");
            for (const ReportContent::Moment &m : content.hardMoments) {
                const HardMoment &h = m.what;
                const QString speed = speedWithUnit(DrivingDataText::speed(float(h.speed), options.miles), options.miles);
                QString detail;
                if (h.kind == HardMoment::Kind::hardBraking || h.kind == HardMoment::Kind::suddenStop)
                    //: After a hard moment's name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)
                    detail = tr("— %1, slowing at %2 g")
                                 .arg(speed, QString::number(h.deceleration / HardMoments::standardGravity, 'f', 2));
                else if (h.kind == HardMoment::Kind::swerve && h.steeringRate > 0)
                    //: After a hard moment's name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second
                    detail = tr("— %1, steering turned at %2°/s").arg(speed, QString::number(std::lround(h.steeringRate)));
                else
                    detail = QStringLiteral("— %1").arg(speed);
                html += QStringLiteral("<tr><td width=\"130\" style=\"color:#555\">%1</td><td><b>%2</b> %3</td></tr>")
                            //: When a hard moment happened: %1 the car's clock, %2 how far into the event (m:ss)
                            .arg(esc(tr("%1 (%2 in)").arg(m.carClock.formatCarClock(locale, locale.timeFormat(QLocale::LongFormat)),
                                                          duration(h.time))),
                                 esc(h.displayName()), esc(detail));
            }
            html += QStringLiteral("</table><p>%1</p>")
                        .arg(esc(tr("Found from the car's own records: hard braking is the speed falling at 0.4 g or "
                                    "more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 "
                                    "g.")));
        }
    }

    // Every original file: where they are, then each with its digest.
    html += QStringLiteral("<h2%1>%2</h2><p>%3</p>")
                //: Heading over the list of every file the car recorded for the event
                .arg(newPage, esc(tr("The original files")),
                     esc(tr("Every file the car recorded for this event. Each SHA-256 was computed from the file itself "
                            "as this report was made.")));
    const QString folder = event.folderURL.isEmpty() && !content.files.empty()
        ? QFileInfo(content.files.front().path).absolutePath()
        : event.folderURL;
    QString where;
    if (!content.fromVault)
        //: %1 is a folder
        where = tr("On the car's drive, in %1").arg(folder);
    else if (content.lastVerified)
        //: %1 is a folder, %2 a date and time
        where = tr("In the Vault, in %1. Last verified %2.").arg(folder, dateTime(locale, *content.lastVerified));
    else
        //: %1 is a folder
        where = tr("In the Vault, in %1. Not verified again since it was kept.").arg(folder);
    html += QStringLiteral("<p>%1</p>").arg(esc(where));
    const bool kept = std::any_of(content.files.begin(), content.files.end(), [](const auto &f) { return f.keptSha256.has_value(); });
    const bool allMatch = std::all_of(content.files.begin(), content.files.end(), [](const auto &f) { return f.matchesRecord(); });
    if (kept && allMatch)
        html += QStringLiteral("<p>%1</p>").arg(esc(tr("Every file matches the Vault's record of it, made when it was kept.")));
    html += QStringLiteral("<table width=\"100%\" cellspacing=\"0\" class=\"small\"><tr>");
    // Column headings of the list of files.
    //: Column heading: the file's name
    const QString fileHeading = tr("File");
    //: Column heading: which camera recorded the file
    const QString cameraHeading = tr("Camera");
    //: Column heading: the time the file's footage starts
    const QString startsHeading = tr("Starts");
    //: Column heading: how long the file's footage runs (m:ss)
    const QString lengthHeading = tr("Length");
    //: Column heading: the file's size
    const QString sizeHeading = tr("Size");
    //: Column heading: whether the file plays, or how it is damaged
    const QString conditionHeading = tr("Condition");
    for (const QString &heading : {fileHeading, cameraHeading, startsHeading, lengthHeading, sizeHeading, conditionHeading})
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
                     //: Followed by the command to run; OK is what the command prints, so it stays as it is
                     esc(tr("Anyone can check that a file is exactly the one listed here by computing its SHA-256 again "
                            "and comparing it with the one above. With the evidence package unpacked, run this in its "
                            "folder; every line must end in OK:")),
                     //: %1 and %2 are commands, which stay as they are
                     esc(tr("On a Mac: %1. On Windows: %2, one file at a time.")
                             .arg(QStringLiteral("shasum -a 256 -c SHA256SUMS"),
                                  QStringLiteral("certutil -hashfile FILE SHA256"))));
    html += QStringLiteral("<p class=\"small\">%1</p>")
                //: At the report's end: %1 is Keelhold's version, %2 the date and time the report was made
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
        //: At the foot of every page of the report
        painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom, tr("Page %1 of %2").arg(i + 1).arg(pages));
    }
    if (!painter.end())
        throw ReportError(tr("The report couldn't be written there."));
}
