#include "script/PlatformScriptEnvironment.h"

#include <vkd_dbo_camera.h>
#include <vkd_dbo_queries.h>
#include <VKD_H_PluginParameter.h>
#include <vkd_h_program.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>

#include <QCoreApplication>

namespace plib {

PlatformScriptEnvironment::PlatformScriptEnvironment(VKD_H_PluginParameter* parameter)
    : m_parameter(parameter)
{
}

QString PlatformScriptEnvironment::programHead() const
{
    const QString title =
        QCoreApplication::translate("VKD_P_WidgetGraphicalOutput", "Graphical Output");
    return vkd_h_generatePROG(m_parameter, QStringLiteral("GRAV"), title, title,
                              vkd_lib_getvalue(VKD_SETTING_HEAD_LANGUAGE), 0);
}

QString PlatformScriptEnvironment::programEnd(Keywords keywords) const
{
    return vkd_h_generateENDE(int(keywords));
}

bool PlatformScriptEnvironment::hasQuads() const
{
    return vkd::dbo::hasQuads(m_parameter->modelDoc()->index(), nullptr);
}

QString PlatformScriptEnvironment::camera() const
{
    return vkd::dbo::getAnimatorPerspektive(vkd::dbo::DesktopCamera, vkd::dbo::ScriptCamera);
}

} // namespace plib
