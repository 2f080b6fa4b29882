#pragma once

#include "record/designFields.h"

#include <QString>

#include <bitset>

namespace plib {

/// Parameters that were copied, to be set in a row: some words of a record. Words that are not
/// included stay as they are in the row.
class RowPatch
{
public:
    RowPatch() = default;
    /// Includes all parameters of a record.
    explicit RowPatch(const tagZOB_QUAD_RIM& record);

    int line = 0;   ///< of the table, counted from 1; for messages
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
