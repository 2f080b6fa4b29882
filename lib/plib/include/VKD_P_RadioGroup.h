#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <list>
#include <memory>

class QLayout;
class QWidget;
class VKD_P_RadioGroupImpl;

/// A row of radio buttons for dialogs of hosts: which load cases to take, or how much text to put
/// out. A coupled widget, in which the user picks by hand, is live only while the manual button is
/// chosen. To be used in this order: one of the init operations, layout(), and useWidget(), without
/// which there are no signals. May be destroyed at any time, even by what its signals are connected
/// to; the buttons stay with their parent.
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

    /// Each makes a row whose buttons belong to `parent`. A second row is not made.
    /// "Manually" and "All", neither of them chosen.
    void init(QWidget* parent);
    /// "Manually" and those of All_A to All_NONF that are among `ids`, none of them chosen. The row
    /// is in the order of the ids. Sends buttonChecked(), too, but not buttonNoOutputChecked().
    void initForLF(QWidget* parent, const std::list<ButtonID>& ids);
    /// "Manually controlled", which is chosen, "No text output" and "Full text output". Sends no
    /// signals.
    void initEchoOutput(QWidget* parent);

    /// The row, to be put into a layout by addLayout() or into a widget by setLayout(), which then
    /// owns it. Null before an init operation.
    QLayout* layout() const;

    /// Couples a widget, which is not owned and may be null, and makes the buttons send signals. To
    /// be called once: a second call makes each signal come twice.
    void useWidget(QWidget* widget);

    /// A button that the row does not have is ignored.
    void setEnabledById(ButtonID id, bool enabled);
    void setSelectedId(ButtonID id);
    /// -1 if no button is chosen.
    ButtonID getSelectedId() const;

    /// The choice as a text for the host to keep. A text of another form changes nothing.
    void readXML(const QString& text);
    QString writeXML() const;

Q_SIGNALS:
    /// The choice may have changed; comes more than once for a click, and only with a coupled
    /// widget. -1 if no button is chosen.
    void buttonClicked(int buttonID);
    void buttonNoOutputChecked();
    void buttonManuallyChecked();
    void buttonAllChecked();
    void buttonAllAcciChecked();
    void buttonAllFireChecked();
    void buttonAllEartChecked();
    void buttonChecked(int buttonID);

public Q_SLOTS:
    /// Makes the coupled widget live or not as the choice has it: a
    /// vkd::properties::nextGen::QtTableView becomes read-only, any other widget disabled.
    void updateUsedWidget();

private:
    std::shared_ptr<VKD_P_RadioGroupImpl> m_impl;
};
