#pragma once

#include "export/CombinedExportOptions.h"
#include "model/Camera.h"

#include <algorithm>
#include <vector>

// Where each camera's picture goes in a combined movie, and how large its
// texts are. Every position and size is even, as 4:2:0 pictures need.
class CombinedLayout {
public:
    struct Rect {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        bool operator==(const Rect &) const = default;
    };
    // A camera's picture size; 0 by 0 when it has none to show.
    struct Source {
        Camera camera;
        int width = 0;
        int height = 0;
    };
    struct Cell {
        Camera camera;
        Rect area;    // the cell on the canvas
        Rect picture; // the picture scaled into the cell, undistorted and centred; relative to the cell
    };

    // H.264 level 5.2's largest picture, which players can be expected to take.
    static constexpr int largestWidth = 4096;
    static constexpr int largestHeight = 2304;

    // sources in the order they are shown; frontAndSides puts the first
    // large on top. An empty list gives an empty layout.
    static CombinedLayout make(CombinedExportOptions::Layout layout, const std::vector<Source> &sources,
                               CombinedExportOptions::Size size);
    // Columns of the player's grid for a number of cameras.
    static int gridColumns(int count) { return count < 5 ? 2 : 3; }

    int width() const { return width_; }
    int height() const { return height_; }
    const std::vector<Cell> &cells() const { return cells_; }

    // Pixels, by the canvas's height.
    int margin() const { return even(std::max(4, height_ / 60)); }
    int timeTextSize() const { return std::max(14, height_ / 27); }
    int labelTextSize() const { return std::max(12, height_ / 40); }
    int markerBlock() const { return std::max(4, even(height_ / 90)); }

private:
    static int even(int value) { return value & ~1; }
    static Rect fit(int sourceWidth, int sourceHeight, int width, int height);
    void addCell(const Source &source, Rect area);

    int width_ = 0;
    int height_ = 0;
    std::vector<Cell> cells_;
};
