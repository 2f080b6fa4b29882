#pragma once

class DesignParameterTable;

namespace plib {

/// Gives the design table its five column headers, with their widths and the choice of types.
void buildDesignColumns(DesignParameterTable* table);

} // namespace plib
