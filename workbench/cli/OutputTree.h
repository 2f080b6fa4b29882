#pragma once

#include <OutputNode.h>
#include <VKD_H_PluginParameter.h>
#include <ZobModelQueries.h>

#include <LoadcaseInformation.h>

#include <memory>
#include <vector>

class VKD_H_ZOBDoc;

namespace workbench {

class CommandLine;

/// The output tree of a project without widgets: what the output page shows, built and asked by the
/// same algorithms.
class OutputTree
{
public:
    using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

    /// Opens the project and builds the tree with its default choice; throws a CommandError.
    OutputTree(const QString& projectPath, int progname, const Rows* rows);
    ~OutputTree();

    VKD_H_PluginParameter* parameter() { return &m_parameter; }
    plib::OutputNode* root() { return &m_root; }
    void applySelection(const QString& text);
    QString selectionText();
    std::vector<QString> scriptLines(bool english);

private:
    void fill(const Rows& rows);

    std::unique_ptr<VKD_H_ZOBDoc> m_document;
    VKD_H_PluginParameter m_parameter;
    plib::ZobModelQueries m_queries;
    int m_progname;
    plib::OutputNode m_root;
};

/// The rows of a file with a line `KIND NUMBER NAME` for each; NAME is all behind the second blank.
OutputTree::Rows readRows(const QString& path);

} // namespace workbench
