#pragma once

// A clip reader seen as a QIODevice, for Qt's own readers (the event's
// picture through QImageReader), so that every file of an event is read
// through the same reader as its clips.

#include "media/ClipReader.h"

#include <QIODevice>
#include <memory>

class ClipReaderDevice : public QIODevice {
public:
    explicit ClipReaderDevice(std::unique_ptr<ClipReader> reader);

    bool isSequential() const override { return false; }
    qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::unique_ptr<ClipReader> reader_;
};
