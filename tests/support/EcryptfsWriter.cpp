#include "support/EcryptfsWriter.h"

#include <QFile>
#include <QtEndian>
#include <openssl/evp.h>
#include <stdexcept>

namespace EcryptfsWriter {

namespace {

constexpr int page = 4096;

QByteArray md5(const QByteArray &data)
{
    unsigned char out[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(data.constData(), size_t(data.size()), out, &length, EVP_md5(), nullptr);
    return QByteArray(reinterpret_cast<const char *>(out), int(length));
}

QByteArray seeded(quint32 seed, int size)
{
    QByteArray bytes(size, '\0');
    quint32 x = seed * 2654435761u + 1;
    for (int i = 0; i < size; ++i) {
        x ^= x << 13;
        x ^= x >> 17;
        x ^= x << 5;
        bytes[i] = char(x & 0xff);
    }
    return bytes;
}

} // namespace

QByteArray KeyBlock::bytes() const
{
    QByteArray out(4, '\0');
    qToBigEndian<quint32>(keyId, out.data());
    out += publicKey;
    out += vin;
    QByteArray stamp(8, '\0');
    qToBigEndian<quint64>(timestamp, stamp.data());
    out += stamp;
    out += wrappedKey;
    if (out.size() != 138)
        throw std::logic_error("a key block is 138 bytes");
    return out;
}

KeyBlock keyBlock(quint32 seed, const QByteArray &vin)
{
    KeyBlock block;
    block.keyId = 0x1000 + seed;
    block.publicKey = QByteArray(1, '\x04') + seeded(seed + 100, 64);
    block.vin = vin;
    block.timestamp = 1780000000ull + seed;
    block.wrappedKey = seeded(seed + 200, 44);
    return block;
}

QByteArray fileKey(quint32 seed)
{
    return seeded(seed + 300, 16);
}

QByteArray encrypt(const QByteArray &plain, const QByteArray &key, const std::optional<KeyBlock> &block)
{
    QByteArray header(2 * page, '\0');
    qToBigEndian<quint64>(quint64(plain.size()), header.data());
    const quint32 first = 0x5A17C0DE;
    qToBigEndian<quint32>(first, header.data() + 8);
    qToBigEndian<quint32>(first ^ 0x3C81B7F5u, header.data() + 12);
    qToBigEndian<quint32>(0x03000002u, header.data() + 0x10);
    qToBigEndian<quint32>(4096u, header.data() + 0x14);
    qToBigEndian<quint16>(2, header.data() + 0x18);
    if (block)
        header.replace(page, 138, block->bytes());

    const QByteArray root = md5(key);
    QByteArray padded = plain;
    if (padded.size() % page)
        padded.append(QByteArray(page - padded.size() % page, '\0'));
    QByteArray out = header;
    out.reserve(header.size() + padded.size());
    EVP_CIPHER_CTX *ctx = EVP_CIPHER_CTX_new();
    for (qsizetype n = 0; n * page < padded.size(); ++n) {
        QByteArray ivInput = root + QByteArray::number(n).leftJustified(16, '\0', true);
        const QByteArray iv = md5(ivInput);
        QByteArray cipher(page, '\0');
        int len = 0;
        EVP_EncryptInit_ex(ctx, EVP_aes_128_cbc(), nullptr, reinterpret_cast<const unsigned char *>(key.constData()),
                           reinterpret_cast<const unsigned char *>(iv.constData()));
        EVP_CIPHER_CTX_set_padding(ctx, 0);
        EVP_EncryptUpdate(ctx, reinterpret_cast<unsigned char *>(cipher.data()), &len,
                          reinterpret_cast<const unsigned char *>(padded.constData() + n * page), page);
        out += cipher;
    }
    EVP_CIPHER_CTX_free(ctx);
    return out;
}

void encryptFile(const QString &plainPath, const QString &dest, const QByteArray &key,
                 const std::optional<KeyBlock> &block)
{
    QFile in(plainPath);
    if (!in.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read the plain file");
    const QByteArray lower = encrypt(in.readAll(), key, block);
    QFile out(dest);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(lower) != lower.size())
        throw std::runtime_error("cannot write the encrypted file");
}

QByteArray damageHeader(QByteArray lower)
{
    lower[0x10] = '\x07';
    lower[page + 4] = '\x02';
    return lower;
}

} // namespace EcryptfsWriter
