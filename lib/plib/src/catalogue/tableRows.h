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

/// The rows for the output tree in rising order of number. The number is cut towards zero; of two
/// load cases with the same one the later counts. One that does not fit 32 bits is left out,
/// because cutting it would be undefined.
std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
rowsOfTable(const std::vector<TableLoadCase>& loadCases);

} // namespace plib
