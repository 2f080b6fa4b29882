#pragma once

class DesignParameterTable;

namespace plib {

/// Creates the five columns of the design table with headers, widths and the choice of types.
void buildDesignColumns(DesignParameterTable* table);

} // namespace plib
