#pragma once

#include "tree/GraphicalOutputTreeWidgetItem.h"

#include <vkd_language.h>

#include <map>
#include <memory>
#include <tuple>

namespace plib {

/// The text, icon, data roles and check state of rows in the output tree, created once for each
/// load case. They make up most of the time and memory that a row costs, and they are the same
/// under each plot, so that items with the same look share them. Texts are compared by the address
/// of their characters, which the rows of a load case share; so an object must not outlive the pass
/// that fills the tree.
class RowLooks
{
public:
    /// Uses the row icon of this language.
    explicit RowLooks(vkd::Language language);

    /// Returns the look of a row with this text and load case, checked or unchecked.
    const GraphicalOutputTreeWidgetItem& of(const QString& text, int number, bool checked);

private:
    struct Looks
    {
        Looks(const QString& text, int number, const QIcon& icon);

        QString text; // keeps the characters at their address
        GraphicalOutputTreeWidgetItem unchecked;
        GraphicalOutputTreeWidgetItem checked;
    };

    QIcon m_icon;
    // The keys are address, length and load case: texts of different lengths may begin at the same
    // address, and a host may use a text for several load cases.
    std::map<std::tuple<const QChar*, int, int>, std::unique_ptr<const Looks>> m_looks;
};

} // namespace plib
