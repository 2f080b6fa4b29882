#pragma once

#include "vkd_t_export.h"
#include "VKD_T_String.h"

class QWidget;

/// The suite's help: books of topics in one window, which all calls share.
class VKD_T_EXPORT VKD_T_Help
{
public:
    /// Opens the help at a topic of a book in the language of setting 102. The names of the book
    /// and the topic are case-insensitive. If either does not exist, returns false, logs a line in
    /// the category vkd.help and does not change an open window.
    ///
    /// The window is not modal, and modal dialogs do not block it. It closes when the window of
    /// `parent`, which may be null, closes. However, if that window is a dialog with a parent, the
    /// help stays open when the dialog closes. The help window is deleted when the user closes it
    /// or, at the latest, when the application is destroyed. Call this only in the GUI thread.
    static bool show(QWidget* parent, const VKD_T_String& book, const VKD_T_String& topic);
};
