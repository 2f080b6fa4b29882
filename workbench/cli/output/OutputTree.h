#pragma once

#include <catalogue/ZobModelQueries.h>
#include <script/Keywords.h>
#include <tree/OutputNode.h>
#include <VKD_H_PluginParameter.h>

#include <LoadcaseInformation.h>

#include <list>
#include <vector>

class VKD_H_ZOBDoc;

namespace workbench {

struct OutputState;

/// The output tree of a project, built without widgets. It uses the same algorithms as the tree of
/// the output page.
class OutputTree
{
public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// Builds the tree with the catalogue's default choice. The tree offers the additional content
    /// of `saved` and the load cases of `rows`. If `rows` is null, it offers the load cases that
    /// `saved` does not exclude. Throws a CommandError if there is no catalogue. The document is
    /// not owned and must outlive the tree.
    OutputTree(VKD_H_ZOBDoc* document, int progname, const OutputState& saved, const Rows* rows);

    VKD_H_PluginParameter* parameter() { return &m_parameter; }
    plib::OutputNode* root() { return &m_root; }
    void applySelection(const QString& text);
    QString selectionText();
    std::vector<QString> scriptLines(plib::Keywords keywords);

private:
    void fill(const Rows& rows, const std::list<QString>& additional);

    VKD_H_PluginParameter m_parameter;
    plib::ZobModelQueries m_queries;
    int m_progname;
    plib::OutputNode m_root;
};

/// Reads load cases from a file with lines `KIND NUMBER NAME`. NAME is the rest of the line after
/// the second space. Throws a CommandError for an invalid line.
OutputTree::Rows readRows(const QString& path);

} // namespace workbench
