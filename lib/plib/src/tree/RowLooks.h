#pragma once

#include <vkd_language.h>

#include <QHash>
#include <QIcon>
#include <QPair>
#include <QTreeWidgetItem>

#include <memory>
#include <vector>

namespace plib {

/// The appearance of rows in the output tree: text, icon, data roles and check state. They account for
/// most of the time and memory required for a row. Because they are identical under each plot, they
/// are created once for each load case and shared by its rows. Two strings are considered identical
/// if they share their data, as the strings for the rows of one load case do. Looks are searched in
/// the order in which they were created, because all plots have the same rows. A lookup by key
/// would cause a cache miss for each row.
class RowLooks
{
public:
    /// Creates looks with the row icon for this language. The icon is created only when it is
    /// needed, because many trees have no rows.
    explicit RowLooks(vkd::Language language);

    /// Returns an item with the look of a row with this text, load case and check state.
    const QTreeWidgetItem& of(const QString& text, int number, bool checked);
    /// Returns an item with the look of this row, but checked or unchecked.
    const QTreeWidgetItem& like(const QTreeWidgetItem& row, int number, bool checked);

private:
    /// The struct is small, so that the structs of all load cases fit into the processor's caches.
    struct Looks
    {
        bool belongTo(const QString& rowText, int rowNumber) const
        {
            return number == rowNumber && text.isSharedWith(rowText);
        }

        QString text; // keeps the string data alive
        int number;
        // Created only when they are needed.
        std::unique_ptr<const QTreeWidgetItem> unchecked;
        std::unique_ptr<const QTreeWidgetItem> checked;
    };

    std::unique_ptr<const QTreeWidgetItem> newLook(const QString& text, int number,
                                                   Qt::CheckState state);
    Looks& find(const QString& text, int number);

    const vkd::Language m_language;
    QIcon m_icon;
    std::vector<Looks> m_looks;
    size_t m_next = 0; // index after the most recently found look
    // Keyed by the address of the string data and the load case, because a host may use the same
    // string for several load cases.
    QHash<QPair<const QChar*, int>, size_t> m_places;
};

} // namespace plib
