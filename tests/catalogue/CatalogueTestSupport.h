#pragma once

#include <LoadcaseInformation.h>
#include <tree/OutputNode.h>

#include <QTemporaryDir>

#include <random>
#include <vector>

namespace testsupport {

using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;
using Records = std::vector<plib::GraphicalOutputRecord>;

/// While the object exists, the messages of the program "grav" are selected, and only the source
/// tree's own share folder is on the search path.
class Texts
{
public:
    explicit Texts(const QByteArray& file);
    QString path(const char* name) const;

private:
    QTemporaryDir m_folder;
};

Records parse(const QByteArray& catalogue);

/// Returns a catalogue line with the given last columns and with typical values in all other
/// columns.
QByteArray line(const char* titles, const char* caseWord, int preselect = 0, int viewKind = 0,
                const char* german = "g", const char* english = "e");

/// Fills an empty tree with the records, all of which are offered.
void build(plib::OutputNode* root, const Records& records, const Rows& rows);

/// Returns the items below the node as indented lines with check marks, in the format of the
/// command `tree`. Works for nodes and for tree widget items.
template <class Node>
QString treeText(const Node* parent, int depth = 0)
{
    const char* const marks[] = {"[ ] ", "[-] ", "[x] "}; // in the order of Qt::CheckState
    QString text;
    for (int i = 0; i < parent->childCount(); ++i) {
        const Node* node = parent->child(i);
        text += QString(2 * depth, QLatin1Char(' ')) + QLatin1String(marks[node->checkState(0)]) +
                node->text(0) + QLatin1Char('\n') + treeText(node, depth + 1);
    }
    return text;
}

/// Returns `count` rows of kind 1: "1 : a", "2 : b", ...
Rows rows(int count);

/// Returns a number from 0 up to, but not including, `end`.
int below(std::mt19937& random, int end);

} // namespace testsupport
