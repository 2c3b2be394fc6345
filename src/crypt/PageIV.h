#pragma once

#include <cstdint>

// The IV of each payload page: MD5 of the root IV (16 bytes) followed by the
// page number in decimal, zero-padded to 16. That is one MD5 block per page,
// a hundred thousand for a large clip, so it is computed here directly:
// through a generic digest interface the set-up of each call costs more
// than the hashing.
namespace PageIV {

// MD5 of exactly 32 bytes.
void md5Of32(const uint8_t input[32], uint8_t out[16]);
void compute(const uint8_t rootIV[16], int64_t page, uint8_t out[16]);
// The IVs of count pages from first, 16 bytes each, four at a time.
void computeRun(const uint8_t rootIV[16], int64_t first, int64_t count, uint8_t *out);

} // namespace PageIV
