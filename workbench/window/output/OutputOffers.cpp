#include "window/output/OutputOffers.h"

#include "project/numberTexts.h"
#include "window/choice/ChoiceBar.h"
#include "window/output/LoadCaseTable.h"
#include "window/presets/presetsAction.h"
#include "window/support/HelpKey.h"

#include <VKD_H_TabDialog.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_P_WidgetGraphicalOutput_Steps.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace workbench {

namespace {
// separators in stateText()
constexpr QChar EndOfContent = u' ';
constexpr QChar OffersEnd = u'\n';

QLabel* newHint(const QString& text)
{
    auto hint = new QLabel(text);
    hint->setWordWrap(true);
    return hint;
}

/// Returns the name of an undo step, which the page translates.
template <typename... Argument>
QStringList newStepName(const char* sourceText, const Argument&... argument)
{
    return {QLatin1String("workbench::OutputOffers"), QLatin1String(sourceText), argument...};
}

/// Returns the name of the undo step between two states.
QStringList stepName(const OutputState& before, const OutputState& after)
{
    if (before.content != after.content)
        return newStepName(QT_TRANSLATE_NOOP("workbench::OutputOffers", "Contents"));
    const QSet<int> left = after.leftOutNumbers - before.leftOutNumbers;
    const QSet<int> added = before.leftOutNumbers - after.leftOutNumbers;
    if (left.size() + added.size() != 1)
        return newStepName(QT_TRANSLATE_NOOP("workbench::OutputOffers", "Offered Load Cases"));
    const char* text = left.isEmpty()
                           ? QT_TRANSLATE_NOOP("workbench::OutputOffers", "Offer Load Case %1")
                           : QT_TRANSLATE_NOOP("workbench::OutputOffers", "Leave Out Load Case %1");
    return newStepName(text, QString::number(*(left.isEmpty() ? added : left).begin()));
}
} // namespace

OutputOffers::OutputOffers(ZobHandle project, VKD_P_WidgetGraphicalOutput* page, AnimatorView* view)
    : QObject(page)
    , m_project(project)
    , m_page(page)
    , m_choice(page, view)
    , m_steps(
          page->findChild<QObject*>(QLatin1String(vkd::plib::widgetgraphicaloutput::StepsObject)))
{
}

void OutputOffers::addTo(VKD_H_TabDialog* dialog, const QString& projectPath)
{
    dialog->addTab(newLoadCaseTab(dialog), tr("Load cases"));
    dialog->addTab(newContentTab(dialog), tr("Contents"));
    addPresets(dialog, projectPath);
    connectTabs();
}

/// The button is in the row of the tabs, where it does not need additional space.
void OutputOffers::addPresets(VKD_H_TabDialog* dialog, const QString& projectPath)
{
    const auto apply = [this](const QVariantMap& preset, PlotsOfPreset mode,
                              const QStringList& name) { applyPreset(preset, mode, name); };
    auto button = new QToolButton(dialog);
    button->setObjectName(QStringLiteral("PresetsButton"));
    button->setDefaultAction(
        addPlotPresetsAction(dialog, m_page->findChild<QTreeWidget*>(), apply, projectPath));
    dialog->tabWidget()->setCornerWidget(button);
}

QWidget* OutputOffers::newLoadCaseTab(QWidget* parent)
{
    auto tab = new QWidget(parent);
    setHelpTopic(tab, "GRAV/LOADCASES");
    auto bar = new ChoiceBar(tab, "LoadCaseChoice");
    m_loadCases = new LoadCaseTable(m_project, tab);
    bar->setTable(m_loadCases);
    auto layout = new QVBoxLayout(tab);
    layout->addWidget(newHint(tr("The plots offer the load cases that are checked here. The plots "
                                 "that you have checked stay checked.")));
    layout->addWidget(bar);
    layout->addWidget(m_loadCases);
    return tab;
}

QWidget* OutputOffers::newContentTab(QWidget* parent)
{
    StructRadioButtonGrup model;
    model.text = tr("Plots that suit the model");
    StructRadioButtonGrup solids;
    solids.text = tr("Also plots of bricks");
    auto tab = new QWidget(parent);
    setHelpTopic(tab, "GRAV/CONTENTS");
    m_contents =
        new VKD_QT_RadioButtonGroup(tr("Offered plots"), {model, solids}, tab, "ContentGroup");
    m_contents->setButton(0);
    auto layout = new QVBoxLayout(tab);
    layout->addWidget(m_contents);
    layout->addStretch(1);
    return tab;
}

