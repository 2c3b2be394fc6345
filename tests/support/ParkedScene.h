#pragma once

#include <QString>
#include <vector>

// A parked car's camera as a test clip: a still, textured view with the
// sensor's noise, the light slowly rising, and people crossing it at
// chosen times. Made with the ffmpeg tool, key frames once a second as the
// car writes them.
namespace ParkedScene {

struct Walker {
    double enters = 0; // just off the left edge
    double leaves = 0; // just off the right edge
};

struct Options {
    double seconds = 40;
    int noise = 8; // the sensor's noise, as the noise filter's strength
    std::vector<Walker> walkers;
    int width = 320;
    int height = 240;
};

// Throws std::runtime_error when the movie can't be made.
void generate(const Options &options, const QString &dest);

// The seconds in which someone moves in view: each walker's entering second up to the one it has left by.
std::vector<int> movingSeconds(const Options &options);

} // namespace ParkedScene
