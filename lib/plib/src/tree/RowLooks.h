#pragma once

#include <vkd_language.h>

#include <QHash>
#include <QIcon>
#include <QPair>
#include <QTreeWidgetItem>

#include <memory>
#include <vector>

namespace plib {

/// The text, icon, data roles and check state of rows in the output tree, created once for each
/// load case. They make up most of the time and memory that a row costs, and they are the same
/// under each plot, so that items with the same look share them. Two texts are the same if they
/// share their characters, as those of the rows of a load case do. Looks are searched in the order
/// in which they were created, since all plots have the same rows; a search by a key would miss the
/// processor's caches for each row.
class RowLooks
{
public:
    /// Uses the row icon of this language.
    explicit RowLooks(vkd::Language language);

    /// Returns the look of a row with this text and load case, checked or unchecked.
    const QTreeWidgetItem& of(const QString& text, int number, bool checked);

private:
    /// Small, because those of all load cases should fit into the processor's caches.
    struct Looks
    {
        bool belongTo(const QString& rowText, int rowNumber) const
        {
            return number == rowNumber && text.isSharedWith(rowText);
        }

        QString text; // keeps the characters at their address
        int number;
        std::unique_ptr<const QTreeWidgetItem> unchecked;
        std::unique_ptr<const QTreeWidgetItem> checked;
    };

    std::unique_ptr<const QTreeWidgetItem> newLook(const QString& text, int number,
                                                   Qt::CheckState state) const;
    const Looks& find(const QString& text, int number);

    QIcon m_icon;
    std::vector<Looks> m_looks;
    size_t m_next = 0; // after the look that was found last
    // By address and load case, because a host may use a text for several load cases.
    QHash<QPair<const QChar*, int>, size_t> m_places;
};

} // namespace plib
