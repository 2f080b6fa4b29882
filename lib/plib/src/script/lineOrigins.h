#pragma once

#include "script/scriptLines.h"

#include <algorithm>

namespace plib {

struct LineRange
{
    int first = 0;
    int count = 0;
};

/// Returns the item that wrote a line, or null. The check states must be the same as when the
/// script was written.
template <typename Node>
Node* itemOfLine(Node* root, const LineOrigins& origins, int line)
{
    if (line < 0 || line >= origins.count)
        return nullptr;
    const auto next = std::upper_bound(origins.starts.begin(), origins.starts.end(), line);
    auto skipped = next - origins.starts.begin();
    Node* found = nullptr;
    for (int i = 0; i < root->childCount() && !found; ++i)
        visitWriters(root->child(i), [&](auto* item, Node*) {
            found = --skipped == 0 ? item : nullptr;
            return !found;
        });
    return found;
}

/// Returns the lines that an item and its descendants wrote, which are adjacent. The check states
/// must be the same as when the script was written.
template <typename Node>
LineRange linesOfItem(Node* root, const LineOrigins& origins, const Node* item)
{
    const auto isBelow = [item](const Node* node) {
        while (node && node != item)
            node = node->parent();
        return node != nullptr;
    };
    const int none = -1;
    int begin = none;
    int end = none;
    int place = 0;
    for (int i = 0; i < root->childCount(); ++i)
        visitWriters(root->child(i), [&](const Node* writer, Node*) {
            if (isBelow(writer)) {
                begin = begin == none ? place : begin;
                end = place + 1;
            }
            ++place;
            return end == none || end == place; // stops after the item's last line
        });
    const int writers = int(origins.starts.size());
    if (end == none || end > writers)
        return {};
    const int first = origins.starts[std::size_t(begin)];
    const int after = end < writers ? origins.starts[std::size_t(end)] : origins.count;
    return {first, after - first};
}

} // namespace plib
