#include "tree/tableRows.h"

#include "script/rowLabel.h"

#include <limits>
#include <map>

namespace plib {

namespace {
/// Returns false for a NaN, too.
bool fitsInteger(double value)
{
    return value > double(std::numeric_limits<int>::min()) - 1 &&
           value < double(std::numeric_limits<int>::max()) + 1;
}
} // namespace

std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
rowsOfTable(const std::vector<TableLoadCase>& loadCases)
{
    constexpr int PlainLoadCase = 1;
    std::map<int, QString> labels;
    for (const TableLoadCase& loadCase : loadCases)
        if (fitsInteger(loadCase.number))
            labels[int(loadCase.number)] = rowLabel(loadCase.number, loadCase.title);
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> rows;
    rows.reserve(labels.size());
    for (const auto& label : labels)
        rows.push_back({PlainLoadCase, label.first, label.second});
    return rows;
}

} // namespace plib
