#pragma once

#include <QStringList>

#include <vector>

namespace vkd {
namespace h {

/// What a text typed by the user says about groups. Its parts are separated by blanks, commas or
/// semicolons. However long or large, it takes no more time and memory than the existing groups
/// and its own length ask for.
struct GroupInput
{
    std::vector<int> groups; ///< those that exist, ascending
    QStringList unreadable;  ///< parts that make no sense
    QStringList missing;     ///< parts that name no existing group
};

/// Reads numbers and ranges such as 1-5, in either direction and with any dash. A range stands for
/// the existing groups in it, and is missing if there is none. `existing` ascends.
GroupInput readNumbers(const QString& text, const std::vector<int>& existing);

/// Reads names of secondary groups. The case counts only where two names differ in nothing else.
/// `existing` are packed names and ascend.
GroupInput readNames(const QString& text, const std::vector<int>& existing);

} // namespace h
} // namespace vkd
