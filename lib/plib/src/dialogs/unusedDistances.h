#pragma once

class dlgDistanceDirection;

namespace plib {

/// Shows by placeholder texts and tool tips that the distances in a dialog are not stored. Called
/// for plane systems, in which the dialog still shows these fields.
void markUnusedDistances(dlgDistanceDirection& dialog);

} // namespace plib
