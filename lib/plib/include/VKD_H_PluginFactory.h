#pragma once

#include "vkd_p_fea_export.h"

#include <QString>

class VKD_H_Plugin;

/// The entry point that the suite calls in each library that it loads. This library provides only
/// embedded pages and has no plug-in object, so the function always returns null.
VKD_P_FEA_EXPORT VKD_H_Plugin* VKD_H_PluginFactory(const QString& name);
