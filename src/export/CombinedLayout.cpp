#include "export/CombinedLayout.h"

#include <algorithm>
#include <cmath>

using Layout = CombinedExportOptions::Layout;
using Size = CombinedExportOptions::Size;

namespace {
struct Extent {
    int width;
    int height;
};

// The canvas of a fixed-size choice: the usual wide frame of that height.
Extent wideCanvas(Size size)
{
    return size == Size::p720 ? Extent{1280, 720} : Extent{1920, 1080};
}

// Scaled down, never up, to what players take.
Extent capped(double width, double height)
{
    const double scale = std::min({1.0, CombinedLayout::largestWidth / width, CombinedLayout::largestHeight / height});
    return Extent{std::max(2, int(width * scale) & ~1), std::max(2, int(height * scale) & ~1)};
}
} // namespace

CombinedLayout::Rect CombinedLayout::fit(int sourceWidth, int sourceHeight, int width, int height)
{
    if (sourceWidth <= 0 || sourceHeight <= 0)
        return Rect{0, 0, width, height};
    const double scale = std::min(double(width) / sourceWidth, double(height) / sourceHeight);
    const int w = std::clamp(even(int(std::lround(sourceWidth * scale))), 2, width);
    const int h = std::clamp(even(int(std::lround(sourceHeight * scale))), 2, height);
    return Rect{even((width - w) / 2), even((height - h) / 2), w, h};
}

void CombinedLayout::addCell(const Source &source, Rect area)
{
    cells_.push_back(Cell{source.camera, area, fit(source.width, source.height, area.width, area.height)});
}

CombinedLayout CombinedLayout::make(Layout layout, const std::vector<Source> &sources, Size size)
{
    CombinedLayout result;
    if (sources.empty())
        return result;
    // The largest picture among the sources, for the full size.
    Extent largest{0, 0};
    for (const Source &s : sources)
        if (qint64(s.width) * s.height > qint64(largest.width) * largest.height)
            largest = Extent{s.width, s.height};
    if (largest.width <= 0)
        largest = Extent{1280, 720};

    if (layout == Layout::single || sources.size() == 1) {
        const Source &only = sources.front();
        Extent canvas;
        if (only.width <= 0) {
            canvas = size == Size::full ? capped(1920, 1080) : wideCanvas(size);
        } else if (size == Size::full) {
            canvas = capped(only.width, only.height);
        } else {
            // As high as chosen, as wide as the picture's shape asks.
            const int height = wideCanvas(size).height;
            canvas = capped(double(height) * only.width / only.height, height);
        }
        result.width_ = canvas.width;
        result.height_ = canvas.height;
        result.addCell(only, Rect{0, 0, canvas.width, canvas.height});
        return result;
    }

    if (layout == Layout::frontAndSides) {
        const int below = int(sources.size()) - 1;
        Extent canvas;
        if (size == Size::full) {
            const Source &front = sources.front();
            const Extent top = front.width > 0 ? Extent{front.width, front.height} : largest;
            canvas = capped(top.width, top.height * 1.5);
        } else {
            canvas = wideCanvas(size);
        }
        result.width_ = canvas.width;
        result.height_ = canvas.height;
        const int topHeight = even(canvas.height * 2 / 3);
        result.addCell(sources.front(), Rect{0, 0, canvas.width, topHeight});
        for (int i = 0; i < below; ++i) {
            const int x0 = even(canvas.width * i / below);
            const int x1 = i + 1 == below ? canvas.width : even(canvas.width * (i + 1) / below);
            result.addCell(sources[size_t(i) + 1], Rect{x0, topHeight, x1 - x0, canvas.height - topHeight});
        }
        return result;
    }

    const int count = int(sources.size());
    const int columns = gridColumns(count);
    const int rows = (count + columns - 1) / columns;
    const Extent canvas = size == Size::full ? capped(double(largest.width) * columns, double(largest.height) * rows)
                                             : wideCanvas(size);
    result.width_ = canvas.width;
    result.height_ = canvas.height;
    for (int i = 0; i < count; ++i) {
        const int column = i % columns;
        const int row = i / columns;
        const int x0 = even(canvas.width * column / columns);
        const int x1 = column + 1 == columns ? canvas.width : even(canvas.width * (column + 1) / columns);
        const int y0 = even(canvas.height * row / rows);
        const int y1 = row + 1 == rows ? canvas.height : even(canvas.height * (row + 1) / rows);
        result.addCell(sources[size_t(i)], Rect{x0, y0, x1 - x0, y1 - y0});
    }
    return result;
}
