#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <list>
#include <memory>

class QLayout;
class QWidget;
class VKD_P_RadioGroupImpl;

/// A row of radio buttons for the dialogs of hosts, with which the user selects load cases or the
/// amount of text output. A coupled widget for manual selection is enabled only while the manual
/// button is checked. Call one of the init functions first, followed by layout() and useWidget().
/// No signals are emitted before useWidget(). The group may be destroyed at any time, even in a
/// slot connected to one of its signals. The buttons remain children of their parent.
class VKD_P_FEA_EXPORT VKD_P_RadioGroup : public QObject
{
    Q_OBJECT

public:
    /// The buttons; the init functions create some of them.
    enum ButtonID : int {
        NoTextOutput = 0,
        Manually = 1,
        All = 2,
        All_A = 3,    ///< accidental
        All_F = 4,    ///< fire
        All_E = 5,    ///< earthquake
        All_RARE = 6, ///< characteristic
        All_FREQ = 7, ///< frequent
        All_PERM = 8, ///< quasi-permanent
        All_NONF = 9, ///< non-frequent
    };

    VKD_P_RadioGroup();
    ~VKD_P_RadioGroup() override;

    /// Each init function creates a row of buttons owned by `parent`, or does nothing if the group
    /// already has a row. This function creates the buttons "Manually" and "All"; neither of them
    /// is checked.
    void init(QWidget* parent);
    /// Creates the button "Manually" and those buttons from All_A to All_NONF whose IDs are in
    /// `ids`. No button is checked. The row is sorted by ID. It also emits buttonChecked(), but
    /// never buttonNoOutputChecked().
    void initForLF(QWidget* parent, const std::list<ButtonID>& ids);
    /// Creates the buttons "Manually controlled", which is checked, "No text output" and "Full text
    /// output". This row does not emit signals.
    void initEchoOutput(QWidget* parent);

    /// Returns the layout with the row, or null before an init function is called. Add it to a
    /// layout with addLayout() or to a widget with setLayout(), which transfers ownership.
    QLayout* layout() const;

    /// Couples a widget, which is not owned and may be null, and connects the buttons to the
    /// signals. Call it only once: after a second call, each signal is emitted twice.
    void useWidget(QWidget* widget);

    /// Enables or disables a button. Ignores IDs of buttons that are not in the row.
    void setEnabledById(ButtonID id, bool enabled);
    /// Checks a button. If the choice changes, the signals are emitted. Ignores IDs of buttons that
    /// are not in the row.
    void setSelectedId(ButtonID id);
    /// Returns the ID of the checked button, or -1 if no button is checked.
    ButtonID getSelectedId() const;

    /// writeXML() returns the choice as a string that the host saves, and readXML() restores the
    /// choice from this string. readXML() ignores a string in any other format.
    void readXML(const QString& text);
    QString writeXML() const;

Q_SIGNALS:
    /// Emitted when the choice may have changed, but only if a widget is coupled. May be emitted
    /// more than once per click. The ID is -1 if no button is checked.
    void buttonClicked(int buttonID);
    /// Emitted when the button NoTextOutput is checked.
    void buttonNoOutputChecked();
    /// Emitted when the button Manually is checked.
    void buttonManuallyChecked();
    /// Emitted when the button All is checked.
    void buttonAllChecked();
    /// Emitted when the button All_A is checked.
    void buttonAllAcciChecked();
    /// Emitted when the button All_F is checked.
    void buttonAllFireChecked();
    /// Emitted when the button All_E is checked.
    void buttonAllEartChecked();
    /// Emitted when any button except NoTextOutput is checked.
    void buttonChecked(int buttonID);

public Q_SLOTS:
    /// Enables the coupled widget if the manual button is checked. Otherwise makes a
    /// vkd::properties::nextGen::QtTableView read-only and disables any other widget.
    void updateUsedWidget();

private:
    std::shared_ptr<VKD_P_RadioGroupImpl> m_impl;
};
