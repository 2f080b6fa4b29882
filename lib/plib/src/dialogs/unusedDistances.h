#pragma once

class dlgDistanceDirection;

namespace plib {

/// Shows at the distances of a dialog that they are not stored, by placeholder texts and tool tips.
/// Called for plane systems, in which the dialog shows the fields all the same.
void markUnusedDistances(dlgDistanceDirection& dialog);

} // namespace plib
