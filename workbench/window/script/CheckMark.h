#pragma once

#include "check/ScriptCheck.h"

#include <QTimer>
#include <QToolButton>

#include <functional>

namespace workbench {

class ScriptView;

/// The data against which a script is checked.
struct CheckSource
{
    std::function<ScriptGrammars()> grammars; ///< called by each check until it succeeds
    std::function<ScriptCheck::LoadCases()> loadCases;
};

/// Checks the script of a view shortly after each change and shows the number of findings. The view
/// underlines the findings, and a click selects the next one. The check runs after the script has
/// been shown, so that it does not delay clicks in the output page.
class CheckMark : public QToolButton
{
    Q_OBJECT

public:
    /// `view` is not owned and must outlive the button.
    CheckMark(ScriptView* view, QWidget* parent);

    void setSource(const CheckSource& source) { m_source = source; }
    /// Checks the script later. Until then, the button shows no result.
    void scriptChanged(vkd::Language keywords);

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void check();
    void step();
    void showResult();

    ScriptView* m_view;
    CheckSource m_source;
    ScriptGrammars m_grammars;
    vkd::Language m_keywords = vkd::Language::English;
    QTimer m_waiting;
    int m_shown = -1; // index of the finding that the last click selected
};

} // namespace workbench
