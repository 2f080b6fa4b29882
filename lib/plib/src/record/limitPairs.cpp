#include "record/limitPairs.h"

#include "record/designRecord.h"

namespace plib {

bool isInOrder(float minimum, float maximum)
{
    return minimum == NotSet || maximum == NotSet || maximum >= minimum;
}

} // namespace plib
