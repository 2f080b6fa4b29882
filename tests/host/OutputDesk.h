#pragma once

#include "HostProject.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TreeWidget.h>
#include <vkd_qt_xmlpart.h>

#include <QComboBox>
#include <QRadioButton>

using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

inline const Rows LoadCases{{1, 1, QStringLiteral("1 : Dead load")},
                            {1, 2, QStringLiteral("2 : Snow")},
                            {2, 11, QStringLiteral("11 : Design")}};

/// An output page with some load cases, and functions that find its widgets.
class OutputDesk
{
public:
    explicit OutputDesk(HostProject& project,
                        VKD_P_WidgetGraphicalOutput_Progname kind = VKD_P_GraphicalOutput_Standard,
                        AnimatorView* animator = nullptr, QWidget* parent = nullptr)
        : parameter(project.doc())
        , page(parent, kind, &parameter, animator)
    {
        page.setUsedNumbersAndNames(LoadCases);
        page.show();
    }

    template <class Widget>
    Widget* find(const char* name)
    {
        auto found = page.findChild<Widget*>(QLatin1String(name));
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    VKD_QT_TreeWidget* tree() { return find<VKD_QT_TreeWidget>("m_list"); }
    VKD_QT_RadioButtonGroup* group(const char* name) { return find<VKD_QT_RadioButtonGroup>(name); }
    void choose(const char* name, int entry) { group(name)->getRadioButton(entry)->click(); }
    void chooseScale(const char* scale)
    {
        choose("ScaleGroup", 0);
        find<QComboBox>("box_scale")->setCurrentText(QLatin1String(scale));
    }
    /// Returns the first plot with load cases below it.
    QTreeWidgetItem* plotWithRows()
    {
        for (QTreeWidgetItemIterator item(tree()); *item; ++item)
            if ((*item)->childCount() == 2 && (*item)->child(0)->text(0) == LoadCases[0].name)
                return *item;
        return nullptr;
    }

    VKD_H_PluginParameter parameter;
    VKD_P_WidgetGraphicalOutput page;
};

inline QString part(const char* tag, const char* value)
{
    return vkd_qt_writeXMLpart(QLatin1String(value), QLatin1String(tag));
}
