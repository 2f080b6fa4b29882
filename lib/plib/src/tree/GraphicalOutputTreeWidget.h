#pragma once

#include "tree/PopupHandler.h"

#include <LoadcaseInformation.h>
#include <VKD_QT_TreeWidget.h>

#include <list>
#include <vector>

class VKD_H_PluginParameter;

/// The tree in which the user checks plots and load cases. It shows the plots of the catalogue that
/// fit the page and the model, with the host's load cases under the plots that bind to them. It
/// returns the choice as script lines and as a text for storage. checkStatesChanged() is also
/// emitted once after the tree is rebuilt or a choice is applied. If the catalogue cannot be
/// loaded, the tree shows an error once and then stays empty, without a context menu.
class GraphicalOutputTreeWidget : public VKD_QT_TreeWidget
{
    Q_OBJECT

public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// Loads the catalogue and builds the tree with the default choice. `kind` is the kind of page;
    /// `pluginParameter` is not owned and outlives the tree.
    GraphicalOutputTreeWidget(QWidget* parent, int kind, VKD_H_PluginParameter* pluginParameter,
                              const char* name);
    ~GraphicalOutputTreeWidget() override;

    /// Rebuilds the tree. It gets the default choice if `defaults` is set or if no choice was ever
    /// applied; otherwise it keeps the current choice.
    void rebuild(bool defaults);
    /// Adds or removes a content tag that counts as present whatever the model contains, and
    /// rebuilds the tree. One call removes a tag even if it was added twice.
    void additionalData(const QString& tag, bool add);
    /// Sets the load cases that become rows. A different list restores the default choice; an equal
    /// one changes nothing.
    void setUsedNumbersAndNames(const Rows& newRows);

    /// Replaces `lines` with the script lines of the checked items, with German or English
    /// keywords, and returns their number.
    int collectScriptLines(std::vector<QString>& lines, bool english) const;
    /// Returns the choice as a text for applySelection(). The text names items by identifiers that
    /// are the same in every language. Items that no longer exist when the text is applied are
    /// skipped.
    QString selectionText() const;
    /// Applies a stored choice and unchecks all items that it does not name. An empty text changes
    /// no check box, but still counts as an applied choice.
    void applySelection(const QString& text);

public Q_SLOTS:
    /// Expands the captions, so that all plots are visible; plots are neither expanded nor
    /// collapsed.
    void expandPlots();
    /// Collapses the plots, so that no load case is visible.
    void closeLoads();
    /// Build lines for diagnosis. They are not written anywhere yet.
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
    bool rebuilding = false; // visible in a debugger; not a lock, and never read
    PopupHandler popup;
    std::list<QString> additional;
};
