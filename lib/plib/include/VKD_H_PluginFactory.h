#pragma once

#include "vkd_p_fea_export.h"

#include <QString>

class VKD_H_Plugin;

/// What the suite asks of every library that it loads. This one embeds pages and has no plug-in
/// object under any name, so the answer is always null.
VKD_P_FEA_EXPORT VKD_H_Plugin* VKD_H_PluginFactory(const QString& name);
