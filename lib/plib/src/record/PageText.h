#pragma once

#include <QCoreApplication>

namespace plib {

/// Translates in the context of the design page.
struct PageText
{
    Q_DECLARE_TR_FUNCTIONS(DesignParameter)
};

} // namespace plib
