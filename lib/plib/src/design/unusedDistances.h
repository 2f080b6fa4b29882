#pragma once

class dlgDistanceDirection;

namespace plib {

/// Says at the distances of a dialog that they are not stored: as the text of the empty fields and
/// in the tool tips. For plane systems, where the fields are there none the less.
void markUnusedDistances(dlgDistanceDirection& dialog);

} // namespace plib
