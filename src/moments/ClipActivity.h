#pragma once

// How much the picture of one camera changed, second by second: key frames
// decoded and shrunk to a grid of block brightnesses, and each compared with
// the one before it. Only key frames are read and decoded (the car writes
// one about every second), and in quiet stretches only every other one: a
// small share of the cost of decoding the clip.
//
// Why not the coded size of the frames, which would be free from the index:
// measured on the tests' footage (a textured still scene, a slow change of
// light, a dark shape crossing), the predicted frames' size rose 7–11 times
// while the shape crossed with little sensor noise, but also 2.2–2.9 times
// at every step of the light, and with heavy noise not at all (the encoder
// spends every bit on the noise). The key-frame difference, after the shift
// of the whole picture's brightness is taken out, rose 8–14 times over the
// quiet level with heavy noise and 20–40 times with little, while noise and
// light alone stayed under twice it.

#include <QString>

#include <optional>
#include <stop_token>
#include <vector>

struct ClipActivity {
    // The grid a key frame is shrunk to, whatever the camera's size.
    static constexpr int gridColumns = 48;
    static constexpr int gridRows = 36;
    // The change of a pair of key frames: the mean of this share of the
    // grid's blocks that changed most, so a person filling a twentieth of
    // the view counts fully and noise spread over all of it doesn't.
    static constexpr double changedShare = 0.05;
    // Quiet stretches are looked at a key frame every two seconds, which
    // halves the work on a car parked in an empty street; a pair that
    // changed by refineRatio times the clip's quiet level (or whose frames'
    // coded size rose as much) has every key frame between decoded, so
    // what happened is placed to the second.
    static constexpr double coarseSpacing = 2.0;
    static constexpr double refineRatio = 1.5;
    static constexpr double refineFloor = 1.5; // brightness steps; a still picture's own wobble

    double duration = 0; // the clip's length, first frame at 0
    // For each second of the clip, how much the picture changed over it
    // (mean brightness steps of the blocks that changed most, 0–255);
    // negative where no pair of key frames spans it.
    std::vector<float> changePerSecond;

    // None when the clip can't be opened (damaged, locked, not a movie).
    // Reads through the installed clip reader, so encrypted clips count
    // once their keys are held.
    static std::optional<ClipActivity> read(const QString &path, std::stop_token stop = {});

    using Grid = std::vector<float>; // gridColumns × gridRows block means, row by row
    // The difference of two grids, the shift of their brightness taken out.
    static float change(const Grid &before, const Grid &after);

    bool operator==(const ClipActivity &) const = default;
};
