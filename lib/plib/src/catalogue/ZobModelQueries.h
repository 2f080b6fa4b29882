#pragma once

#include "catalogue/contentFilter.h"

class VKD_H_PluginParameter;

namespace plib {

/// Answers the queries from the projects of a page: cross sections are read from the second
/// document if there is one, everything else from the document of the model. Nothing is cached, so
/// a changed model takes effect at the next call.
class ZobModelQueries : public ModelQueries
{
public:
    /// `parameter` is not owned and outlives this object.
    explicit ZobModelQueries(const VKD_H_PluginParameter* parameter);

    bool has(Content content) const override;
    int kindOfSystem() const override;

private:
    const VKD_H_PluginParameter* m_parameter;
};

} // namespace plib
