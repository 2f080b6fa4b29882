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
/// load case. They account for most of the time and memory required for a row. Because they are
/// identical under each plot, items with the same appearance share them. Two strings are considered
/// identical if they share their data, as the strings for the rows of one load case do. Looks are
/// searched in the order of their creation, because all plots have the same rows. A lookup by key
/// would cause a cache miss for each row.
class RowLooks
{
public:
    /// Uses the row icon for this language.
    explicit RowLooks(vkd::Language language);

    /// Returns an item with the look of a checked or unchecked row with this text and load case.
    const QTreeWidgetItem& of(const QString& text, int number, bool checked);

private:
    /// The struct is small, because the looks of all load cases should fit into the processor's
    /// caches.
    struct Looks
    {
        bool belongTo(const QString& rowText, int rowNumber) const
        {
            return number == rowNumber && text.isSharedWith(rowText);
        }

        QString text; // keeps the string data at its address
        int number;
        std::unique_ptr<const QTreeWidgetItem> unchecked;
        std::unique_ptr<const QTreeWidgetItem> checked;
    };

    std::unique_ptr<const QTreeWidgetItem> newLook(const QString& text, int number,
                                                   Qt::CheckState state) const;
    const Looks& find(const QString& text, int number);

    QIcon m_icon;
    std::vector<Looks> m_looks;
    size_t m_next = 0; // index after the most recently found look
    // Keyed by address and load case, because a host may use the same string for several load
    // cases.
    QHash<QPair<const QChar*, int>, size_t> m_places;
};

} // namespace plib
