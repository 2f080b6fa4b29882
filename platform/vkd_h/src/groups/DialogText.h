#pragma once

#include <QCoreApplication>

namespace vkd {
namespace h {

/// Translates in the context of the group dialogs.
struct DialogText
{
    Q_DECLARE_TR_FUNCTIONS(VKD_H_GroupDialog)
};

} // namespace h
} // namespace vkd
