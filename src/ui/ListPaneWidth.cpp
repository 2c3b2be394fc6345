#include "ListPaneWidth.h"

#include <algorithm>

namespace ListPaneWidth {

double columnWidth(double total, double stored)
{
    const double wanted = std::clamp(stored, leastWidth, mostWidth);
    const double room = std::max(total - detailRoom, leastWidth);
    return std::min(wanted, room);
}

double dragWidth(double widthAtDragStart, double translation)
{
    return std::clamp(widthAtDragStart + translation, leastWidth, mostWidth);
}

} // namespace ListPaneWidth
