#pragma once

#include "tree/PopupHandler.h"

#include <LoadcaseInformation.h>
#include <VKD_QT_TreeWidget.h>

#include <list>
#include <vector>

class VKD_H_PluginParameter;

/// The tree in which the user checks plots and load cases. It shows the plots of the catalogue that
/// match the page and the model, and the host's load cases under the plots that are bound to load
/// cases. It returns the selection as script lines and as a string that can be stored.
/// checkStatesChanged() is also emitted, once, after the tree has been rebuilt or a selection has
/// been applied. If the catalogue cannot be loaded, the tree shows an error once and remains empty,
/// without a context menu.
class GraphicalOutputTreeWidget : public VKD_QT_TreeWidget
{
    Q_OBJECT

public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// Loads the catalogue and builds the tree with the default selection. `kind` is the kind of
    /// page; `pluginParameter` is not owned and must outlive the tree.
    GraphicalOutputTreeWidget(QWidget* parent, int kind, VKD_H_PluginParameter* pluginParameter,
                              const char* name);
    ~GraphicalOutputTreeWidget() override;

    /// Rebuilds the tree. Restores the default selection if `defaults` is true or if no selection
    /// has been applied yet, otherwise keeps the current selection.
    void rebuild(bool defaults);
    /// Adds or removes a content tag that is treated as present regardless of the model, and
    /// rebuilds the tree. One call removes a tag even if it was added twice.
    void additionalData(const QString& tag, bool add);
    /// Sets the load cases that are shown as rows. A different list restores the default selection;
    /// an identical list has no effect.
    void setUsedNumbersAndNames(const Rows& newRows);

    /// Replaces `lines` with the script lines of the checked items, with German or English
    /// keywords, and returns their number.
    int collectScriptLines(std::vector<QString>& lines, bool english) const;
    /// Returns the selection as a string for applySelection(). The string contains identifiers that
    /// are the same in every language. Items that no longer exist when the string is applied are
    /// skipped.
    QString selectionText() const;
    /// Applies a stored selection and unchecks all items that it does not contain. An empty string
    /// does not change any check box, but still counts as an applied selection.
    void applySelection(const QString& text);

public Q_SLOTS:
    /// Expands the captions so that all plots are visible. Plots are neither expanded nor
    /// collapsed.
    void expandPlots();
    /// Collapses the plots so that no load case is visible.
    void closeLoads();
    /// Generates lines for debugging, which are currently not written anywhere.
    void dump() const;
    void dump(QTreeWidgetItem* item, int indent) const;

private:
    void refill(bool defaults);
    void fillTree();
    void setChoice(const QString& text);

    const qint32 progname;
    VKD_H_PluginParameter* parameter;
    Rows rows;
    bool selectionLoaded = false;
    bool rebuilding = false; // for debugging only; never read
    PopupHandler popup;
    std::list<QString> additional;
};
