#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

// What libavformat and libavcodec see in a movie file, for checking exports.
struct MovieFacts {
    struct Stream {
        QString type; // "video", "audio", ...
        QString codec;
        QString tag; // "avc1", "hvc1", ...
        int width = 0;
        int height = 0;
        QByteArray extradata;
        int packets = 0;
        bool dtsStrictlyIncreasing = true;
        double firstPts = 0.0;   // seconds
        double largestDtsStep = 0.0; // seconds between neighbouring packets
        double duration = 0.0;   // seconds, from the stream
        int decodedFrames = 0;   // video: frames shown after edit lists
        int decodeErrors = 0;
    };

    bool opened = false;
    double duration = 0.0; // seconds, from the container
    std::vector<Stream> streams;
    bool moovBeforeMdat = false;

    const Stream *firstOf(const QString &type) const;
    bool indexBeforeData() const;

    // decode: also decode every video packet to count frames and errors.
    static MovieFacts read(const QString &path, bool decode = true);
};
