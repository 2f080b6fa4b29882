#include "FuzzTarget.h"

#include <vkd_lib_value.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

/// Called once before the first input. Discards log messages, because most inputs cause warnings.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    return 0;
}

namespace fuzz {

void check(bool condition, const char* text)
{
    if (condition)
        return;
    std::fprintf(stderr, "not true: %s\n", text);
    std::abort();
}

void checkReason(const QString& reason)
{
    FUZZ_CHECK(!reason.isEmpty());
    FUZZ_CHECK(!reason.contains(QLatin1Char('\n')));
}

QByteArray bytesOf(const uint8_t* bytes, size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), int(size));
}

QString textOf(const uint8_t* bytes, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(bytes), int(size));
}

QString file(const char* name, const QByteArray& bytes)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QLatin1String(name));
    QFile written(path);
    const bool isOpen = written.open(QIODevice::WriteOnly);
    FUZZ_CHECK(isOpen && written.write(bytes) == bytes.size());
    return path;
}

} // namespace fuzz
