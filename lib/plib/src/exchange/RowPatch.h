#pragma once

#include "record/designFields.h"

#include <QString>

#include <bitset>

namespace plib {

/// Copied parameters that can be applied to a row: some of the words of a record. Words that are
/// not included do not change in the row.
class RowPatch
{
public:
    RowPatch() = default;
    /// Includes all parameters of a record.
    explicit RowPatch(const tagZOB_QUAD_RIM& record);

    int line = 0;   ///< line of the table, starting at 1; for messages
    QString groups; ///< as written in the table

    void setType(int type);
    void set(RealField field, float value);
    void applyTo(tagZOB_QUAD_RIM& record) const;

private:
    static constexpr std::size_t WordCount = sizeof(tagZOB_QUAD_RIM) / 4;

    tagZOB_QUAD_RIM m_record{};
    std::bitset<WordCount> m_words;
};

} // namespace plib
