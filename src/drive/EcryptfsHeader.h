#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <optional>

// The header of the car's encrypted files (an eCryptfs lower file): the
// plain size, the eCryptfs marker and the key block the car maker's service
// unwraps. All integers big-endian. Parsing never throws; a header that
// doesn't hold up says how.
namespace Ecryptfs {

inline constexpr quint32 marker = 0x3C81B7F5;
inline constexpr int pageSize = 4096;
inline constexpr qint64 payloadOffset = 8192; // two header extents
inline constexpr int keyBlockOffset = 4096;
inline constexpr int keyBlockSize = 138;
inline constexpr int publicKeySize = 65;
inline constexpr int vinSize = 17;
inline constexpr int wrappedKeySize = 44;
inline constexpr int fileKeySize = 16;

// True when the first 16 bytes carry the marker (two words whose XOR is it).
bool hasMarker(QByteArrayView head);

struct KeyBlock {
    quint32 keyId = 0;
    QByteArray publicKey;  // 65 bytes, an uncompressed P-256 point
    QString vin;           // 17 ASCII characters
    quint64 timestamp = 0; // as the car wrote it
    QByteArray wrappedKey; // 44 bytes: nonce, ciphertext, tag

    // The raw 138 bytes it was read from; names the file's key wherever the file lies.
    QByteArray raw;
    // SHA-256 of raw, in hex: the key store's index.
    QString fingerprint() const;
};

struct Header {
    enum class State {
        ok,
        notEncrypted, // no marker: not one of the car's encrypted files
        zeroKeyBlock, // the car hadn't written the key yet: can never be unlocked
        damaged,      // marker present, but the rest doesn't hold up
    };
    State state = State::notEncrypted;
    qint64 plainSize = 0;
    KeyBlock keyBlock; // filled when ok
};

// head: the file's first bytes (8192 are enough); fileSize: the file's
// whole size, to check the plain size against the pages present.
Header parse(QByteArrayView head, qint64 fileSize);
// Reads the header of a file (read-only, regular files only).
Header read(const QString &path);

// Pages of payload needed for a plain size, and the file size they make.
qint64 pageCount(qint64 plainSize);
qint64 lowerFileSize(qint64 plainSize);

} // namespace Ecryptfs
