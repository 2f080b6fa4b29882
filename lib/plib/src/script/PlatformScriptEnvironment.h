#pragma once

#include "script/outputScript.h"

class VKD_H_PluginParameter;

namespace plib {

/// Obtains the environment-dependent parts of a script from the platform and the project of a page.
class PlatformScriptEnvironment : public ScriptEnvironment
{
public:
    /// `parameter` is not owned and must outlive this object.
    explicit PlatformScriptEnvironment(VKD_H_PluginParameter* parameter);

    QString programHead() const override;
    QString programEnd(Keywords keywords) const override;
    bool hasQuads() const override;
    QString camera() const override;

private:
    VKD_H_PluginParameter* m_parameter;
};

} // namespace plib
