#pragma once

#include <QtGlobal>

namespace vkd {
namespace aniview {

/// Estimates from the previously painted frames how many items a frame can contain so that the view
/// keeps up with the mouse.
class PaintingPace
{
public:
    /// Returns the number of items that can be painted in one frame.
    int itemsInFrame() const
    {
        return int(qBound(LeastItems, FrameSeconds / m_secondsPerItem, MostItems));
    }

    void painted(size_t items, double seconds)
    {
        if (items >= EnoughToLearn)
            m_secondsPerItem = 0.5 * m_secondsPerItem + 0.5 * seconds / double(items);
    }

private:
    static constexpr double FrameSeconds = 0.020; // leaves time for projection and display
    static constexpr double LeastItems = 2000;
    static constexpr double MostItems = 100000;
    static constexpr size_t EnoughToLearn = 500; // the fixed cost dominates in smaller frames

    double m_secondsPerItem = 1.6e-6;
};

} // namespace aniview
} // namespace vkd
