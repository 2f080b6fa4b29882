#include "cli/output/OutputTree.h"

#include "cli/CommandLine.h"
#include "project/output/OutputState.h"

#include <catalogue/Catalogue.h>
#include <script/scriptLines.h>
#include <tree/selectionText.h>
#include <tree/TreeBuilder.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_language.h>

#include <QCoreApplication>

#include <set>

namespace workbench {

namespace {
constexpr int NoPage = 0; // an unused column of the catalogue

std::list<QString> additionalContents(const OutputState& saved)
{
    if (saved.content == OutputState::WithSolids)
        return {OutputState::solidsTag()};
    return {};
}

void showError(const QString& title, const QString& text)
{
    throw CommandError{QStringLiteral("%1: %2").arg(title, text)};
}
/// Throws a CommandError for an unknown kind of page. The library accepts every number, but a
/// number that occurs neither in the library nor in the catalogue is a user error.
void checkProgname(int progname, const plib::Catalogue& catalogue)
{
    std::set<int> known{VKD_P_GraphicalOutput_Standard, VKD_P_GraphicalOutput_Split,
                        VKD_P_GraphicalOutput_Prefix};
    for (const plib::GraphicalOutputRecord& record : catalogue.list)
        known.insert({record.prog1, record.prog2, record.prog3});
    known.erase(NoPage);
    if (known.count(progname))
        return;
    QStringList numbers;
    for (int number : known)
        numbers << QString::number(number);
    throw CommandError{QStringLiteral("--progname must be one of %1, not %2")
                           .arg(numbers.join(QLatin1String(", ")))
                           .arg(progname)};
}
} // namespace

OutputTree::OutputTree(VKD_H_ZOBDoc* document, int progname, const OutputState& saved,
                       const Rows* rows)
    : m_parameter(document)
    , m_queries(&m_parameter)
    , m_progname(progname)
{
    fill(rows ? *rows : saved.offeredRows(document->handle()), additionalContents(saved));
}

void OutputTree::fill(const Rows& rows, const std::list<QString>& additional)
{
    plib::Catalogue& catalogue = plib::sharedCatalogue();
    plib::loadCatalogue(catalogue, vkd::desktopLanguage(), showError);
    checkProgname(m_progname, catalogue);
    plib::OutputNodeOperations operations(&m_root);
    plib::TreeBuilder<plib::OutputNode, plib::OutputNodeOperations> builder(&m_root, rows,
                                                                            operations);
    const plib::RememberedAnswers model(m_queries);
    for (const plib::GraphicalOutputRecord& record : catalogue.list)
        if (plib::isRecordOffered(record, m_progname, model, additional))
            builder.add(record);
    builder.finish();
    if (m_root.childCount() == 0)
        m_root
            .addChild(
                QCoreApplication::translate("GraphicalOutputTreeWidget", "No Entries in database!"))
            ->plain = true;
}

void OutputTree::applySelection(const QString& text)
{
    plib::applySelection(&m_root, text);
}

QString OutputTree::selectionText()
{
    return plib::selectionText(&m_root);
}

std::vector<QString> OutputTree::scriptLines(plib::Keywords keywords)
{
    std::vector<QString> lines;
    plib::collectScriptLines(&m_root, lines, keywords, m_progname,
                             [this] { return m_queries.kindOfSystem(); });
    return lines;
}

OutputTree::Rows readRows(const QString& path)
{
    OutputTree::Rows rows;
    const QStringList lines = readText(path).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed().isEmpty())
            continue;
        bool hasKind = false;
        bool hasNumber = false;
        const int kind = lines[i].section(QLatin1Char(' '), 0, 0).toInt(&hasKind);
        const int number = lines[i].section(QLatin1Char(' '), 1, 1).toInt(&hasNumber);
        if (!hasKind || !hasNumber || kind < 1 || kind > 2)
            throw CommandError{QStringLiteral("%1:%2: a kind of 1 or 2, a number and a name are "
                                              "required")
                                   .arg(path, QString::number(i + 1))};
        rows.push_back({kind, number, lines[i].section(QLatin1Char(' '), 2)});
    }
    return rows;
}

} // namespace workbench
