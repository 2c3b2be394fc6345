#pragma once

// An MP4 file's boxes as a tree, for tests that damage one field or one
// table of a real clip the way a failing drive or a bad write would. Edits
// keep every parent's size right. Only for files whose index follows their
// samples, as the car writes them: the samples' offsets don't move.

#include <QByteArray>
#include <QList>

class Mp4Boxes {
public:
    explicit Mp4Boxes(QByteArray file);
    // The clip at path, read whole.
    static Mp4Boxes read(const QString &path);

    // A path of box types from the top, each the first of its type unless indexed: "moov/trak[1]/tkhd".
    bool has(const QByteArray &path) const;
    // The bytes after the box's 8-byte header.
    QByteArray payload(const QByteArray &path) const;
    void setPayload(const QByteArray &path, const QByteArray &payload);
    // One big-endian field of a box's payload.
    quint32 field32(const QByteArray &path, int offset) const;
    void setField32(const QByteArray &path, int offset, quint32 value);
    void setField16(const QByteArray &path, int offset, quint16 value);
    // Puts a new box (type and payload) first among the children of parent.
    void insertChild(const QByteArray &parent, const QByteArray &type, const QByteArray &payload);

    const QByteArray &bytes() const { return file_; }
    void write(const QString &path) const;

private:
    struct Box {
        qsizetype start = 0;
        qsizetype size = 0;
        QByteArray type;
    };
    // The box at path, and its ancestors from the top; empty when absent.
    QList<Box> find(const QByteArray &path) const;
    void resize(const QList<Box> &chain, qsizetype delta);

    QByteArray file_;
};
