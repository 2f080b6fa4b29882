#pragma once

#include <QtGlobal>

namespace vkd {
namespace aniview {

/// Learns from the frames painted so far how many items a frame can have, so that the view follows
/// the mouse.
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
    static constexpr double FrameSeconds = 0.020; // leaves room for projection and the screen
    static constexpr double LeastItems = 2000;
    static constexpr double MostItems = 100000;
    static constexpr size_t EnoughToLearn = 500; // the fixed cost rules a smaller frame

    double m_secondsPerItem = 1.6e-6;
};

} // namespace aniview
} // namespace vkd
