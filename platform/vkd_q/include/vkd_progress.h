#pragma once

#include <functional>

/// The callback by which a long operation reports its progress and asks whether to continue. The
/// argument is the progress in percent, or 0 if it is unknown. If the callback returns false, the
/// operation stops soon and stores nothing. If the callback is empty, the operation always
/// continues.
using VkdGoOn = std::function<bool(int percent)>;

/// Counts the steps of a long operation and calls `goOn` after every thousand steps.
class VkdSteps
{
public:
    /// `total` is the number of steps, or 0 if it is unknown. `goOn` must outlive the object.
    explicit VkdSteps(const VkdGoOn& goOn, int total = 0)
        : m_goOn(goOn)
        , m_total(total)
    {
    }

    /// Counts a step. Returns false once `goOn` has returned false.
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
