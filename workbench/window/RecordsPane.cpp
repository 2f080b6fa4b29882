#include "RecordsPane.h"

#include <tagZOB_QUAD_RIM.h>
#include <vkd_zob.h>

#include <QEvent>
#include <QHeaderView>

#include <array>
#include <cstring>
#include <vector>

namespace workbench {

namespace {
constexpr int DesignKey1 = 200;
constexpr int DesignKey2 = 6;
constexpr int IntegerWords = 5;
constexpr int WordCount = sizeof(tagZOB_QUAD_RIM) / 4;
constexpr int HeadColumns = 2; // name and unit

/// Words that follow each other, with one unit.
struct Words
{
    const char* unit;
    std::vector<const char*> names;
};

const std::vector<Words>& recordWords()
{
    static const std::vector<Words> all{
        {"", {"group", "subId", "type", "mode", "mark"}},
        {"rad", {"rio", "rioq", "rioi", "riu", "riuq", "riui"}},
        {"m", {"xref", "yref", "zref"}},
        {"m", {"hio", "hioq", "hioi", "hiu", "hiuq", "hiui"}},
        {"mm", {"dio", "dioq", "dioi", "diu", "diuq", "diui"}},
        {"", {"reservedD"}},
        {"cm²/m", {"aso", "asoq", "asoi", "asu", "asuq", "asui"}},
        {"", {"reservedS"}},
        {"cm²/m", {"amo", "amoq", "amoi", "amu", "amuq", "amui"}},
        {"", {"reservedM"}},
        {"mm", {"wko", "wkoq", "wkoi", "wku", "wkuq", "wkui"}},
        {"N/mm²", {"sigo", "sigoq", "sigoi", "sigu", "siguq", "sigui"}},
    };
    return all;
}

using Record = std::array<char, sizeof(tagZOB_QUAD_RIM)>;

std::vector<Record> readRecords(int index)
{
    std::vector<Record> records;
    Record record{};
    int length = sizeof record;
    for (int position = 0; index > 0 && vkd_zob_get(index, DesignKey1, DesignKey2, record.data(),
                                                    &length, position) == VKD_ZOB_OK;
         ++position) {
        records.push_back(record);
        record = {};
        length = sizeof record;
    }
    if (index > 0)
        vkd_zob_free_ex(index, DesignKey1, DesignKey2);
    return records;
}

/// Nine digits tell every single precision number from its neighbours.
QString wordText(const Record& record, int word)
{
    const char* bytes = record.data() + 4 * word;
    if (word < IntegerWords) {
        qint32 number = 0;
        std::memcpy(&number, bytes, sizeof number);
        return QString::number(number);
    }
    float number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return QString::number(double(number), 'g', 9);
}

QTableWidgetItem* newItem(const QString& text, Qt::Alignment alignment = Qt::AlignLeft)
{
    auto item = new QTableWidgetItem(text);
    item->setTextAlignment(int(alignment | Qt::AlignVCenter));
    return item;
}
} // namespace

RecordsPane::RecordsPane(QWidget* parent)
    : VKD_QT_TableWidget(WordCount, HeadColumns, parent, "Records")
{
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    int word = 0;
    for (const Words& words : recordWords())
        for (const char* name : words.names) {
            setItem(word, 0, newItem(QLatin1String(name)));
            setItem(word++, 1, newItem(QString::fromUtf8(words.unit)));
        }
    setTexts();
}

void RecordsPane::setProject(int index)
{
    m_index = index;
    fill();
}

void RecordsPane::changeEvent(QEvent* event)
{
    VKD_QT_TableWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void RecordsPane::setTexts()
{
    setAccessibleName(tr("Design records"));
    setToolTip(tr("The design records as they lie in the project file. Each row is a word of four "
                  "bytes."));
    QStringList labels{tr("Name"), tr("Unit")};
    for (int record = 1; record <= columnCount() - HeadColumns; ++record)
        labels << tr("Record %1").arg(record);
    setHorizontalHeaderLabels(labels);
    for (int column = 0; column < columnCount(); ++column)
        horizontalHeaderItem(column)->setTextAlignment(
            int((column < HeadColumns ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter));
    resizeColumnsToContents();
}

void RecordsPane::fill()
{
    const std::vector<Record> records = readRecords(m_index);
    setColumnCount(HeadColumns + int(records.size()));
    for (int column = HeadColumns; column < columnCount(); ++column)
        for (int word = 0; word < WordCount; ++word)
            setItem(word, column,
                    newItem(wordText(records[std::size_t(column - HeadColumns)], word),
                            Qt::AlignRight));
    setTexts();
}

} // namespace workbench
