#include "PlatformLog.h"

#include <cstring>

namespace workbench {

namespace {
QStringList& kept()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler previous = nullptr;

void keep(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "vkd.", 4) == 0)
        kept() << message;
    else
        previous(type, context, message);
}
} // namespace

void PlatformLog::install()
{
    previous = qInstallMessageHandler(keep);
}

QStringList PlatformLog::take()
{
    QStringList lines;
    lines.swap(kept());
    lines.removeDuplicates();
    return lines;
}

} // namespace workbench
