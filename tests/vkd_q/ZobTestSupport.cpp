#include "ZobTestSupport.h"

#include <sqlite3.h>

namespace {
QtMessageHandler before = nullptr;
int lines = 0;

void countLines(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (qstrcmp(context.category, "vkd.zob") == 0)
        ++lines;
    else
        before(type, context, message);
}
} // namespace

ZobLog::ZobLog()
{
    lines = 0;
    before = qInstallMessageHandler(countLines);
}

ZobLog::~ZobLog()
{
    qInstallMessageHandler(before);
}

int ZobLog::take()
{
    return std::exchange(lines, 0);
}

cd_error_t put(int index, int key1, int key2, const QByteArray& record, int position)
{
    const int length = record.size();
    return vkd_zob_put(index, key1, key2, record.constData(), &length, position);
}

void beginLargeChange(int index)
{
    vkd_zob_lock_ex(index, 1, 1);
    for (const QByteArray& record : moreThanCache())
        put(index, 1, 1, record, 1);
}

Records readAll(int index, int key2, cd_error_t* end)
{
    Records records;
    QByteArray buffer(200000, Qt::Uninitialized);
    for (;;) {
        int length = buffer.size();
        const cd_error_t status =
            vkd_zob_get(index, 1, key2, buffer.data(), &length, records.size());
        if (end)
            *end = status;
        if (status != VKD_ZOB_OK)
            return records;
        records << buffer.left(length);
    }
}

void makeProject(const QString& path, const Records& records)
{
    int index = -1;
    vkd_zob_create(path.toUtf8().constData(), &index);
    vkd_zob_lock_ex(index, 1, 1);
    for (const QByteArray& record : records)
        put(index, 1, 1, record, 1);
    vkd_zob_free_ex(index, 1, 1);
    if (vkd_zob_close(index).code != VKD_ZOB_OK)
        qFatal("cannot make %s", qUtf8Printable(path));
}

Records readProject(const QString& path)
{
    const int index = openProject(path);
    const Records records = readAll(index);
    vkd_zob_close(index);
    return records;
}

int openProject(const QString& path)
{
    int index = -1;
    vkd_zob_open(path.toUtf8().constData(), &index);
    return index;
}

Records moreThanCache()
{
    return Records::fromVector(QVector<QByteArray>(10, QByteArray(1000000, 'x')));
}

void changeByOther(const QString& path, const char* change)
{
    sqlite3* connection = nullptr;
    if (sqlite3_open(path.toUtf8(), &connection) != SQLITE_OK ||
        sqlite3_exec(connection, change, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(connection));
    sqlite3_close(connection);
}
