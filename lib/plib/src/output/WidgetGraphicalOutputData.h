#pragma once

#include "output/OutputPanel.h"

#include <AnimatorView.h>

#include <QPointer>

class GraphicalOutputTreeWidget;
class QPushButton;
class QWidget;
class VKD_H_BoxedLineEdit;
class VKD_H_Dialog;
class VKD_H_PluginParameter;
class VKD_H_TabDialog;
class VKD_QT4_ComboBox;
class VKD_QT_CheckBox;
class VKD_QT_GroupBox;
class VKD_QT_RadioButtonGroup;

namespace plib {
class CountsLine;
class PageHistory;
} // namespace plib

/// The private data of a graphical output page. Widgets are owned by their parents. Pointers to
/// widgets that this kind of page does not have are null; only the panel uses these pointers.
struct WidgetGraphicalOutputData
{
    VKD_H_PluginParameter* pluginParameter = nullptr;
    VKD_QT_RadioButtonGroup* scaleGroup = nullptr;
    VKD_QT_RadioButtonGroup* picturesGroup = nullptr;
    VKD_QT_RadioButtonGroup* formatGroup = nullptr;
    VKD_QT_GroupBox* pageSplitBox = nullptr;
    VKD_QT4_ComboBox* pageSplitCombo = nullptr;
    VKD_QT_RadioButtonGroup* viewGroup = nullptr;
    VKD_H_BoxedLineEdit* fontEdit = nullptr;
    GraphicalOutputTreeWidget* tree = nullptr;
    VKD_QT_CheckBox* fillCheck = nullptr;
    VKD_QT4_ComboBox* scaleCombo = nullptr;
    QPushButton* defaultButton = nullptr;
    QPointer<AnimatorView> animator;
    QWidget* attribs = nullptr;
    bool firstShow = true;
    bool reservedA = true; ///< neither this field nor reservedB is ever read
    bool reservedB = false;
    VKD_H_TabDialog* tabDialog = nullptr;
    VKD_H_Dialog* dialog = nullptr;
    VKD_P_WidgetGraphicalOutput_Progname progname = VKD_P_GraphicalOutput_Standard;
    QPointer<QWidget> animatorHome; ///< former parent of the animator
    bool animatorHadHome = false;
    std::unique_ptr<plib::OutputPanel> panel; ///< widgets for the settings of this kind of page
    plib::CountsLine* counts = nullptr;
    std::unique_ptr<plib::PageHistory> history; ///< destroyed first, as it watches the widgets
};
