#pragma once

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QMap>
#include <QSet>
#include <QString>

namespace workbench {

/// The saved state of the text output: the states of the three radio groups as text, and the
/// individual selections, which are preserved while another button is checked.
struct TextOutputState
{
    QString extent;       ///< state of a radio group; empty if it was never saved
    QString loadCases;    ///< same format
    QString combinations; ///< same format

    int lists = 0;          ///< bits of the checked lists
    bool allValues = false; ///< all values, not only the extreme values
    QSet<int> leftOutLoadCases;
    QSet<int> leftOutCombinations;
    QMap<int, int> kinds; ///< keyed by combination number; see CombinationTable

    /// Reads the state from the project. If no lists were saved, `lists` is set to `defaultLists`.
    /// If reading fails, the reason is in `status`, and the state must not be used.
    static TextOutputState read(ZobHandle project, int defaultLists, VkdStatus* status = nullptr);
    /// Writes the state to the project. Returns the status of VKD_H_ProjectDialogPage::save().
    VkdStatus put(ZobHandle project) const;

    bool operator==(const TextOutputState& other) const;
};

} // namespace workbench
