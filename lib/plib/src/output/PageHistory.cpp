#include "output/PageHistory.h"

#include "history/stepText.h"
#include "history/TextChange.h"
#include "output/SavedPage.h"
#include "output/WidgetGraphicalOutputData.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "VKD_P_WidgetGraphicalOutput_Steps.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QDataStream>
#include <QRadioButton>
#include <QScopedValueRollback>

#include <utility>

namespace plib {

namespace {
constexpr std::size_t MostCharacters = 16000000; // in all steps together; 32 MB

std::size_t sizeOf(const TextChange& change)
{
    return std::size_t(change.before.size()) + std::size_t(change.after.size());
}

QStringList isoAreas()
{
    return stepName("VKD_P_WidgetGraphicalOutput",
                    QT_TRANSLATE_NOOP("VKD_P_WidgetGraphicalOutput", "Iso Areas"));
}

QStringList fontSize()
{
    return stepName("plib::PageStepName", QT_TRANSLATE_NOOP("plib::PageStepName", "Font Size"));
}
} // namespace

class PageHistory::Step : public HistoryStep
{
public:
    Step(PageHistory* history, PageStepName name, const PageState& before, const PageState& after)
        : m_history(history)
        , m_name(std::move(name))
        , m_settings(textChange(before.settings, after.settings))
        , m_plots(textChange(before.plots, after.plots))
        , m_host(textChange(before.host, after.host))
    {
    }

    /// Reads a step that write() has written.
    Step(PageHistory* history, QDataStream& stream)
        : m_history(history)
    {
        stream >> m_name >> m_settings >> m_plots >> m_host;
    }

    void write(QDataStream& stream) const { stream << m_name << m_settings << m_plots << m_host; }
    bool isEmpty() const { return m_settings.isEmpty() && m_plots.isEmpty() && m_host.isEmpty(); }
    /// Changes the state of the host after this step from `known` to `state`.
    void amend(const QString& known, const QString& state)
    {
        m_host = textChange(undone(known, m_host), state);
    }

    QString name() const override { return m_name.text(m_history->m_data); }
    std::size_t size() const override
    {
        return sizeOf(m_settings) + sizeOf(m_plots) + sizeOf(m_host);
    }
    void undo() override
    {
        const PageState& now = m_history->m_known;
        m_history->restore({undone(now.settings, m_settings), undone(now.plots, m_plots),
                            undone(now.host, m_host)});
    }
    void redo() override
    {
        const PageState& now = m_history->m_known;
        m_history->restore({redone(now.settings, m_settings), redone(now.plots, m_plots),
                            redone(now.host, m_host)});
    }

private:
    PageHistory* m_history;
    PageStepName m_name;
    TextChange m_settings;
    TextChange m_plots;
    TextChange m_host;
};

PageHistory::PageHistory(VKD_P_WidgetGraphicalOutput* page, WidgetGraphicalOutputData* data)
    : QObject(page)
    , m_data(*data)
    , m_stack(page, MostCharacters, this)
{
    setObjectName(QLatin1String(vkd::plib::widgetgraphicaloutput::StepsObject));
    watchSettings();
    watchPlots();
    connect(&m_stack, &StepStack::stepped, this, &PageHistory::stepped);
    m_known = present();
}

/// The page must be connected to its buttons before the history, so that a click on a format and
/// the resulting change to the number of pictures are recorded as one step.
void PageHistory::watchSettings()
{
    for (const VKD_QT_RadioButtonGroup* group :
         {m_data.scaleGroup, m_data.formatGroup, m_data.picturesGroup, m_data.viewGroup})
        if (group)
            watchGroup(group);
    for (const VKD_QT4_ComboBox* list : {m_data.scaleCombo, m_data.pageSplitCombo})
        if (list)
            watchList(list);
    if (m_data.fillCheck)
        connect(m_data.fillCheck, &QCheckBox::clicked, this,
                [this] { record(PageStepName(isoAreas())); });
    connect(m_data.fontEdit->edit(), &QLineEdit::editingFinished, this, &PageHistory::recordFont);
    connect(&m_stack, &StepStack::aboutToStep, this, // the user may still be typing
            &PageHistory::recordFont);
}

void PageHistory::watchGroup(const VKD_QT_RadioButtonGroup* group)
{
    connect(group, &VKD_QT_RadioButtonGroup::buttWasClicked, this, [this, group](int entry) {
        record(PageStepName::ofEntry(group->objectName(), entry));
    });
}

void PageHistory::watchList(const VKD_QT4_ComboBox* list)
{
    connect(list, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, list](int entry) { record(PageStepName::ofEntry(list->objectName(), entry)); });
}

