#pragma once

#include "contentFilter.h"

class VKD_H_PluginParameter;

namespace plib {

/// Answers from the projects that a page was given: cross sections from the second document if
/// there is one, all else from the model's. Keeps nothing, so that a changed model shows at the
/// next call.
class ZobModelQueries : public ModelQueries
{
public:
    /// `parameter` is not owned and has to outlive the object.
    explicit ZobModelQueries(const VKD_H_PluginParameter* parameter);

    bool has(Content content) const override;
    int kindOfSystem() const override;

private:
    const VKD_H_PluginParameter* m_parameter;
};

} // namespace plib
