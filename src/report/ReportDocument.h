#pragma once

#include "report/ReportContent.h"
#include "report/ReportMap.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPageSize>
#include <QString>

// The incident report as pages: a PDF of Qt's own, its text selectable, in
// the order an insurer reads it (what and when, where, each camera at the
// moment, the driving data, every original file with its SHA-256, how to
// check them), "Page n of m" on every page.
class ReportDocument {
    Q_DECLARE_TR_FUNCTIONS(ReportDocument)

public:
    struct Options {
        bool miles = false;
        QLocale locale;
        QString version;
    };

    // A4, or Letter where the locale's paper is Letter.
    static QPageSize::PageSizeId pageSizeFor(const QLocale &locale);
    // "Incident report: Sentry — Bump or impact detected": the title's words.
    static QString title(const TeslaEvent &event);

    // Writes the PDF at path (a new file; the caller places it). Throws
    // ReportError when it can't be written.
    static void write(const ReportContent &content, const QString &path, const Options &options);
};
