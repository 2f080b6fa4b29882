#include "window/textoutput/TextOutputDialog.h"

#include "window/choice/ChoiceBar.h"
#include "window/support/HelpKey.h"
#include "window/support/okAndCancel.h"
#include "window/support/WindowGeometry.h"
#include "window/support/withinScreen.h"
#include "window/textoutput/CombinationTable.h"
#include "window/textoutput/ContentsPreview.h"
#include "window/textoutput/PrintedContents.h"
#include "window/textoutput/ScrolledBoxes.h"

#include <VKD_QT_Ok.h>
#include <VKD_QT_Widgets.h>

#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

namespace {
using Group = VKD_P_RadioGroup;

QVector<vkd::dbo::LoadCase> ofKind(const QVector<vkd::dbo::LoadCase>& all, bool isPlain)
{
    QVector<vkd::dbo::LoadCase> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), [isPlain](const auto& any) {
        return (any.kind == vkd::dbo::PlainLoadCase) == isPlain;
    });
    std::sort(found.begin(), found.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return found;
}

std::list<Group::ButtonID> kindsOf(const CombinationTable& table)
{
    std::list<Group::ButtonID> kinds;
    for (int id = Group::All_A; id <= Group::All_NONF; ++id)
        if (!table.numbersOf(id).isEmpty())
            kinds.push_back(Group::ButtonID(id));
    return kinds;
}
} // namespace

TextOutputDialog::TextOutputDialog(ZobHandle project, QWidget* parent)
    : VKD_H_Dialog(parent, "TextOutputDialog")
{
    setWindowTitle(tr("Text Output"));
    setHelpTopic(this, "TEXT/OUTPUT");
    auto columns = new QHBoxLayout;
    (new QVBoxLayout(this))->addLayout(columns);
    auto scrolled = new ScrolledBoxes(this);
    columns->addWidget(scrolled, 3);
    m_boxes = new QVBoxLayout(scrolled->widget());
    m_boxes->setContentsMargins(0, 0, 0, 0);
    addExtent();
    const auto all = vkd::dbo::readLoadCases(project, &m_readStatus);
    addLoadCases(ofKind(all, true));
    addCombinations(ofKind(all, false));
    m_contents = new ContentsPreview(this);
    setHelpTopic(m_contents, "TEXT/CONTENTS");
    columns->addWidget(m_contents, 2);
    connect(m_contents, &ContentsPreview::exportRequested, this,
            &TextOutputDialog::exportRequested);
    m_changes.setSingleShot(true);
    m_changes.setInterval(0);
    connect(&m_changes, &QTimer::timeout, this, [this] {
        m_contents->setContents(
            textContents(printed().lists(*m_loadCaseTable, *m_combinationTable)));
        Q_EMIT choiceChanged();
    });
    addOkRow();
    readState(project);
    const QSize others = sizeHint() - scrolled->sizeHint();
    const int width = qMax(sizeHint().width(), fontMetrics().averageCharWidth() * 120);
    const int height = m_boxes->totalHeightForWidth(width - others.width()); // includes all hints
    resizeWithinScreen(this, {width, height + others.height()});
    new WindowGeometry(this);
}

void TextOutputDialog::readState(ZobHandle project)
{
    VkdStatus status;
    setState(TextOutputState::read(project, ExtentFields::DefaultLists, &status));
    m_saved = state();
    if (m_readStatus.isOk())
        m_readStatus = status;
}

QVBoxLayout* TextOutputDialog::addBox(const QString& title, const QString& explanation)
{
    auto box = new QGroupBox(title, m_boxes->parentWidget());
    auto column = new QVBoxLayout(box);
    auto hint = new QLabel(explanation, box);
    hint->setWordWrap(true);
    column->addWidget(hint);
    m_boxes->addWidget(box);
    return column;
}

void TextOutputDialog::addExtent()
{
    QVBoxLayout* column =
        addBox(tr("Extent of the text output"), tr("Determines which lists are printed. Manually "
                                                   "controlled: those that are checked here."));
    QWidget* box = column->parentWidget();
    setHelpTopic(box, "TEXT/EXTENT");
    m_extent.initEchoOutput(box);
    column->addLayout(m_extent.layout());
    m_fields = new ExtentFields(box);
    column->addWidget(m_fields);
    m_extentResult = addResult(column, "ExtentResult");
    m_extent.useWidget(m_fields);
    // Radio groups of this variant do not forward the signals of their buttons.
    const auto buttons = box->findChildren<QRadioButton*>();
    for (const QRadioButton* button : buttons)
        connect(button, &QRadioButton::toggled, this, &TextOutputDialog::showChoice);
    connect(m_fields, &ExtentFields::changed, this, &TextOutputDialog::showChoice);
}

