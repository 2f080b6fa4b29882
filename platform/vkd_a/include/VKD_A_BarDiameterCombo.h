#pragma once

#include "VKD_A_BarDiameterData.h"
#include "vkd_a_export.h"

#include <VKD_QT4_ComboBox.h>

#include <QElapsedTimer>

/// A choice among the bars of a project. A bar value is the nominal diameter in millimetres, and
/// -99999 stands for "not set", the first entry. A diameter that the project does not have gets an
/// entry at its place in the order, so that it can be shown and comes back bit for bit. Only the
/// user's choice sends signals.
class VKD_A_EXPORT VKD_A_BarDiameterCombo : public VKD_QT4_ComboBox
{
    Q_OBJECT

public:
    static constexpr float NotSet = -99999.0F;

    explicit VKD_A_BarDiameterCombo(QWidget* parent = nullptr, const char* name = nullptr);

    /// Takes the bars of the project at this database index, as VKD_A_BarDiameterData::load(), and
    /// keeps the present choice. False if the project is not open.
    bool load(int index);
    /// Whether "not set" can be chosen; it can at first. Without it and without another choice the
    /// first bar is the current one.
    void setNotSetAllowed(bool isAllowed);

    /// Makes this value the current one; any value is taken. False if it is not in the table and so
    /// is shown by an entry of its own, the only one of its kind until the next call.
    bool setCurrent(float diameter);
    float getCurrent() const;

    const VKD_A_BarDiameterData& bars() const { return m_bars; }

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill(float current);
    void selectSilently(int entry);
    bool isOffered(float diameter) const;

    VKD_A_BarDiameterData m_bars;
    bool m_isNotSetAllowed = true;
    bool m_hasExtra = false;
    QString m_typed; ///< digits, to find the bar that begins with them
    QElapsedTimer m_lastDigit;
};
