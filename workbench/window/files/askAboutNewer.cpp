#include "window/files/askAboutNewer.h"

#include <VKD_QT_MessageBox.h>

#include <QCoreApplication>

namespace workbench {

namespace {
QString newerText(const char* source)
{
    return QCoreApplication::translate("askAboutNewer", source);
}
} // namespace

NewerAnswer askAboutNewer(QWidget* parent)
{
    const int answer = VKD_QT_MessageBox::warning(
        parent, newerText(QT_TRANSLATE_NOOP("askAboutNewer", "Workbench")),
        newerText(QT_TRANSLATE_NOOP(
            "askAboutNewer", "Another program has changed this data in the project since the "
                             "dialog was opened.\nOverwrite replaces it with your entries. "
                             "Reload discards your entries and shows the data in the project.")),
        newerText(QT_TRANSLATE_NOOP("askAboutNewer", "&Overwrite")),
        newerText(QT_TRANSLATE_NOOP("askAboutNewer", "&Reload")),
        newerText(QT_TRANSLATE_NOOP("askAboutNewer", "&Go Back")), int(NewerAnswer::GoBack),
        int(NewerAnswer::GoBack));
    return NewerAnswer(answer);
}

} // namespace workbench
