#pragma once

#include "PopupHandler.h"

#include <LoadcaseInformation.h>
#include <VKD_QT_TreeWidget.h>

#include <list>
#include <vector>

class VKD_H_PluginParameter;

/// The tree from which the user picks plots and load cases: the catalogue, as far as the page and
/// the model have a use for it, with the host's load cases under the plots that bind to them. It
/// gives the choice as lines of a script and as a text to store. checkStatesChanged() is also sent
/// once when it was filled anew or a choice was applied. Without a catalogue it says so once and
/// stays empty for life, with no menu.
class GraphicalOutputTreeWidget : public VKD_QT_TreeWidget
{
    Q_OBJECT

public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// Loads the catalogue and comes up with the default choice. `kind` is the kind of page;
    /// `pluginParameter` is not owned and outlives the tree.
    GraphicalOutputTreeWidget(QWidget* parent, int kind, VKD_H_PluginParameter* pluginParameter,
                              const char* name);
    ~GraphicalOutputTreeWidget() override;

    /// Fills the tree anew. Brings up the default choice if `defaults` is set, or if no choice was
    /// ever applied; else the present choice is carried over.
    void rebuild(bool defaults);
    /// Lets a content tag count as present whatever the model holds, or no longer, and fills the
    /// tree anew. A tag that was added twice is taken away by one call.
    void additionalData(const QString& tag, bool add);
    /// The load cases that become rows. New ones bring up the default choice; the same ones again
    /// change nothing.
    void setUsedNumbersAndNames(const Rows& newRows);

    /// Empties `lines` and fills it with the script lines of what is checked, with German or
    /// English keywords; returns their number.
    int collectScriptLines(std::vector<QString>& lines, bool english) const;
    /// The choice as text for applySelection(). Items are named by identifiers that are the same in
    /// every language; what is not there any more when the text is applied is skipped.
    QString selectionText() const;
    /// Takes over a stored choice; what it does not name is unchecked. An empty text leaves the
    /// check boxes as they are, but counts as a choice that was applied.
    void applySelection(const QString& text);

public Q_SLOTS:
    /// Opens the captions, so that all plots show; plots stay as they are.
    void expandPlots();
    /// Closes the plots, so that no load case shows.
    void closeLoads();
    /// Make the lines of a diagnosis, for which there is no place to go to as yet.
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
    bool rebuilding = false; // for a look in the debugger: nothing reads it, and it is no lock
    PopupHandler popup;
    std::list<QString> additional;
};
