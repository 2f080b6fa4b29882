#pragma once

#include "GraphicalOutputTreeWidgetItem.h"

#include <map>
#include <memory>
#include <utility>

namespace plib {

/// What rows of the output tree look like, made once for each load case. Text, icon and check state
/// are most of what a row costs, in time and in memory, and the rows of a load case have them alike
/// under each plot: items that take one look share them. For a short life: texts are told apart by
/// where their characters are, which rows of a load case share.
class RowLooks
{
public:
    /// With the row icon of this language.
    explicit RowLooks(bool english);

    /// The look of a row with this text, checked or unchecked.
    const GraphicalOutputTreeWidgetItem& of(const QString& text, bool checked);

private:
    struct Looks
    {
        explicit Looks(const QString& text, const QIcon& icon);

        QString text; // keeps the characters where they are
        GraphicalOutputTreeWidgetItem unchecked;
        GraphicalOutputTreeWidgetItem checked;
    };

    QIcon m_icon;
    // By the characters' place and number: texts of different lengths may begin at one place.
    std::map<std::pair<const QChar*, int>, std::unique_ptr<const Looks>> m_looks;
};

} // namespace plib