/// The library's table binding is not used, because it offers only plain load cases.
void OutputOffers::connectTabs()
{
    connect(m_loadCases, &LoadCaseTable::changed, this, [this] {
        begin();
        offerLoadCases();
        finish();
    });
    const auto clicked = &VKD_QT_RadioButtonGroup::buttWasClicked;
    connect(m_contents, clicked, this, &OutputOffers::begin);
    m_contentBinding.setWidget(m_page, m_contents, OutputState::solidsTag(),
                               OutputState::WithSolids);
    connect(m_contents, clicked, this, &OutputOffers::finish);
    const auto defaults =
        m_page->findChild<QAbstractButton*>(QStringLiteral("Button: Default settings"));
    connect(defaults, &QAbstractButton::clicked, this, [this] {
        m_choice.setProposed();
        const char* name = QT_TRANSLATE_NOOP("workbench::OutputOffers", "Default Settings");
        QMetaObject::invokeMethod(m_steps, "amend", Q_ARG(QStringList, newStepName(name)),
                                  Q_ARG(QString, stateText()));
    });
    connect(m_steps, SIGNAL(hostStateRestored(QString)), this, SLOT(restoreState(QString)));
}

void OutputOffers::restore(const OutputState& saved)
{
    m_loadCases->setLeftOutNumbers(saved.leftOutNumbers);
    m_absentNumbers = saved.leftOutNumbers - m_loadCases->leftOutNumbers();
    if (saved.content == OutputState::WithSolids) {
        m_contents->setButton(saved.content);
        m_contentBinding.clicked(saved.content); // the setter does not emit a signal
    }
    offerLoadCases();
    m_choice.setProposed();
    if (!saved.page.isEmpty())
        m_choice.setSaved(saved.page);
    readTo(&m_known);
    QMetaObject::invokeMethod(m_steps, "restart", Q_ARG(QString, stateText()));
}

void OutputOffers::readTo(OutputState* state) const
{
    state->content = m_contents->selectedButton();
    state->leftOutNumbers = m_loadCases->leftOutNumbers() + m_absentNumbers;
}

/// The tree is rebuilt between begin() and finish(). finish() checks the user's plots again. The
/// whole change is one undo step.
void OutputOffers::begin()
{
    QMetaObject::invokeMethod(m_steps, "begin");
    m_choice.remember();
}

void OutputOffers::finish()
{
    m_choice.giveBack();
    const OutputState before = m_known;
    readTo(&m_known);
    QMetaObject::invokeMethod(m_steps, "end", Q_ARG(QStringList, stepName(before, m_known)),
                              Q_ARG(QString, stateText()));
    Q_EMIT changed();
}

void OutputOffers::offerLoadCases()
{
    OutputState present;
    present.leftOutNumbers = m_loadCases->leftOutNumbers();
    m_page->setUsedNumbersAndNames(present.offeredRows(m_project));
}

QString OutputOffers::offersText() const
{
    return QString::number(m_known.content) + EndOfContent + savedNumbers(m_known.leftOutNumbers);
}

QString OutputOffers::stateText() const
{
    return offersText() + OffersEnd + m_choice.stateText();
}

/// Identifies the part of the state that the page cannot compare in setSteps().
QByteArray OutputOffers::stepsHead() const
{
    return (offersText() + EndOfContent + m_choice.chosenDigest() + OffersEnd).toUtf8();
}

QByteArray OutputOffers::steps() const
{
    QByteArray steps;
    QMetaObject::invokeMethod(m_steps, "steps", Q_RETURN_ARG(QByteArray, steps));
    return steps.isEmpty() ? steps : stepsHead() + steps;
}

void OutputOffers::setSteps(const QByteArray& steps)
{
    const QByteArray head = steps.isEmpty() ? QByteArray() : stepsHead();
    if (!head.isEmpty() && steps.startsWith(head))
        QMetaObject::invokeMethod(m_steps, "setSteps", Q_ARG(QByteArray, steps.mid(head.size())));
}

/// Applies the contents of a preset of plots as an undo step with this name.
void OutputOffers::applyPreset(const QVariantMap& preset, PlotsOfPreset mode,
                               const QStringList& stepName)
{
    QMetaObject::invokeMethod(m_steps, "begin");
    m_choice.apply(preset, mode);
    QMetaObject::invokeMethod(m_steps, "end", Q_ARG(QStringList, stepName),
                              Q_ARG(QString, stateText()));
    Q_EMIT changed();
}

/// Called by undo and redo. The page itself restores the plots afterwards. The tree is rebuilt only
/// if the offered plots or load cases change.
void OutputOffers::restoreState(const QString& text)
{
    const QString offers = text.section(OffersEnd, 0, 0);
    const int content = offers.section(EndOfContent, 0, 0).toInt();
    const QSet<int> leftOut = numbersFromSaved(offers.section(EndOfContent, 1));
    const OutputState before = m_known;
    m_loadCases->setLeftOutNumbers(leftOut);
    m_contents->setButton(content);
    m_choice.remember();
    if (content != before.content)
        m_contentBinding.clicked(content);
    if (leftOut != before.leftOutNumbers)
        offerLoadCases();
    m_choice.restoreState(text.section(OffersEnd, 1));
    readTo(&m_known);
    Q_EMIT changed();
}

} // namespace workbench
