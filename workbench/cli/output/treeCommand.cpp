#include "cli/commands.h"

#include "cli/CommandLine.h"
#include "cli/output/OutputTree.h"
#include "cli/output/savedChoice.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_status.h>

namespace workbench {

namespace {
QString mark(const plib::OutputNode* node)
{
    if (node->plain) // the item has no check box
        return QString();
    switch (node->checkState(0)) {
    case Qt::Checked: return QStringLiteral("[x] ");
    case Qt::PartiallyChecked: return QStringLiteral("[-] ");
    default: return QStringLiteral("[ ] ");
    }
}

void append(const plib::OutputNode* parent, int depth, QString* text)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        const plib::OutputNode* node = parent->child(i);
        *text += QString(2 * depth, QLatin1Char(' ')) + mark(node) + vkd_oneLine(node->text(0)) +
                 QLatin1Char('\n');
        append(node, depth + 1, text);
    }
}
} // namespace

int treeCommand(const QStringList& arguments)
{
    std::vector<CommandLine::Option> options = choiceOptions();
    options.push_back(languageOption());
    CommandLine line(
        QStringLiteral("Prints the tree of plots that a project offers: [x] chosen, [-] partly "
                       "chosen, [ ] not chosen. Uses the choice that the window has saved in the "
                       "project. If none is saved, uses the plots that the catalogue proposes."),
        {QStringLiteral("FILE")}, options);
    line.parse(arguments);
    applyLanguage(line);
    const auto document = openProject(line.argument(0));
    const OutputState saved = savedChoice(line, document->handle());
    OutputTree tree(document.get(), progname(line), saved, nullptr);
    tree.applySelection(chosenPlots(line, saved));
    QString text;
    append(tree.root(), 0, &text);
    print(text);
    return 0;
}

} // namespace workbench
