#include "VKD_H_PluginFactory.h"

VKD_H_Plugin* VKD_H_PluginFactory(const QString&)
{
    return nullptr;
}
