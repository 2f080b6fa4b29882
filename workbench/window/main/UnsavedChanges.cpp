#include "window/main/UnsavedChanges.h"

#include "window/design/DesignEditor.h"
#include "window/output/OutputEditor.h"
#include "window/textoutput/TextOutputEditor.h"

namespace workbench {

UnsavedChanges::UnsavedChanges(DesignEditor* design, OutputEditor* output,
                               TextOutputEditor* textOutput)
    : m_design(design)
    , m_output(output)
    , m_textOutput(textOutput)
{
}

bool UnsavedChanges::exist() const
{
    return m_design->isChanged() || m_output->isChanged() || m_textOutput->isChanged();
}

bool UnsavedChanges::finishEditing() const
{
    return m_design->finishEditing() && m_output->finishEditing();
}

bool UnsavedChanges::store() const
{
    return m_design->store() && m_output->finishEditing() &&
           (!m_output->isChanged() || m_output->store()) &&
           (!m_textOutput->isChanged() || m_textOutput->store());
}

bool UnsavedChanges::mayLeave() const
{
    return m_design->mayLeave() && m_textOutput->mayLeave() && m_output->mayLeave();
}

} // namespace workbench
