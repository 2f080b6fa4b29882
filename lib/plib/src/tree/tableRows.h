#pragma once

#include <LoadcaseInformation.h>

#include <QString>

#include <vector>

namespace plib {

/// A load case in a row of a host's table.
struct TableLoadCase
{
    double number;
    QString title;
};

/// Returns the rows for the output tree, sorted by number. Numbers are truncated towards zero; if
/// several load cases have the same number, the last one is used. Load cases whose numbers do not
/// fit into 32 bits are omitted, because converting such a number would be undefined behaviour.
std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
rowsOfTable(const std::vector<TableLoadCase>& loadCases);

} // namespace plib
