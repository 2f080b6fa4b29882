#pragma once

#include "VKD_A_BarDiameterData.h"
#include "vkd_a_export.h"

#include <VKD_QT4_ComboBox.h>

#include <QElapsedTimer>

/// A combo box with the bars of a project. A bar value is the nominal diameter in millimetres;
/// -99999 stands for "not set" and is the first entry. A diameter that the project lacks gets an
/// entry of its own in the sorted list, so that the box can show it and return it bit for bit. Only
/// a choice by the user emits signals.
class VKD_A_EXPORT VKD_A_BarDiameterCombo : public VKD_QT4_ComboBox
{
    Q_OBJECT

public:
    static constexpr float NotSet = -99999.0F;

    explicit VKD_A_BarDiameterCombo(QWidget* parent = nullptr, const char* name = nullptr);

    /// Loads the bars of the project at this database index with VKD_A_BarDiameterData::load() and
    /// keeps the current choice. Returns false if the project is not open.
    bool load(int index);
    /// Sets whether the user can choose "not set"; the default is true. Without this entry the
    /// first bar is current until another one is chosen.
    void setNotSetAllowed(bool isAllowed);

    /// Makes this value the current one; any value is accepted. Returns false if the table lacks
    /// it. Such a value gets the only extra entry, which the next call removes.
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
    QString m_typed; ///< the digits typed so far; they find a bar
    QElapsedTimer m_lastDigit;
};
