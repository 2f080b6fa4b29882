#include "tree/OutputNode.h"

#include <algorithm>

namespace plib {

OutputNode::OutputNode() = default;
OutputNode::~OutputNode() = default;

OutputNode* OutputNode::addChild(const QString& text)
{
    auto& children = branch().children;
    children.push_back(std::make_unique<OutputNode>());
    OutputNode* child = children.back().get();
    child->m_parent = this;
    child->m_text = text;
    return child;
}

void OutputNode::removeChild(OutputNode* child)
{
    // Searches from the end, because usually the most recently added child is removed.
    auto& children = branch().children;
    const auto found = std::find_if(children.rbegin(), children.rend(),
                                    [child](const auto& own) { return own.get() == child; });
    if (found != children.rend())
        children.erase(std::next(found).base());
}

const GraphicalOutputRecord& OutputNode::record() const
{
    static const GraphicalOutputRecord none;
    const OutputNode* owner = this;
    while (owner && !(owner->m_branch && owner->m_branch->record))
        owner = owner->m_parent;
    return owner ? *owner->m_branch->record : none;
}

void OutputNode::setRecord(const GraphicalOutputRecord& record)
{
    if (!m_parent || &m_parent->record() != &record)
        branch().record = std::make_unique<const GraphicalOutputRecord>(record);
    else if (m_branch)
        m_branch->record.reset();
}

OutputNode::Branch& OutputNode::branch()
{
    if (!m_branch)
        m_branch = std::make_unique<Branch>();
    return *m_branch;
}

} // namespace plib
