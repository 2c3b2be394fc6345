#include "crypt/PageDecrypter.h"

#include "crypt/PageIV.h"
#include "drive/EcryptfsHeader.h"

#include <openssl/evp.h>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

const EVP_CIPHER *aes128cbc()
{
    static EVP_CIPHER *cipher = EVP_CIPHER_fetch(nullptr, "AES-128-CBC", nullptr);
    return cipher;
}

} // namespace

PageDecrypter::PageDecrypter(int fd, const QByteArray &key, const QByteArray &rootIV,
                             const std::function<bool()> &shouldStop)
    : fd_(fd), rootIV_(rootIV), shouldStop_(shouldStop)
{
    if (!aes128cbc() || key.size() != 16)
        return;
    cipher_ = EVP_CIPHER_CTX_new();
    if (cipher_
        && EVP_DecryptInit_ex2(cipher_, aes128cbc(), reinterpret_cast<const unsigned char *>(key.constData()),
                               nullptr, nullptr)
            == 1) {
        EVP_CIPHER_CTX_set_padding(cipher_, 0);
        return;
    }
    EVP_CIPHER_CTX_free(cipher_);
    cipher_ = nullptr;
}

PageDecrypter::~PageDecrypter()
{
    EVP_CIPHER_CTX_free(cipher_);
}

bool PageDecrypter::run(qint64 page, qint64 pages, uint8_t *into)
{
    error_ = 0;
    return readCipher(page, pages, into) && decryptInPlace(page, pages, into);
}

bool PageDecrypter::readCipher(qint64 page, qint64 pages, uint8_t *into)
{
    const size_t bytes = size_t(pages * Ecryptfs::pageSize);
    size_t got = 0;
    const off_t start = off_t(Ecryptfs::payloadOffset + page * Ecryptfs::pageSize);
    while (got < bytes) {
        if (shouldStop_ && shouldStop_()) {
            error_ = ECANCELED;
            return false;
        }
        const ssize_t n = ::pread(fd_, into + got, bytes - got, start + off_t(got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            error_ = n < 0 ? errno : EIO; // the header promised these pages
            return false;
        }
        got += size_t(n);
    }
    return true;
}

// Each page is chained on its own IV. One pass over the run chains every page
// on the last block of the page before it instead; the first block of each
// page is put right afterwards, which costs 16 bytes of XOR a page. The pass
// runs in place, so those last blocks are put aside first.
bool PageDecrypter::decryptInPlace(qint64 page, qint64 pages, uint8_t *data)
{
    ivs_.resize(size_t(pages * 16));
    PageIV::computeRun(reinterpret_cast<const uint8_t *>(rootIV_.constData()), page, pages, ivs_.data());
    lastBlocks_.resize(size_t(pages * 16));
    for (qint64 i = 0; i + 1 < pages; ++i)
        std::memcpy(lastBlocks_.data() + i * 16, data + (i + 1) * Ecryptfs::pageSize - 16, 16);
    int out = 0;
    const int bytes = int(pages * Ecryptfs::pageSize);
    if (!cipher_ || EVP_DecryptInit_ex2(cipher_, nullptr, nullptr, ivs_.data(), nullptr) != 1
        || EVP_DecryptUpdate(cipher_, data, &out, data, bytes) != 1 || out != bytes) {
        error_ = EIO;
        return false;
    }
    for (qint64 i = 1; i < pages; ++i) {
        uint8_t *first = data + i * Ecryptfs::pageSize;
        const uint8_t *chained = lastBlocks_.data() + (i - 1) * 16;
        const uint8_t *iv = ivs_.data() + i * 16;
        for (int b = 0; b < 16; ++b)
            first[b] ^= uint8_t(chained[b] ^ iv[b]);
    }
    return true;
}
