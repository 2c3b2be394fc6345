#pragma once

#include <QString>
#include <cstddef>

typedef struct evp_md_ctx_st EVP_MD_CTX;

// Incremental SHA-256 through OpenSSL (uses the CPU's SHA instructions;
// several times faster than QCryptographicHash, which matters for footage).
class Sha256 {
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256 &) = delete;
    Sha256 &operator=(const Sha256 &) = delete;

    void update(const char *data, size_t size);
    // Lower-case hexadecimal, 64 digits. Ends the digest.
    QString finishHex();

private:
    EVP_MD_CTX *ctx_;
};
