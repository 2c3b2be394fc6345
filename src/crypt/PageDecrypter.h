#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <cstdint>
#include <functional>
#include <vector>

typedef struct evp_cipher_ctx_st EVP_CIPHER_CTX;

// Reads a run of whole payload pages of one encrypted file and decrypts them
// where they land. Each thread that reads the file has one of its own.
class PageDecrypter {
public:
    // fd, rootIV and shouldStop belong to the caller and outlive this.
    PageDecrypter(int fd, const QByteArray &key, const QByteArray &rootIV, const std::function<bool()> &shouldStop);
    ~PageDecrypter();
    PageDecrypter(const PageDecrypter &) = delete;
    PageDecrypter &operator=(const PageDecrypter &) = delete;

    bool isReady() const { return cipher_ != nullptr; }
    // Pages [page, page + pages) into `into`, pages * pageSize bytes.
    bool run(qint64 page, qint64 pages, uint8_t *into);
    // Why the last run failed, as an errno.
    int error() const { return error_; }

private:
    bool readCipher(qint64 page, qint64 pages, uint8_t *into);
    bool decryptInPlace(qint64 page, qint64 pages, uint8_t *data);

    int fd_;
    const QByteArray &rootIV_;
    const std::function<bool()> &shouldStop_;
    EVP_CIPHER_CTX *cipher_ = nullptr;
    std::vector<uint8_t> ivs_;        // 16 bytes a page
    std::vector<uint8_t> lastBlocks_; // each page's last cipher block, kept through an in-place run
    int error_ = 0;
};
