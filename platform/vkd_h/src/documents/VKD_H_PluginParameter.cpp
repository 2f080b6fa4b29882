#include "VKD_H_PluginParameter.h"

VKD_H_PluginParameter::VKD_H_PluginParameter(VKD_H_ZOBDoc* model, VKD_H_ZOBDoc* sections)
    : m_model(model)
    , m_sections(sections)
{
}

VKD_H_ZOBDoc* VKD_H_PluginParameter::modelDoc() const
{
    return m_model;
}

VKD_H_ZOBDoc* VKD_H_PluginParameter::sectionDoc() const
{
    return m_sections;
}