void TextOutputDialog::addLoadCases(const QVector<vkd::dbo::LoadCase>& loadCases)
{
    QVBoxLayout* column =
        addBox(tr("Load cases in the text output"),
               tr("Determines the load cases for which loads and results are printed. "
                  "Manually: those that are checked in the table."));
    QWidget* box = column->parentWidget();
    setHelpTopic(box, "TEXT/LOADCASES");
    m_loadCases.init(box);
    column->addLayout(m_loadCases.layout());
    m_loadCaseBar = new ChoiceBar(box, "TextLoadCaseChoice");
    column->addWidget(m_loadCaseBar);
    m_loadCaseTable = new PickTable(loadCases, box, "TextLoadCases");
    m_loadCaseTable->setAccessibleName(tr("Load cases"));
    m_loadCaseBar->setTable(m_loadCaseTable);
    column->addWidget(m_loadCaseTable);
    m_loadCaseResult = addResult(column, "LoadCaseResult");
    m_loadCases.useWidget(m_loadCaseTable);
    connect(&m_loadCases, &Group::buttonClicked, this, &TextOutputDialog::showChoice);
    connect(m_loadCaseTable, &PickTable::changed, this, &TextOutputDialog::showChoice);
}

void TextOutputDialog::addCombinations(const QVector<vkd::dbo::LoadCase>& combinations)
{
    QVBoxLayout* column = addBox(
        tr("Combinations in the text output"),
        tr("Determines the combinations for which results are printed: all of one kind, or "
           "manually those "
           "that are checked in the table. The kinds can be changed while Manually is chosen."));
    QWidget* box = column->parentWidget();
    setHelpTopic(box, "TEXT/COMBINATIONS");
    m_kindRow = new QWidget(box);
    column->addWidget(m_kindRow);
    m_combinationBar = new ChoiceBar(box, "TextCombinationChoice");
    column->addWidget(m_combinationBar);
    m_combinationTable = new CombinationTable(combinations, box, "TextCombinations");
    m_combinationTable->setAccessibleName(tr("Combinations"));
    m_combinationBar->setTable(m_combinationTable);
    column->addWidget(m_combinationTable);
    m_combinationResult = addResult(column, "CombinationResult");
    fillKindRow();
    connect(m_combinationTable, &PickTable::changed, this, &TextOutputDialog::updateKindRow);
}

/// Offers only the kinds that occur in the combinations.
void TextOutputDialog::updateKindRow()
{
    if (kindsOf(*m_combinationTable) != m_kinds)
        fillKindRow();
    showChoice();
}

/// The kinds can change only while Manually is chosen, so it is also chosen in the new radio group.
void TextOutputDialog::fillKindRow()
{
    auto row = new QWidget(m_kindRow->parentWidget());
    m_kinds = kindsOf(*m_combinationTable);
    m_combinations = std::make_unique<Group>();
    m_combinations->initForLF(row, m_kinds);
    row->setLayout(m_combinations->layout());
    row->layout()->setContentsMargins(0, 0, 0, 0);
    m_combinations->setSelectedId(Group::Manually);
    m_combinations->useWidget(m_combinationTable);
    connect(m_combinations.get(), &Group::buttonClicked, this, &TextOutputDialog::showChoice);
    delete m_kindRow->parentWidget()->layout()->replaceWidget(m_kindRow, row);
    delete m_kindRow;
    m_kindRow = row;
    QWidget* before = m_loadCaseTable;
    const auto buttons = row->findChildren<QRadioButton*>();
    for (QRadioButton* button : buttons) {
        setTabOrder(before, button);
        before = button;
    }
}

QLabel* TextOutputDialog::addResult(QVBoxLayout* column, const char* name)
{
    auto result = new VKD_QT_Label(this, name);
    result->setWordWrap(true);
    QFont bold = result->font();
    bold.setBold(true);
    result->setFont(bold);
    column->addWidget(result);
    return result;
}

