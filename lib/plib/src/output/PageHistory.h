#pragma once

#include "history/StepStack.h"
#include "output/PageStepName.h"

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;
class VKD_QT4_ComboBox;
struct WidgetGraphicalOutputData;

namespace plib {

/// The state of an output page that undo restores, in the format in which the page saves it.
struct PageState
{
    QString settings;
    QString plots; ///< selection text
    QString host;  ///< state of the host, which only the host interprets
};

/// Provides undo and redo for the output page. It compares the state of the page with the state
/// after the last step, so that the operations need no code for undo. A step contains only the
/// parts of the strings that differ. Hosts use the meta-object of this class, which
/// VKD_P_WidgetGraphicalOutput_Steps.h documents. The object is a child of the page.
class PageHistory : public QObject
{
    Q_OBJECT

public:
    /// `data` must outlive the history.
    PageHistory(VKD_P_WidgetGraphicalOutput* page, WidgetGraphicalOutputData* data);

    Q_INVOKABLE void begin();
    Q_INVOKABLE void end(const QStringList& name, const QString& state);
    Q_INVOKABLE void restart(const QString& state);
    Q_INVOKABLE void amend(const QStringList& name, const QString& state);
    // These overloads have a name that is not translated.
    Q_INVOKABLE void end(const QString& name, const QString& state)
    {
        end(QStringList(name), state);
    }
    Q_INVOKABLE void amend(const QString& name, const QString& state)
    {
        amend(QStringList(name), state);
    }
    Q_INVOKABLE QByteArray steps() const;
    Q_INVOKABLE bool setSteps(const QByteArray& steps);

    /// Ends a change that the page itself makes. A change without a name is not a step; it clears
    /// the history, unless it is part of another step.
    void end(const QStringList& name);

Q_SIGNALS:
    void hostStateRestored(const QString& state);
    void stepped();

private:
    class Step;
    void watchSettings();
    void watchGroup(const VKD_QT_RadioButtonGroup* group);
    void watchList(const VKD_QT4_ComboBox* list);
    void watchPlots();
    PageState present() const;
    void recordFont();
    void record(const PageStepName& name);
    void record(const PageStepName& name, const QString& hostState);
    void restore(const PageState& state);

    WidgetGraphicalOutputData& m_data;
    PageState m_known;      ///< state after the last step
    int m_depth = 0;        ///< number of nested changes; nothing is recorded unless it is 0
    PageStepName m_clicked; ///< the step for the item that has just been checked or unchecked
    StepStack m_stack;
    std::weak_ptr<Step> m_newest; ///< the step of the last change; null if it had no effect
};

/// Marks the lifetime of this object as a single change by a function of the page.
class PageChange
{
public:
    explicit PageChange(PageHistory* history, const QStringList& name = {})
        : m_history(history)
        , m_name(name)
    {
        m_history->begin();
    }
    ~PageChange() { m_history->end(m_name); }
    PageChange(const PageChange&) = delete;
    PageChange& operator=(const PageChange&) = delete;

private:
    PageHistory* m_history;
    QStringList m_name;
};

} // namespace plib
