#pragma once

/// Refers to an open project by its database index, as a separate type that cannot be confused with
/// other integers. It does not keep the project open. Handles are passed by value. vkd_zob.h and
/// the other interfaces of the suite take the bare index().
class ZobHandle
{
public:
    /// Constructs a null handle, which refers to no project.
    constexpr ZobHandle() = default;
    constexpr explicit ZobHandle(int index)
        : m_index(index)
    {
    }
    /// Returns the handle of the scratch store, which is always open.
    static constexpr ZobHandle scratch() { return ZobHandle(0); }

    constexpr bool isNull() const { return m_index < 0; }
    /// Returns the database index (see vkd_zob.h), or -1 for a null handle.
    constexpr int index() const { return m_index; }

private:
    int m_index = -1;
};
