#include "vault/Sha256.h"

#include <QByteArray>
#include <openssl/evp.h>
#include <stdexcept>

Sha256::Sha256() : ctx_(EVP_MD_CTX_new())
{
    if (!ctx_ || EVP_DigestInit_ex(ctx_, EVP_sha256(), nullptr) != 1) {
        EVP_MD_CTX_free(ctx_);
        throw std::runtime_error("SHA-256 is not available");
    }
}

Sha256::~Sha256()
{
    EVP_MD_CTX_free(ctx_);
}

void Sha256::update(const char *data, size_t size)
{
    EVP_DigestUpdate(ctx_, data, size);
}

QString Sha256::finishHex()
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_DigestFinal_ex(ctx_, digest, &length);
    return QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(digest), int(length)).toHex());
}
