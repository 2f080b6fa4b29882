#pragma once

#include "vkd_t_export.h"
#include "VKD_T_String.h"

class QWidget;

/// The suite's help: books of topics in one window, which every call uses again.
class VKD_T_EXPORT VKD_T_Help
{
public:
    /// Opens the help at a topic of a book, both compared without case, in the language of setting
    /// 102. False, with a log line of the category vkd.help and without touching an open window, if
    /// there is no such book or topic.
    ///
    /// The window is not modal, and modal dialogs do not block it. It goes with the window of
    /// `parent`, which may be null, unless that is a dialog with a parent: then it stays when the
    /// dialog closes. It is deleted when the user closes it and with the application at the latest.
    /// For the GUI thread only.
    static bool show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic);
};
