#pragma once

#include "catalogue/contentFilter.h"

class VKD_H_PluginParameter;

namespace plib {

/// Implements the queries with the projects of a page. Cross sections are read from the second
/// document if there is one, and everything else is read from the model document. Results are not
/// cached, so changes to the model take effect on the next call.
class ZobModelQueries : public ModelQueries
{
public:
    /// `parameter` is not owned and must outlive this object.
    explicit ZobModelQueries(const VKD_H_PluginParameter* parameter);

    bool has(Content content) const override;
    int kindOfSystem() const override;

private:
    const VKD_H_PluginParameter* m_parameter;
};

} // namespace plib
