#include "exchange/RowPatch.h"

#include <algorithm>
#include <iterator>

namespace plib {

namespace {
using vkd::plib::designparameter::RecordWords;

bool isKey(const NamedField& word)
{
    return word.integer == &tagZOB_QUAD_RIM::group || word.integer == &tagZOB_QUAD_RIM::subId;
}

template <typename Field>
std::size_t wordOf(Field field, Field NamedField::*member)
{
    const auto word = std::find_if(std::begin(RecordWords), std::end(RecordWords),
                                   [=](const NamedField& any) { return any.*member == field; });
    return std::size_t(word - std::begin(RecordWords));
}
} // namespace

RowPatch::RowPatch(const tagZOB_QUAD_RIM& record)
    : m_record(record)
{
    for (std::size_t word = 0; word < WordCount; ++word)
        m_words[word] = !isKey(RecordWords[word]);
}

void RowPatch::setType(int type)
{
    m_record.type = type;
    m_words.set(wordOf(&tagZOB_QUAD_RIM::type, &NamedField::integer));
}

void RowPatch::set(RealField field, float value)
{
    m_record.*field = value;
    m_words.set(wordOf(field, &NamedField::real));
}

bool RowPatch::has(RealField field) const
{
    return m_words[wordOf(field, &NamedField::real)];
}

void RowPatch::applyTo(tagZOB_QUAD_RIM& record) const
{
    for (std::size_t word = 0; word < WordCount; ++word) {
        if (!m_words[word])
            continue;
        const NamedField& field = RecordWords[word];
        if (field.integer)
            record.*field.integer = m_record.*field.integer;
        else
            record.*field.real = m_record.*field.real;
    }
}

} // namespace plib
