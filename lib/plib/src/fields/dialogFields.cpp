#include "fields/dialogFields.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>

#include <algorithm>
#include <iterator>

namespace plib {

void showValue(const DialogField& field, float value)
{
    if (field.bar)
        field.bar->setCurrent(value);
    else
        field.edit->setVal(double(value));
}

float valueOf(const DialogField& field)
{
    return field.bar ? field.bar->getCurrent() : float(field.edit->getVal());
}

void showValues(const DialogFields& fields, const tagZOB_QUAD_RIM& record)
{
    for (const DialogField& field : fields)
        showValue(field, record.*field.field);
}

std::vector<float> valuesOf(const DialogFields& fields)
{
    std::vector<float> values;
    std::transform(fields.begin(), fields.end(), std::back_inserter(values), valueOf);
    return values;
}

void writeValues(const DialogFields& fields, tagZOB_QUAD_RIM* record)
{
    for (const DialogField& field : fields)
        record->*field.field = valueOf(field);
}

} // namespace plib
