#pragma once

#include "vkd_h_export.h"

class VKD_H_ZOBDoc;

/// What a host hands to the pages that it embeds: the document of the model and, where cross
/// sections are kept apart, the document that holds them. Owns neither.
class VKD_H_EXPORT VKD_H_PluginParameter
{
public:
    /// `model` must not be null; `sections` may be.
    explicit VKD_H_PluginParameter(VKD_H_ZOBDoc* model, VKD_H_ZOBDoc* sections = nullptr);

    VKD_H_ZOBDoc* modelDoc() const;
    VKD_H_ZOBDoc* sectionDoc() const;

private:
    VKD_H_ZOBDoc* m_model;
    VKD_H_ZOBDoc* m_sections;
};
