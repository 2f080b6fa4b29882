#include "window/output/PlotLines.h"

#include "project/OpenProject.h"
#include "sheet/SheetPreview.h"
#include "window/script/CheckMark.h"
#include "window/script/ScriptPane.h"
#include "window/support/WindowMessages.h"

#include <vkd_dbo_model.h>
#include <VKD_P_WidgetGraphicalOutput_Role.h>
#include <VKD_P_WidgetGraphicalOutput_Script.h>

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTreeWidget>

namespace workbench {

namespace {
using namespace vkd::plib::widgetgraphicaloutput;

QStringList possibleLines(QObject* script, vkd::Language keywords)
{
    QStringList lines;
    if (script)
        QMetaObject::invokeMethod(script, "possibleLines", Q_RETURN_ARG(QStringList, lines),
                                  Q_ARG(bool, keywords == vkd::Language::English));
    return lines;
}

/// Returns the numbers of all load cases, or std::nullopt if the project currently cannot be read.
ScriptCheck::LoadCases loadCasesOf(const OpenProject& project)
{
    VkdStatus status;
    QSet<int> numbers;
    if (project.isOpen())
        for (const auto& loadCase : vkd::dbo::readLoadCases(project.handle(), &status))
            numbers.insert(loadCase.number);
    return project.isOpen() && status.isOk() ? std::make_optional(numbers) : std::nullopt;
}

/// Returns the captions of a plot. If the item is a load case, appends its name.
QString titleOf(const QTreeWidgetItem* item)
{
    const bool isRow = item->data(0, LoadCaseRole).isValid();
    const QTreeWidgetItem* plot = isRow ? item->parent() : item;
    QStringList parts = plot->data(0, CaptionsRole).toStringList();
    if (isRow)
        parts << item->text(0);
    return parts.join(QStringLiteral(" \u2013 "));
}
} // namespace

PlotLines::PlotLines(OpenProject* project, WindowMessages* messages, ScriptPane* pane,
                     SheetPreview* sheets)
    : m_messages(messages)
    , m_pane(pane)
    , m_sheets(sheets)
{
    const auto grammars = [this] {
        return ScriptGrammars{ScriptGrammar(possibleLines(m_script, vkd::Language::German)),
                              ScriptGrammar(possibleLines(m_script, vkd::Language::English))};
    };
    m_pane->setCheckSource({grammars, [project] { return loadCasesOf(*project); }});
    connect(m_pane, &ScriptPane::lineChosen, this, &PlotLines::showPlotOf);
}

void PlotLines::follow(const QWidget* dialog)
{
    if (!m_tree || !dialog->isAncestorOf(m_tree)) {
        m_script = dialog->findChild<QObject*>(QLatin1String(ScriptObject));
        m_tree = qobject_cast<QTreeWidget*>(m_script->parent());
        connect(m_tree, &QTreeWidget::currentItemChanged, this, [this] { markCurrent(true); });
    }
    markCurrent(false);
}

QVector<int> PlotLines::linesOf(QTreeWidgetItem* item) const
{
    QVector<int> lines;
    if (m_script)
        QMetaObject::invokeMethod(m_script, "linesOfItem", Q_RETURN_ARG(QVector<int>, lines),
                                  Q_ARG(QTreeWidgetItem*, item));
    return lines;
}

void PlotLines::markCurrent(bool reveals)
{
    const QVector<int> lines = m_tree ? linesOf(m_tree->currentItem()) : QVector<int>();
    m_pane->setPlot(lines.value(0), lines.value(1), reveals && !m_isChoosing);
}

void PlotLines::showPlotOf(int line)
{
    QTreeWidgetItem* item = nullptr;
    if (m_script)
        QMetaObject::invokeMethod(m_script, "itemOfLine", Q_RETURN_ARG(QTreeWidgetItem*, item),
                                  Q_ARG(int, line));
    if (!item)
        return;
    const QScopedValueRollback<bool> choosing(m_isChoosing, true);
    const int left = m_tree->horizontalScrollBar()->value();
    m_tree->setCurrentItem(item);
    m_tree->scrollToItem(item);
    m_tree->horizontalScrollBar()->setValue(left); // keeps the check boxes of the captions visible
    m_sheets->showPicture(m_pictures.before(linesOf(item).value(0), m_pane->script()));
    m_messages->say(titleOf(item));
}

} // namespace workbench
