#pragma once

#include "VKD_A_BarDiameterData.h"
#include "vkd_a_export.h"

#include <VKD_QT4_ComboBox.h>

#include <QElapsedTimer>

/// A combo box with the bar diameters of a project. A bar value is the nominal diameter in
/// millimetres; -99999 means "not set" and is the first entry. A diameter that is missing from the
/// project has its own entry in the sorted list, so that the combo box can show it and return it
/// unchanged. Signals are emitted only when the user chooses an entry. The user can also type a
/// diameter; a diameter that is not in the list is refused. A caller may insert entries without
/// data above the diameters; the combo box preserves them.
class VKD_A_EXPORT VKD_A_BarDiameterCombo : public VKD_QT4_ComboBox
{
    Q_OBJECT

public:
    static constexpr float NotSet = -99999.0F;

    explicit VKD_A_BarDiameterCombo(QWidget* parent = nullptr, const char* name = nullptr);

    /// Loads the bars of the project with this database index through VKD_A_BarDiameterData::load()
    /// and keeps the current value. Returns false if the project is not open.
    bool load(int index);
    /// Sets whether the user can choose "not set"; the default is true. If this entry is not
    /// available, the first bar is current until another bar is chosen.
    void setNotSetAllowed(bool isAllowed);

    /// Makes this value current. Accepts any value, but returns false if the value is not in the
    /// table. In that case, adds an entry for the value, which the next call removes.
    bool setCurrent(float diameter);
    float getCurrent() const;

    const VKD_A_BarDiameterData& bars() const { return m_bars; }

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void refill();
    void fill(float current);
    void selectSilently(int entry);
    bool isOffered(float diameter) const;
    void type(const QString& character);
    int typedEntry() const;
    bool isBeginning() const;

    VKD_A_BarDiameterData m_bars;
    bool m_isNotSetAllowed = true;
    bool m_hasExtra = false;
    QString m_typed; ///< characters typed so far
    QElapsedTimer m_lastKey;
    int m_entryBefore = -1; ///< current entry before the user began to type
};
