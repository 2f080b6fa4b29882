#pragma once

#include "vkd_h_export.h"

class VKD_H_ZOBDoc;

/// The documents that a host passes to its embedded pages: the model and, if they are stored
/// separately, the cross sections. It does not own the documents.
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
