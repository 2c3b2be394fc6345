#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

// Builds TeslaCam folder trees in a test's temporary directory: event
// folders with event.json and thumb.png, and clip files that are either
// sparse files of a given size (when only names and sizes matter) or copies
// of real generated movies.
class TeslaCamFixture {
public:
    // root is the TeslaCam folder itself; it is created.
    explicit TeslaCamFixture(const QString &root);

    const QString &root() const { return root_; }
    QString path(const QString &relative) const;

    // Creates SentryClips/<name> or SavedClips/<name> (folder = "SentryClips"...).
    QString addEventFolder(const QString &folder, const QString &name);
    // A Sentry or saved event with event.json (when given) and a thumbnail.
    QString addEvent(const QString &folder, const QString &name, const std::optional<QByteArray> &eventJson,
                     bool withThumb = true);
    // "<stamp>-<suffix>.mp4" in dir; a sparse file of the given size, or a copy of source.
    QString addClip(const QString &dir, const QString &stamp, const QString &suffix, qint64 size = 1024 * 1024,
                    const QString &source = QString());
    QString addRecentClip(const QString &stamp, const QString &suffix, qint64 size = 1024 * 1024,
                          const QString &source = QString());

    static QByteArray eventJson(const QString &timestamp, const QString &reason, const QString &city = QString(),
                                const QString &lat = QString(), const QString &lon = QString(),
                                const QString &camera = QStringLiteral("0"));
    static void writeFile(const QString &path, const QByteArray &bytes);
    static void makeSparseFile(const QString &path, qint64 size);
    static void makeDir(const QString &path);
    // A tiny valid PNG.
    static QByteArray pngBytes();
    // A PNG of one flat colour.
    static QByteArray flatPng(QSize size, const QColor &colour);

private:
    QString root_;
};
