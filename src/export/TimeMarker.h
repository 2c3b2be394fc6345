#pragma once

#include <QtGlobal>
#include <cstdint>
#include <optional>

struct AVFrame;

// A row of black and white blocks that carries a number a program can read
// back from a decoded movie: a white and a black block to find it by, then
// 32 bits, the most significant first. Sturdy against lossy encoding as
// long as a block is a few pixels wide.
namespace TimeMarker {

inline constexpr int bits = 32;
inline constexpr int blocks = bits + 2;

// Draws on a 4:2:0 picture, planar or NV12 (limited range); x, y and block even.
void draw(AVFrame *frame, int x, int y, int block, quint32 value);
// Reads from a picture's luma plane; nothing when the guard blocks aren't there.
std::optional<quint32> read(const uint8_t *luma, int linesize, int x, int y, int block);

} // namespace TimeMarker
