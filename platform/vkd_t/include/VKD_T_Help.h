#pragma once

#include "vkd_t_export.h"
#include "VKD_T_String.h"

class QWidget;

/// The suite's help: books of topics in one window, which all calls share.
class VKD_T_EXPORT VKD_T_Help
{
public:
    /// Opens the help at a topic of a book in the language of setting 102; both names are
    /// case-insensitive. If the book or the topic does not exist, returns false, logs a line in the
    /// category vkd.help and does not change an open window.
    ///
    /// The window is not modal, and modal dialogs do not block it. It closes with the window of
    /// `parent`, which may be null. If that window is a dialog with a parent, the help stays open
    /// when the dialog closes. The window is deleted when the user closes it, and with the
    /// application at the latest. Use it in the GUI thread only.
    static bool show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic);
};
