#pragma once

// The clip reader every demuxer uses once it is installed: one of the car's
// encrypted clips whose key is held reads as the plain movie it holds,
// decrypted page by page as it is read; every other file reads as it lies.
// Nothing decrypted is written anywhere.

#include "media/ClipReader.h"

#include <chrono>

class EcryptfsReader;
struct ClipRef;

class DecryptingClipReader : public ClipReader {
public:
    static std::unique_ptr<ClipReader> open(const QString &path, std::stop_token stop);
    // Makes open the factory of every reader in this process.
    static void install();

    ~DecryptingClipReader() override;
    int read(unsigned char *buffer, int size) override;
    int64_t seek(int64_t position) override;
    int64_t size() override;

    // Whether a clip can be opened as a movie: a playable one, or an
    // encrypted one whose key is held (looked for under the clip's read limit).
    static bool opens(const ClipRef &clip, std::chrono::milliseconds limit, std::stop_token stop);

private:
    explicit DecryptingClipReader(std::unique_ptr<EcryptfsReader> reader);
    std::unique_ptr<EcryptfsReader> reader_;
};
