#include "commands.h"

#include "CommandLine.h"
#include "OutputTree.h"

#include <VKD_P_WidgetGraphicalOutput_Progname.h>

namespace workbench {

namespace {
QString mark(const plib::OutputNode* node)
{
    if (node->plain) // has no check box
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
        *text +=
            QString(2 * depth, QLatin1Char(' ')) + mark(node) + node->text(0) + QLatin1Char('\n');
        append(node, depth + 1, text);
    }
}
} // namespace

int treeCommand(const QStringList& arguments)
{
    CommandLine line(
        QStringLiteral("Prints the tree of plots that a project offers: [x] chosen, [-] "
                       "chosen in part, [ ] not chosen."),
        {QStringLiteral("FILE")},
        {{QStringLiteral("progname"), QStringLiteral("N"),
          QStringLiteral("Kind of page: 1 standard (default), 122 split, 222 prefix.")},
         {QStringLiteral("selection"), QStringLiteral("FILE"),
          QStringLiteral("Takes the choice from a selection text.")},
         languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    OutputTree tree(line.argument(0), line.number("progname", VKD_P_GraphicalOutput_Standard),
                    nullptr);
    if (line.has("selection"))
        tree.applySelection(readText(line.value("selection")));
    QString text;
    append(tree.root(), 0, &text);
    print(text);
    return 0;
}

} // namespace workbench