void PageHistory::recordFont()
{
    record(PageStepName(fontSize()));
}

/// The tree emits itemChanged() only for changes by the user, but checkStatesChanged() after any
/// change.
void PageHistory::watchPlots()
{
    GraphicalOutputTreeWidget* tree = m_data.tree;
    connect(tree, &QTreeWidget::itemChanged, this,
            [this](QTreeWidgetItem* item) { m_clicked = PageStepName::ofItem(item); });
    connect(tree->model(), &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_clicked = PageStepName(); });
    connect(tree, &GraphicalOutputTreeWidget::checkStatesChanged, this, [this] {
        const PageStepName clicked = std::exchange(m_clicked, PageStepName());
        if (!clicked.isNull())
            record(clicked);
        else if (m_depth == 0)
            restart(m_known.host);
    });
}

PageState PageHistory::present() const
{
    return {m_data.panel->savedParts(), m_data.tree->selectionText(), m_known.host};
}

void PageHistory::begin()
{
    ++m_depth;
}

void PageHistory::end(const QStringList& name, const QString& state)
{
    --m_depth;
    record(PageStepName(name), state);
}

void PageHistory::end(const QStringList& name)
{
    --m_depth;
    if (!name.isEmpty())
        record(PageStepName(name));
    else if (m_depth == 0)
        restart(m_known.host);
}

void PageHistory::restart(const QString& state)
{
    m_known = present();
    m_known.host = state;
    m_newest.reset();
    m_stack.clear();
    Q_EMIT stepped();
}

void PageHistory::amend(const QStringList& name, const QString& state)
{
    const auto newest = m_newest.lock();
    if (!newest)
        return record(PageStepName(name), state);
    newest->amend(m_known.host, state);
    m_known.host = state;
}

QByteArray PageHistory::steps() const
{
    const auto steps = m_stack.steps();
    if (steps.empty())
        return QByteArray();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << m_known.settings << m_known.plots << m_known.host << qint32(m_stack.doneSteps());
    for (const auto& step : steps)
        static_cast<const Step&>(*step).write(stream);
    return bytes;
}

bool PageHistory::setSteps(const QByteArray& steps)
{
    PageState state;
    qint32 done = 0;
    QDataStream stream(steps);
    stream >> state.settings >> state.plots >> state.host >> done;
    const PageState now = present();
    std::vector<std::shared_ptr<HistoryStep>> all;
    while (stream.status() == QDataStream::Ok && !stream.atEnd())
        all.push_back(std::make_shared<Step>(this, stream));
    if (stream.status() != QDataStream::Ok || now.settings != state.settings ||
        now.plots != state.plots)
        return false;
    restore(state);
    m_stack.setSteps(all, done, done);
    Q_EMIT stepped();
    return true;
}

void PageHistory::record(const PageStepName& name)
{
    record(name, m_known.host);
}

void PageHistory::record(const PageStepName& name, const QString& hostState)
{
    if (m_depth > 0)
        return;
    PageState now = present();
    now.host = hostState;
    const auto step = std::make_shared<Step>(this, name, m_known, now);
    m_newest.reset();
    if (step->isEmpty())
        return;
    m_known = now;
    m_newest = step;
    m_stack.push(step);
}

/// Sets the view only if it differs, because a page may have no checked view, and the font size,
/// because its field may contain text that it refuses.
void PageHistory::restore(const PageState& state)
{
    const QScopedValueRollback<int> change(m_depth, m_depth + 1);
    m_newest.reset();
    if (state.host != m_known.host)
        Q_EMIT hostStateRestored(state.host);
    const PageState before = std::exchange(m_known, state);
    if (state.settings != before.settings) {
        const OutputSettings settings = m_data.panel->settings();
        QString wanted = state.settings;
        for (const char* tag : {savedtag::View, savedtag::Font}) {
            const QString part = SavedPage(state.settings, settings).part(tag);
            if (part == SavedPage(before.settings, settings).part(tag))
                wanted.remove(savedPart(tag, part));
        }
        m_data.panel->apply(SavedPage(wanted, settings));
    }
    // The host's state can determine which rows the plots have.
    if (state.plots != before.plots || state.host != before.host)
        m_data.tree->applySelection(state.plots);
}

} // namespace plib
