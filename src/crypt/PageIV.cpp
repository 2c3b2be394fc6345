#include "crypt/PageIV.h"

#include <bit>
#include <cstring>

namespace PageIV {

namespace {

// Four lanes of 32-bit words: four pages' IVs in one pass. A single MD5 is a
// chain of 64 dependent steps; four independent ones cost about as much.
using Lanes = uint32_t __attribute__((vector_size(16)));

template <typename W> inline W rotl(W x, int c) { return (x << c) | (x >> (32 - c)); }

inline uint32_t le32(const uint8_t *p)
{
    uint32_t v;
    std::memcpy(&v, p, 4);
    if constexpr (std::endian::native == std::endian::big)
        v = __builtin_bswap32(v);
    return v;
}

// Each step written out: with the word and shift as constants the compiler
// keeps the whole block in registers.
#define KH_STEP(f, a, b, c, d, x, k, s) a = b + rotl(a + f(b, c, d) + x + k, s)
#define KH_F(b, c, d) (d ^ (b & (c ^ d)))
#define KH_G(b, c, d) (c ^ (d & (b ^ c)))
#define KH_H(b, c, d) (b ^ c ^ d)
#define KH_I(b, c, d) (c ^ (b | ~d))

// MD5 of one padded 64-byte block, from the standard initial state.
template <typename W> void md5Block(const W m[16], W digest[4])
{
    W a = W{} + 0x67452301, b = W{} + 0xefcdab89, c = W{} + 0x98badcfe, d = W{} + 0x10325476;
    KH_STEP(KH_F, a, b, c, d, m[0], 0xd76aa478, 7);
    KH_STEP(KH_F, d, a, b, c, m[1], 0xe8c7b756, 12);
    KH_STEP(KH_F, c, d, a, b, m[2], 0x242070db, 17);
    KH_STEP(KH_F, b, c, d, a, m[3], 0xc1bdceee, 22);
    KH_STEP(KH_F, a, b, c, d, m[4], 0xf57c0faf, 7);
    KH_STEP(KH_F, d, a, b, c, m[5], 0x4787c62a, 12);
    KH_STEP(KH_F, c, d, a, b, m[6], 0xa8304613, 17);
    KH_STEP(KH_F, b, c, d, a, m[7], 0xfd469501, 22);
    KH_STEP(KH_F, a, b, c, d, m[8], 0x698098d8, 7);
    KH_STEP(KH_F, d, a, b, c, m[9], 0x8b44f7af, 12);
    KH_STEP(KH_F, c, d, a, b, m[10], 0xffff5bb1, 17);
    KH_STEP(KH_F, b, c, d, a, m[11], 0x895cd7be, 22);
    KH_STEP(KH_F, a, b, c, d, m[12], 0x6b901122, 7);
    KH_STEP(KH_F, d, a, b, c, m[13], 0xfd987193, 12);
    KH_STEP(KH_F, c, d, a, b, m[14], 0xa679438e, 17);
    KH_STEP(KH_F, b, c, d, a, m[15], 0x49b40821, 22);

    KH_STEP(KH_G, a, b, c, d, m[1], 0xf61e2562, 5);
    KH_STEP(KH_G, d, a, b, c, m[6], 0xc040b340, 9);
    KH_STEP(KH_G, c, d, a, b, m[11], 0x265e5a51, 14);
    KH_STEP(KH_G, b, c, d, a, m[0], 0xe9b6c7aa, 20);
    KH_STEP(KH_G, a, b, c, d, m[5], 0xd62f105d, 5);
    KH_STEP(KH_G, d, a, b, c, m[10], 0x02441453, 9);
    KH_STEP(KH_G, c, d, a, b, m[15], 0xd8a1e681, 14);
    KH_STEP(KH_G, b, c, d, a, m[4], 0xe7d3fbc8, 20);
    KH_STEP(KH_G, a, b, c, d, m[9], 0x21e1cde6, 5);
    KH_STEP(KH_G, d, a, b, c, m[14], 0xc33707d6, 9);
    KH_STEP(KH_G, c, d, a, b, m[3], 0xf4d50d87, 14);
    KH_STEP(KH_G, b, c, d, a, m[8], 0x455a14ed, 20);
    KH_STEP(KH_G, a, b, c, d, m[13], 0xa9e3e905, 5);
    KH_STEP(KH_G, d, a, b, c, m[2], 0xfcefa3f8, 9);
    KH_STEP(KH_G, c, d, a, b, m[7], 0x676f02d9, 14);
    KH_STEP(KH_G, b, c, d, a, m[12], 0x8d2a4c8a, 20);

    KH_STEP(KH_H, a, b, c, d, m[5], 0xfffa3942, 4);
    KH_STEP(KH_H, d, a, b, c, m[8], 0x8771f681, 11);
    KH_STEP(KH_H, c, d, a, b, m[11], 0x6d9d6122, 16);
    KH_STEP(KH_H, b, c, d, a, m[14], 0xfde5380c, 23);
    KH_STEP(KH_H, a, b, c, d, m[1], 0xa4beea44, 4);
    KH_STEP(KH_H, d, a, b, c, m[4], 0x4bdecfa9, 11);
    KH_STEP(KH_H, c, d, a, b, m[7], 0xf6bb4b60, 16);
    KH_STEP(KH_H, b, c, d, a, m[10], 0xbebfbc70, 23);
    KH_STEP(KH_H, a, b, c, d, m[13], 0x289b7ec6, 4);
    KH_STEP(KH_H, d, a, b, c, m[0], 0xeaa127fa, 11);
    KH_STEP(KH_H, c, d, a, b, m[3], 0xd4ef3085, 16);
    KH_STEP(KH_H, b, c, d, a, m[6], 0x04881d05, 23);
    KH_STEP(KH_H, a, b, c, d, m[9], 0xd9d4d039, 4);
    KH_STEP(KH_H, d, a, b, c, m[12], 0xe6db99e5, 11);
    KH_STEP(KH_H, c, d, a, b, m[15], 0x1fa27cf8, 16);
    KH_STEP(KH_H, b, c, d, a, m[2], 0xc4ac5665, 23);

    KH_STEP(KH_I, a, b, c, d, m[0], 0xf4292244, 6);
    KH_STEP(KH_I, d, a, b, c, m[7], 0x432aff97, 10);
    KH_STEP(KH_I, c, d, a, b, m[14], 0xab9423a7, 15);
    KH_STEP(KH_I, b, c, d, a, m[5], 0xfc93a039, 21);
    KH_STEP(KH_I, a, b, c, d, m[12], 0x655b59c3, 6);
    KH_STEP(KH_I, d, a, b, c, m[3], 0x8f0ccc92, 10);
    KH_STEP(KH_I, c, d, a, b, m[10], 0xffeff47d, 15);
    KH_STEP(KH_I, b, c, d, a, m[1], 0x85845dd1, 21);
    KH_STEP(KH_I, a, b, c, d, m[8], 0x6fa87e4f, 6);
    KH_STEP(KH_I, d, a, b, c, m[15], 0xfe2ce6e0, 10);
    KH_STEP(KH_I, c, d, a, b, m[6], 0xa3014314, 15);
    KH_STEP(KH_I, b, c, d, a, m[13], 0x4e0811a1, 21);
    KH_STEP(KH_I, a, b, c, d, m[4], 0xf7537e82, 6);
    KH_STEP(KH_I, d, a, b, c, m[11], 0xbd3af235, 10);
    KH_STEP(KH_I, c, d, a, b, m[2], 0x2ad7d2bb, 15);
    KH_STEP(KH_I, b, c, d, a, m[9], 0xeb86d391, 21);

    digest[0] = a + 0x67452301;
    digest[1] = b + 0xefcdab89;
    digest[2] = c + 0x98badcfe;
    digest[3] = d + 0x10325476;
}

#undef KH_STEP
#undef KH_F
#undef KH_G
#undef KH_H
#undef KH_I

void putLE(uint32_t word, uint8_t *out)
{
    for (int j = 0; j < 4; ++j)
        out[j] = uint8_t(word >> (8 * j));
}

// The message of a 32-byte input: its 8 words, 0x80, zeros, and the length
// in bits (256).
template <typename W> void pad32(W m[16])
{
    for (int i = 8; i < 16; ++i)
        m[i] = W{};
    m[8] = W{} + 0x80;
    m[14] = W{} + 256;
}

// The page number in decimal as "%lld" writes it, zero-padded to 16 bytes.
void pageDigits(int64_t page, uint8_t out[16])
{
    char digits[20];
    int n = 0;
    auto value = static_cast<uint64_t>(page < 0 ? 0 : page);
    do {
        digits[n++] = char('0' + value % 10);
        value /= 10;
    } while (value != 0);
    std::memset(out, 0, 16);
    for (int i = 0; i < n && i < 16; ++i)
        out[i] = uint8_t(digits[n - 1 - i]);
}

} // namespace

void md5Of32(const uint8_t input[32], uint8_t out[16])
{
    uint32_t m[16];
    for (int i = 0; i < 8; ++i)
        m[i] = le32(input + 4 * i);
    pad32(m);
    uint32_t digest[4];
    md5Block(m, digest);
    for (int i = 0; i < 4; ++i)
        putLE(digest[i], out + 4 * i);
}

void compute(const uint8_t rootIV[16], int64_t page, uint8_t out[16])
{
    uint8_t input[32];
    std::memcpy(input, rootIV, 16);
    pageDigits(page, input + 16);
    md5Of32(input, out);
}

void computeRun(const uint8_t rootIV[16], int64_t first, int64_t count, uint8_t *out)
{
    Lanes m[16];
    for (int i = 0; i < 4; ++i)
        m[i] = Lanes{} + le32(rootIV + 4 * i);
    pad32(m);
    for (int64_t done = 0; done < count; done += 4) {
        uint8_t digits[4][16];
        for (int lane = 0; lane < 4; ++lane)
            pageDigits(first + done + lane, digits[lane]);
        for (int i = 0; i < 4; ++i)
            m[4 + i] = Lanes{le32(digits[0] + 4 * i), le32(digits[1] + 4 * i), le32(digits[2] + 4 * i),
                             le32(digits[3] + 4 * i)};
        Lanes digest[4];
        md5Block(m, digest);
        for (int lane = 0; lane < 4 && done + lane < count; ++lane)
            for (int i = 0; i < 4; ++i)
                putLE(digest[i][lane], out + (done + lane) * 16 + 4 * i);
    }
}

} // namespace PageIV
