#pragma once

#include <LoadcaseInformation.h>

#include <QString>

#include <vector>

namespace plib {

/// A load case from a row of a host's table.
struct TableLoadCase
{
    double number;
    QString title;
};

/// Returns the rows for the output tree, sorted by number. Numbers are truncated towards zero; if
/// two load cases have the same number, the later one wins. A number that does not fit into 32 bits
/// is omitted, because truncating it would be undefined behaviour.
std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
rowsOfTable(const std::vector<TableLoadCase>& loadCases);

} // namespace plib
