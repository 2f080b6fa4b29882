#pragma once

#include <vkd_zob.h>

#include <QMap>
#include <QSet>
#include <QString>

namespace workbench {

/// What the project keeps of the text output: the kept texts of the three radio groups, and what
/// was picked by hand, which stays while another button is chosen.
struct TextOutputState
{
    QString extent;       ///< text of a radio group; empty until it was stored first
    QString loadCases;    ///< likewise
    QString combinations; ///< likewise

    int lists = 0;          ///< bits of the lists that are checked
    bool allValues = false; ///< not the extreme values alone
    QSet<int> leftOutLoadCases;
    QSet<int> leftOutCombinations;
    QMap<int, int> kinds; ///< of the combinations by their numbers, see CombinationTable

    /// The state that lies in the project at this database index. Lists that were never stored are
    /// those of `defaultLists`.
    static TextOutputState read(int index, int defaultLists);
    /// The result is a VkdZobStatus.
    cd_error_t write(int index) const;

    bool operator==(const TextOutputState& other) const;
};

} // namespace workbench
