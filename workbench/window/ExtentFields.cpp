#include "ExtentFields.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Widgets.h>

#include <QHBoxLayout>

namespace workbench {

namespace {
constexpr struct
{
    ExtentFields::List list;
    const char* objectName;
    const char* text;
} Lists[] = {
    {ExtentFields::System, "SystemList", QT_TRANSLATE_NOOP("workbench::ExtentFields", "System")},
    {ExtentFields::Loads, "LoadList", QT_TRANSLATE_NOOP("workbench::ExtentFields", "Loads")},
    {ExtentFields::Displacements, "DisplacementList",
     QT_TRANSLATE_NOOP("workbench::ExtentFields", "Displacements")},
    {ExtentFields::Forces, "ForceList",
     QT_TRANSLATE_NOOP("workbench::ExtentFields", "Internal forces")},
    {ExtentFields::Reactions, "ReactionList",
     QT_TRANSLATE_NOOP("workbench::ExtentFields", "Support reactions")},
};
} // namespace

ExtentFields::ExtentFields(QWidget* parent)
    : QWidget(parent)
    , m_values(new VKD_QT4_ComboBox(this, "ListValues"))
{
    auto row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (const auto& list : Lists) {
        auto box = new VKD_QT_CheckBox(tr(list.text), this, list.objectName);
        connect(box, &QCheckBox::toggled, this, &ExtentFields::changed);
        row->addWidget(box);
        m_boxes << box;
    }
    auto label = new VKD_QT_Label(tr("&Result values:"), this);
    label->setBuddy(m_values);
    m_values->setAccessibleName(tr("Result values"));
    for (bool all : {false, true})
        m_values->addEntry(valuesName(all), int(all));
    connect(m_values, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExtentFields::changed);
    row->addStretch();
    row->addWidget(label);
    row->addWidget(m_values);
    setTabOrder(m_boxes.last(), m_values);
}

int ExtentFields::lists() const
{
    int lists = 0;
    for (int i = 0; i < m_boxes.size(); ++i)
        if (m_boxes[i]->isChecked())
            lists |= Lists[i].list;
    return lists;
}

void ExtentFields::setLists(int lists)
{
    for (int i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setChecked(lists & Lists[i].list);
}

bool ExtentFields::allValues() const
{
    return m_values->getCurrentId() != 0;
}

void ExtentFields::setAllValues(bool all)
{
    m_values->setCurrentId(int(all));
}

QString ExtentFields::listNames(int lists)
{
    QStringList names;
    for (const auto& list : Lists)
        if (lists & list.list)
            names << tr(list.text);
    return names.join(QLatin1String(", "));
}

QString ExtentFields::valuesName(bool all)
{
    return all ? tr("All nodes and elements") : tr("Extreme values");
}

} // namespace workbench
