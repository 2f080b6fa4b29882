#include "window/textoutput/ExtentFields.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Widgets.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <utility>

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
    auto lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    auto row = new QHBoxLayout;
    lines->addLayout(row);
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
    auto values = new QHBoxLayout;
    lines->addLayout(values);
    values->addWidget(label);
    values->addWidget(m_values);
    values->addStretch();
    setTabOrder(m_boxes.last(), m_values);
}

void ExtentFields::setChoice(const Choice& choice)
{
    if (m_showsRule)
        m_choice = choice;
    else
        display(choice);
}

void ExtentFields::showChosen()
{
    const QSignalBlocker quiet(this);
    if (std::exchange(m_showsRule, false))
        display(m_choice);
}

void ExtentFields::showRule(const Choice& rule)
{
    const QSignalBlocker quiet(this);
    m_choice = choice();
    m_showsRule = true;
    display(rule);
}

ExtentFields::Choice ExtentFields::displayed() const
{
    Choice choice;
    for (int i = 0; i < m_boxes.size(); ++i)
        if (m_boxes[i]->isChecked())
            choice.lists |= Lists[i].list;
    choice.allValues = m_values->getCurrentId() != 0;
    return choice;
}

void ExtentFields::display(const Choice& choice)
{
    for (int i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setChecked(choice.lists & Lists[i].list);
    m_values->setCurrentId(int(choice.allValues));
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
