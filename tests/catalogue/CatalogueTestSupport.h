#pragma once

#include <LoadcaseInformation.h>
#include <OutputNode.h>

#include <QTemporaryDir>

#include <random>
#include <vector>

namespace testsupport {

using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;
using Records = std::vector<plib::GraphicalOutputRecord>;

/// Message texts of the program "grav" for the life of the object, and nothing else on the search
/// path before the tree's own share folder.
class Texts
{
public:
    explicit Texts(const QByteArray& file);
    QString path(const char* name) const;

private:
    QTemporaryDir m_folder;
};

Records parse(const QByteArray& catalogue);

/// A catalogue line from its last columns; titles, words and numbers as in a file.
QByteArray line(const char* titles, const char* caseWord, int preselect, int viewKind,
                const char* german, const char* english);

/// Fills an empty tree with the records, all offered.
void build(plib::OutputNode* root, const Records& records, const Rows& rows);

/// Applies a selection text in single steps, each with the automatic update behind it.
void applyStepByStep(plib::OutputNode* root, const QString& text);

/// The items with check marks, indented, one line each, as the command `tree` prints them.
QString treeText(const plib::OutputNode* root);

/// `count` rows of kind 1, "1 : a", "2 : b", ...
Rows rows(int count);

/// A number from 0 to below `end`.
int below(std::mt19937& random, int end);

} // namespace testsupport
