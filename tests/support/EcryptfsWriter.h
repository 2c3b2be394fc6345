#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Writes files exactly as the car writes its encrypted clips (an eCryptfs
// lower file with the car's key block), from any plain file and a key the
// test chooses. Written apart from the reading code, so the two can't share
// a mistake.
namespace EcryptfsWriter {

struct KeyBlock {
    quint32 keyId = 0;
    QByteArray publicKey;  // 65 bytes, 0x04 first
    QByteArray vin;        // 17 ASCII
    quint64 timestamp = 0;
    QByteArray wrappedKey; // 44 bytes

    QByteArray bytes() const; // the 138 bytes of page 1
};

// A distinct, well-formed key block for each seed.
KeyBlock keyBlock(quint32 seed, const QByteArray &vin = QByteArrayLiteral("5YJ3E1EA7KF000001"));
// A distinct 16-byte file key for each seed.
QByteArray fileKey(quint32 seed);

// block absent: the key block is all zeros, as in a clip copied while the car wrote it.
QByteArray encrypt(const QByteArray &plain, const QByteArray &key, const std::optional<KeyBlock> &block);
void encryptFile(const QString &plainPath, const QString &dest, const QByteArray &key,
                 const std::optional<KeyBlock> &block);
// The header's version flags and the public key's first byte clobbered; the marker stays.
QByteArray damageHeader(QByteArray lower);

} // namespace EcryptfsWriter
