#pragma once

#include <LoadcaseInformation.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <QSet>
#include <QString>

#include <vector>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// The saved state of one graphical output: the state string of the page and the selections in the
/// other tabs of the dialog.
struct OutputState
{
    /// Buttons of the content radio group.
    enum Content { OfTheModel = 0, WithSolids = 1 };

    QString page;             ///< empty if no state was ever saved
    int content = OfTheModel; ///< checked button of the content radio group
    QSet<int> leftOutNumbers; ///< load cases that are unchecked in the table

    bool operator==(const OutputState& other) const;
    /// Returns the whole state as text. Equal states have equal texts.
    QString text() const;

    /// Reads the state of the first output of a project.
    static OutputState read(ZobHandle project);
    /// These functions read and set the entries of the output with this number. The keys of output
    /// 1 do not contain its number, because a project that was saved before outputs had names
    /// contains only this output.
    static OutputState fromEntries(const VKD_H_ProjectDialogPage& entries, int number = 1);
    void setEntries(VKD_H_ProjectDialogPage* entries, int number = 1) const;
    static void deleteEntries(VKD_H_ProjectDialogPage* entries, int number);
    /// Returns the key of an entry for the output with this number.
    static QString entryKey(const char* name, int number);
    /// Writes the state of the first output to the project. Returns the status of
    /// VKD_H_ProjectDialogPage::save().
    VkdStatus put(ZobHandle project) const;

    /// Returns the tag of the content that WithSolids always includes.
    static QString solidsTag();
    /// Returns the load cases of the project that the plots offer, sorted by number. The table
    /// lists only plain load cases; design combinations are always offered.
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>
    offeredRows(ZobHandle project) const;
};

} // namespace workbench
