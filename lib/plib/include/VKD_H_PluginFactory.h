#pragma once

#include "vkd_p_fea_export.h"

#include <QString>

class VKD_H_Plugin;

/// The entry point that the suite calls in every library that it loads. This library only embeds
/// pages and has no plug-in object, so the result is always null.
VKD_P_FEA_EXPORT VKD_H_Plugin* VKD_H_PluginFactory(const QString& name);
