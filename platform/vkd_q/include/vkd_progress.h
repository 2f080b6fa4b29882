#pragma once

#include <functional>

/// How long work asks its caller now and then whether to go on. It says how much is done in
/// percent, or 0 where that is not known. Work that is told not to go on ends soon and leaves what
/// is stored as it was. Without a function nobody is asked.
using VkdGoOn = std::function<bool(int percent)>;

/// Counts the steps of long work and asks every thousandth time.
class VkdSteps
{
public:
    /// `total` is how many there are, 0 if that is not known. `goOn` outlives the object.
    explicit VkdSteps(const VkdGoOn& goOn, int total = 0)
        : m_goOn(goOn)
        , m_total(total)
    {
    }

    /// Counts a step; false from the time on when the work is not to go on.
    bool next()
    {
        if (m_goOn && ++m_done % Stride == 0 && !m_isStopped)
            m_isStopped = !m_goOn(m_total > 0 ? int(100.0 * m_done / m_total) : 0);
        return !m_isStopped;
    }
    bool isStopped() const { return m_isStopped; }

private:
    static constexpr int Stride = 1000;

    const VkdGoOn& m_goOn;
    int m_total;
    int m_done = 0;
    bool m_isStopped = false;
};
