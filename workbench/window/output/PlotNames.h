#pragma once

#include "window/main/WindowServices.h"

#include <QHash>
#include <QStringList>

class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

/// Gives the plots of an output tree their names in another language.
///
/// The catalogue is kept for the life of the process with the captions in which it was read first,
/// and once read in two languages it offers each plot twice. So pages are filled in the first
/// language, and what is shown then gets the captions that stand at the same place of the catalogue
/// in the other one. A stored choice and the script know plots by identifiers and do not change.
class PlotNames
{
public:
    /// Names stay as they are.
    PlotNames() = default;
    /// Both lists are of the same catalogue; if they differ in length, names stay as they are.
    PlotNames(const QVector<PlotTitles>& from, const QVector<PlotTitles>& to);

    /// Names what was filled in the first language. What has no other name, or no certain one
    /// because two plots of the same captions differ in the other language, keeps its own.
    void apply(QTreeWidget* tree) const;
    /// The captions from the top down to a plot after that.
    QStringList renamed(const QStringList& captions) const;

private:
    void add(const QStringList& path, const QString& name);
    void rename(QTreeWidgetItem* item, QStringList path) const;

    QHash<QStringList, QString> m_names; // of a path of captions in the first language
};

} // namespace workbench
