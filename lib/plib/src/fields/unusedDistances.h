#pragma once

class dlgDistanceDirection;

namespace plib {

/// Shows placeholder texts and tool tips that explain that the distances in a dialog are not
/// stored. Called for plane systems, for which the dialog still shows these fields.
void markUnusedDistances(dlgDistanceDirection& dialog);

} // namespace plib
