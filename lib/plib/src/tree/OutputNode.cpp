#include "tree/OutputNode.h"

#include <algorithm>

namespace plib {

OutputNode* OutputNode::addChild(const QString& text)
{
    m_children.push_back(std::make_unique<OutputNode>());
    OutputNode* child = m_children.back().get();
    child->m_parent = this;
    child->m_text = text;
    return child;
}

void OutputNode::removeChild(OutputNode* child)
{
    // Searches from the end, because usually the most recently added child is removed.
    const auto found = std::find_if(m_children.rbegin(), m_children.rend(),
                                    [child](const auto& own) { return own.get() == child; });
    if (found != m_children.rend())
        m_children.erase(std::next(found).base());
}

} // namespace plib
