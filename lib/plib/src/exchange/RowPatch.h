#pragma once

#include "record/designFields.h"

#include <QString>

#include <bitset>

namespace plib {

/// Copied parameters that can be applied to a row. A patch contains some or all words of a record;
/// the other words of the row do not change.
class RowPatch
{
public:
    RowPatch() = default;
    /// Creates a patch with all parameters of a record.
    explicit RowPatch(const tagZOB_QUAD_RIM& record);

    int line = 0;   ///< line number in the table, starting at 1; used in messages
    QString groups; ///< as written in the table

    void setType(int type);
    void set(RealField field, float value);
    bool has(RealField field) const;
    bool isEmpty() const { return m_words.none(); }
    void applyTo(tagZOB_QUAD_RIM& record) const;

private:
    static constexpr std::size_t WordCount = sizeof(tagZOB_QUAD_RIM) / 4;

    tagZOB_QUAD_RIM m_record{};
    std::bitset<WordCount> m_words;
};

} // namespace plib
