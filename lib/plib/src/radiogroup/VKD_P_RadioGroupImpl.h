#pragma once

#include "VKD_P_RadioGroup.h"

#include <QButtonGroup>

#include <vector>

class QRadioButton;

/// The implementation of VKD_P_RadioGroup. VKD_P_RadioGroup forwards its calls to this class, and
/// forwards only those signals that the kind of row provides. The pointers to the buttons, the row
/// and the coupled widget are reset to null when the owners delete these objects.
class VKD_P_RadioGroupImpl : public QObject
{
    Q_OBJECT

public:
    using ButtonID = VKD_P_RadioGroup::ButtonID;

    VKD_P_RadioGroupImpl();
    ~VKD_P_RadioGroupImpl() override;

    /// These functions create the row. They return false if a row already exists.
    bool init(QWidget* parent);
    bool initForLF(QWidget* parent, const std::list<ButtonID>& ids);
    bool initEchoOutput(QWidget* parent);

    QLayout* layout() const;
    void useWidget(QWidget* widget);
    void setEnabledById(ButtonID id, bool enabled);
    void setSelectedId(ButtonID id);
    ButtonID getSelectedId() const;
    void readXML(const QString& text);
    QString writeXML() const;

Q_SIGNALS:
    void buttonClicked(int buttonID);
    void buttonNoOutputChecked();
    void buttonManuallyChecked();
    void buttonAllChecked();
    void buttonAllAcciChecked();
    void buttonAllFireChecked();
    void buttonAllEartChecked();
    void buttonChecked(int buttonID);

public Q_SLOTS:
    void updateUsedWidget();
    void buttonXXClicked(bool on);

private:
    struct Kind;
    struct Entry
    {
        ButtonID id;
        QString label;
        QString toolTip;
    };

    static const std::vector<Kind>& kinds();
    bool buildRow(QWidget* parent, const std::vector<Entry>& entries);
    QRadioButton* makeButton(QWidget* parent, const Entry& entry);

    bool m_isBuilt = false; ///< remains true after the parent has deleted the row
    QLayout* m_layout = nullptr;
    QRadioButton* m_Manually = nullptr;
    QRadioButton* m_All = nullptr;
    QRadioButton* m_All_A = nullptr;
    QRadioButton* m_All_F = nullptr;
    QRadioButton* m_All_E = nullptr;
    QRadioButton* m_All_RARE = nullptr;
    QRadioButton* m_All_FREQ = nullptr;
    QRadioButton* m_All_PERM = nullptr;
    QRadioButton* m_All_NONF = nullptr;
    QRadioButton* m_NoTextOutput = nullptr;
    QWidget* m_usedWidget = nullptr; ///< not owned
    QButtonGroup m_group;
};