void TextOutputDialog::addOkRow()
{
    auto row = newOkAndCancel(this);
    layout()->addWidget(row);
    connect(row->cmdOk(), &QPushButton::clicked, this, &TextOutputDialog::accept);
    connect(row->cmdCancel(), &QPushButton::clicked, this, &TextOutputDialog::reject);
}

TextOutputState TextOutputDialog::state() const
{
    TextOutputState present;
    present.extent = m_extent.writeXML();
    present.loadCases = m_loadCases.writeXML();
    present.combinations = m_combinations->writeXML();
    present.lists = m_fields->choice().lists;
    present.allValues = m_fields->choice().allValues;
    present.leftOutLoadCases = m_loadCaseTable->leftOut();
    present.leftOutCombinations = m_combinationTable->leftOut();
    present.kinds = m_combinationTable->kinds();
    return present;
}

void TextOutputDialog::setState(const TextOutputState& state)
{
    {
        // Between these steps the dialog shows a mixture of two states and must not be painted.
        const QSignalBlocker fields(m_fields);
        const QSignalBlocker loadCaseTable(m_loadCaseTable);
        const QSignalBlocker combinationTable(m_combinationTable);
        m_fields->setChoice({state.lists, state.allValues});
        m_loadCaseTable->setLeftOut(state.leftOutLoadCases);
        m_combinationTable->setLeftOut(state.leftOutCombinations);
        m_combinationTable->setKinds(state.kinds);
    }
    if (kindsOf(*m_combinationTable) != m_kinds)
        fillKindRow();
    // These are the defaults for a project without a saved state.
    m_extent.setSelectedId(Group::Manually);
    m_loadCases.setSelectedId(Group::All);
    m_combinations->setSelectedId(Group::Manually);
    m_extent.readXML(state.extent);
    m_loadCases.readXML(state.loadCases);
    m_combinations->readXML(state.combinations);
    showChoice();
}

bool TextOutputDialog::isChanged() const
{
    return !(state() == m_saved);
}

/// Updates the fields at once, because the next click must affect the fields that are shown. The
/// table of contents can have many thousand lines, and one click can cause several changes.
void TextOutputDialog::showChoice()
{
    showInFields();
    const PrintedContents contents = printed();
    m_extentResult->setText(contents.extentText());
    m_loadCaseResult->setText(contents.loadCaseText(m_loadCaseTable->numbers().size()));
    m_combinationResult->setText(contents.combinationText(m_combinationTable->numbers().size()));
    m_changes.start();
}

/// Hides widgets that have no effect.
void TextOutputDialog::showInFields()
{
    m_loadCaseBar->setEnabled(m_loadCases.getSelectedId() == Group::Manually);
    m_combinationBar->setEnabled(m_combinations->getSelectedId() == Group::Manually);
    if (m_extent.getSelectedId() == Group::Manually)
        m_fields->showChosen();
    else
        m_fields->showRule(printedExtent());
    if (m_loadCases.getSelectedId() == Group::Manually)
        m_loadCaseTable->showPicked();
    else
        m_loadCaseTable->showRule(printedLoadCases());
    if (m_combinations->getSelectedId() == Group::Manually)
        m_combinationTable->showPicked();
    else
        m_combinationTable->showRule(printedCombinations());
}

PrintedContents TextOutputDialog::printed() const
{
    return {printedExtent(), printedLoadCases(), printedCombinations()};
}

ExtentFields::Choice TextOutputDialog::printedExtent() const
{
    switch (m_extent.getSelectedId()) {
    case Group::Manually: return m_fields->choice();
    case Group::All: return {ExtentFields::AllLists, true};
    default: return {};
    }
}

QVector<int> TextOutputDialog::printedLoadCases() const
{
    switch (m_loadCases.getSelectedId()) {
    case Group::Manually: return m_loadCaseTable->picked();
    case Group::All: return m_loadCaseTable->numbers();
    default: return {};
    }
}

QVector<int> TextOutputDialog::printedCombinations() const
{
    const Group::ButtonID kind = m_combinations->getSelectedId();
    return kind == Group::Manually ? m_combinationTable->picked()
                                   : m_combinationTable->numbersOf(kind);
}

} // namespace workbench
