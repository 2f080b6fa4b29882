#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <list>
#include <memory>

class QLayout;
class QWidget;
class VKD_P_RadioGroupImpl;

/// A row of radio buttons for dialogs of hosts. With it the user selects load cases, or how much
/// text is output. A coupled widget, in which the user selects by hand, is enabled only while the
/// manual button is checked. Call one of the init functions, then layout(), then useWidget(); no
/// signals are emitted before useWidget(). The group may be destroyed at any time, even in a slot
/// connected to one of its signals; the buttons stay with their parent.
class VKD_P_FEA_EXPORT VKD_P_RadioGroup : public QObject
{
    Q_OBJECT

public:
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
    /// already has a row. This one creates "Manually" and "All", neither of them checked.
    void init(QWidget* parent);
    /// Creates "Manually" and the buttons from All_A to All_NONF that `ids` contains, none of them
    /// checked. The row is sorted by id. It also emits buttonChecked(), but never
    /// buttonNoOutputChecked().
    void initForLF(QWidget* parent, const std::list<ButtonID>& ids);
    /// Creates "Manually controlled", which is checked, "No text output" and "Full text output".
    /// This row emits no signals.
    void initEchoOutput(QWidget* parent);

    /// Returns the row. Add it to a layout with addLayout() or to a widget with setLayout(), which
    /// then owns it. Null before an init function is called.
    QLayout* layout() const;

    /// Couples a widget, which is not owned and may be null, and connects the buttons to the
    /// signals. Call it once only: after a second call, each signal is emitted twice.
    void useWidget(QWidget* widget);

    /// Ids of buttons that the row does not have are ignored.
    void setEnabledById(ButtonID id, bool enabled);
    void setSelectedId(ButtonID id);
    /// Returns -1 if no button is checked.
    ButtonID getSelectedId() const;

    /// writeXML() returns the choice as a text for the host to save, and readXML() restores it. A
    /// text of another format is ignored.
    void readXML(const QString& text);
    QString writeXML() const;

Q_SIGNALS:
    /// Emitted when the choice may have changed, only with a coupled widget, and more than once for
    /// a click. The id is -1 if no button is checked.
    void buttonClicked(int buttonID);
    void buttonNoOutputChecked();
    void buttonManuallyChecked();
    void buttonAllChecked();
    void buttonAllAcciChecked();
    void buttonAllFireChecked();
    void buttonAllEartChecked();
    void buttonChecked(int buttonID);

public Q_SLOTS:
    /// Enables the coupled widget if the manual button is checked. Otherwise a
    /// vkd::properties::nextGen::QtTableView becomes read-only, and any other widget is disabled.
    void updateUsedWidget();

private:
    std::shared_ptr<VKD_P_RadioGroupImpl> m_impl;
};
