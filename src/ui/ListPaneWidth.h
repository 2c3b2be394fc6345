#pragma once

// The width of the event list beside the detail column, and how the drag
// handle changes the stored value.
namespace ListPaneWidth {

inline constexpr double defaultWidth = 340;
inline constexpr double leastWidth = 300;
inline constexpr double mostWidth = 560;
inline constexpr double detailRoom = 488; // kept for the detail column

// The list column's width in a row `total` wide. The stored value is only
// held within bounds here, never rewritten: a narrow window squeezes the
// column without forgetting the wish.
double columnWidth(double total, double stored);
// The stored width during a drag, always from the drag's start so that
// going past an end and back does not drift.
double dragWidth(double widthAtDragStart, double translation);

} // namespace ListPaneWidth
